#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"

/// Plays the sound file `nome` of the program's directory, unless sound is off. Returns at once; a
/// new sound cuts off the one still playing. Nothing is reported.
void TocaSom(const ValoresPrograma &valores, const Ambiente &ambiente, QStringView nome);
