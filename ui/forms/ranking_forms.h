#pragma once

#include "ui/forms/control_table.h"

namespace forms {

/// Rows of the ranking.
inline constexpr int kLinhasRanking = 5;

/// Asks for the name of a player whose time reaches the ranking.
extern const DefForm kFrmSeuNome;
/// The ranking: the control arrays Label1, Label2 and Label3 are its columns place, time and name,
/// with one member for each row from 1 on; Label1(0) is the title.
extern const DefForm kFrmHanking;

} // namespace forms
