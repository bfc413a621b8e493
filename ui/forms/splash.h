#pragma once

#include "ui/forms/control_table.h"

namespace forms {

/// The definition of the start-up banner.
extern const DefForm kFrmSplash;

} // namespace forms
