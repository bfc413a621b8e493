#pragma once

#include "core/builder/build_state.h"

/// How a build ended: with kItens words on the board, or with fewer after the last rescue pass.
enum class FimMontagem { Completa, Falhou };

/// Builds a whole crossword on a board that wzera has emptied: a first word, a skeleton of crossing
/// words, rescue passes. A word once laid is never taken back.
///
/// The bank must serve (IndiceBanco::Serve), or the search for a first word would never end. The
/// order of draws is a contract: one for each formula and one for each Sorteia, in the order of the
/// steps, none besides. Same generator state, bank and memory, same puzzle, on every platform and
/// in every version.
[[nodiscard]] FimMontagem CarregaPalavras(const DadosMontagem &dados);
