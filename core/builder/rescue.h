#pragma once

#include "core/builder/build_state.h"

/// Tries to fit one more word into the board, across a cell in use, with `tentar` draws for each
/// usable cell. The word touches other words in the crossing cell alone and leaves one clear cell
/// before and behind it. True if a word was placed.
bool encaixadoidao(Montagem &montagem, int tentar);
