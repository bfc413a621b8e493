#pragma once

#include "ui/forms/control_table.h"

namespace forms {

/// The definition of the About form.
extern const DefForm kFrmSobre;

} // namespace forms
