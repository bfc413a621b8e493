#pragma once

#include "tools/bank_source.h"
#include <QStringList>

/// The rules of the project's own bank, and its source: one entry a line, `PALAVRA<TAB>Pista`,
/// UTF-8, LF. A private list is not held against them.

struct FonteBanco
{
    std::vector<EntradaFonte> entradas;
    /// What breaks a rule, each as "line: reason" in English. Empty where the source is sound.
    QStringList faltas;
};

/// Reads a source and holds each entry against the rules: alphabet and length of words, length and
/// characters of clues, no word and no clue twice, no clue that holds its answer or the answer's
/// stem or that begins and ends with a quotation mark, no two clues that name each other's answers,
/// order of the words by their bytes, no more entries than the bank holds.
FonteBanco LeFonte(const QByteArray &utf8);

/// Capitals without accents: what words are compared by.
QString SemAcentos(const QString &texto);

/// The part of a word that its clue must not hold, without accents: the whole of a short word, else
/// all but the last two letters, at least four.
QString RadicalDe(const QString &palavra);

/// The words of a clue, without accents.
QStringList PalavrasDaDica(const QString &dica);

/// Letters of the shortest answer that another clue gives away by naming it.
inline constexpr int kMenorCitada = 4;
