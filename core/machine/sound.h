#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"

#include <array>

/// The sounds of the game, and the file of each in the program's directory, in the same order.
enum class Som { Clique, Selecao, Acerto1, Acerto2, Erro1, Erro2 };
inline constexpr std::array<QStringView, 6> kArquivosDeSom = {
    u"click.wav", u"select.wav", u"acerto1.wav", u"acerto2.wav", u"erro1.wav", u"erro2.wav"};

/// Plays a sound, unless sound is off. Returns at once; a new sound cuts off the one still playing.
/// Nothing is reported.
void TocaSom(const ValoresPrograma &valores, const Ambiente &ambiente, Som som);
