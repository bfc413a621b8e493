#pragma once

#include <QByteArray>
#include <QStringList>

/// How well a bank plays, found out by building puzzles with it.

inline constexpr int kJogosDoJulgamento = 200;

struct JulgamentoBanco
{
    /// Different words in the bank.
    int palavras = 0;
    /// Puzzles built, one after the other, with the memory of used words.
    int jogos = 0;
    /// False where a puzzle could not be built: the next one after `jogos`.
    bool serve = false;
    /// Builds that failed and were begun anew.
    int falhas = 0;
    /// Words of a puzzle that the one before it had, on average.
    double repetidas = 0;
    /// After how many games a word comes back: the median. 0 where none has come back.
    int volta = 0;
};

/// Builds `jogos` puzzles with a bank's records, always by the same seed, and stops at the first
/// that cannot be built.
JulgamentoBanco JulgaBanco(const QByteArray &registros, int jogos = kJogosDoJulgamento);

/// The judgement in Portuguese, one statement a line; the last says whether the bank will do. Only
/// why not, where it will not.
QStringList FalaJulgamentoBanco(const JulgamentoBanco &julgamento);
