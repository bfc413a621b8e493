#pragma once

#include "core/board/numbered_table.h"
#include <QString>

/// The five best times with their players' names, kept in an INI file: sections Ranking1 (the best)
/// to Ranking5, each with Nome and Tempo. Lower is better; times are whole seconds.

inline constexpr int kLugares = 5;
/// Characters of a player's name in the file.
inline constexpr int kTamanhoNome = 14;

/// One row as the ranking shows it: hours:minutes:seconds and the name. "." in both where the place
/// is empty, "." for the time alone where a name stands with no time that can be read as a 32-bit
/// number.
struct LinhaRanking
{
    QString Tempo;
    QString Nome;
};

/// The place, 1 to 5, that a game of `t` seconds takes, or 0 for none. It goes above the first
/// place with a longer time, so below an equal one. Of a stored time the leading digits count, 0
/// where there are none; a place without one is longer than any game but those of 999999 seconds
/// and more.
int ProcuraLugar(const QString &arquivo, int t);

/// Enters a game at place `p` (1 to 5): moves the places from `p` on down by one, of which the
/// fifth falls out, and writes name and time. The name is cut or padded with blanks to kTamanhoNome
/// characters.
///
/// `p` is the place that was found before the player gave the name. The game goes below it where
/// better times have come meanwhile, or where the table could not be read then; one that has no
/// place any more is not entered.
///
/// All of that reaches the file at once. So it is to be called when the player has given the name,
/// not before: until then nothing has moved, and a program that ends meanwhile leaves the ranking
/// as it was, no entry lost or doubled. The file comes out the same as if the places had been moved
/// first. The result says whether it was written; the program does not care.
bool GravaLugar(const QString &arquivo, int p, const QString &nome, int t);

/// The rows of places 1 to 5; entry 0 is unused.
TabelaDe<LinhaRanking, kLugares> LeRanking(const QString &arquivo);
