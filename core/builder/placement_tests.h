#pragma once

#include "core/bank/used_words.h"
#include "core/board/board.h"

/// The builder's questions about a candidate word. None of them changes the board.
///
/// Walk directions are 'L' (left), 'R' (right), 'T' (up) and 'D' (down); word directions 'H' and
/// 'V'.

/// The room from cell `ww_ponto` (1 to kCelulas) in a walk direction, in cells. 'R' and 'D' count
/// the cells beyond it up to the edge; 'L' and 'T' one fewer, so that the first column and row stay
/// out of reach. Can be negative; 0 for any other direction.
int espaco(int ww_ponto, QChar direcao);

/// Whether a word of `comprimento` letters that starts on cell `w_ponto` and runs 'H' or 'V' stays
/// within the board and leaves one cell of the line free behind its last letter. False for any
/// other direction and for a start that is no cell. Looks at no other word.
bool Cabe(int comprimento, int w_ponto, QChar w_sentido);

/// The number of clear cells from cell `i` (1 to kCelulas, itself not examined) in a walk
/// direction: cells that are free and whose two neighbours across the line are free. The first
/// other one ends the walk.
int Vazios(const Tabuleiro &tabuleiro, int i, QChar d);

/// Whether `palavra` must not be used now: it stands in the used-word list or among the items
/// placed. The comparison is exact. Holds QtdUsadas at kUsadas.
bool jafoi(const QString &palavra, MemoriaUsadas &memoria, const Tabuleiro &tabuleiro);
