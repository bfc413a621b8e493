#pragma once

#include "core/machine/program_state.h"

/// The display's DPI as the registry has it, -1 where the value is missing.
[[nodiscard]] int LeAppliedDPI(const ValoresPrograma &valores);
