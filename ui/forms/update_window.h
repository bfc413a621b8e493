#pragma once

#include "ui/forms/control_table.h"

namespace forms {

/// The definition of the window that shows the download of a newer version.
extern const DefForm kFrmBaixar;

} // namespace forms
