#pragma once

#include "core/board/board.h"
#include <QString>

/// The words of the last twenty games, which new puzzles avoid. They outlast the run in an INI file
/// of one section, where key Palavra1 holds the newest word and Palavra520 the oldest.

inline constexpr int kUsadas = 520;

/// The list as the builder looks through it: entries 0 to `QtdUsadas`.
struct MemoriaUsadas
{
    /// The value of key Palavra<k> stands in entry k. Entry 0 stays empty; gaps are kept.
    TabelaDe<QString, kUsadas> PalavrasUsadas;
    /// Number of entries that are not empty, 0 to kUsadas + 1, as the list was last read or pushed.
    /// The builder may lower it: the words behind it are then free, but still in the list.
    int QtdUsadas = 0;
};

/// Fills `memoria` from the file. One that is missing or unreadable gives an empty list.
void LeUsadas(MemoriaUsadas &memoria, const QString &arquivo);

/// Pushes the board's words into the file and reads the list from it anew. The words of items 1 to
/// QtdItens become the newest; all others move on by 26 places, whatever QtdItens is, and the last
/// 26 fall out. A file that cannot be written keeps its words, and the list gets those.
void GravaUsadas(MemoriaUsadas &memoria, const QString &arquivo, const Tabuleiro &tabuleiro);

/// The same push on the list alone, with no file.
void EmpurraUsadas(MemoriaUsadas &memoria, const Tabuleiro &tabuleiro);
