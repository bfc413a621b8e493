#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"

/// The seam with everything real behind it: the system's clock, entropy, sound, message boxes and
/// browser. `valores` must outlive it; its title and program directory must be set.
Ambiente AmbienteReal(const ValoresPrograma &valores);
