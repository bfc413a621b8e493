#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

/// The question bank's source: one entry a line, `PALAVRA<TAB>Pista`, UTF-8, LF.

struct EntradaFonte
{
    /// Line of the source, from 1.
    int linha = 0;
    QString palavra;
    QString dica;
};

struct FonteBanco
{
    std::vector<EntradaFonte> entradas;
    /// What breaks a rule, each as "line: reason" in English. Empty where the source is sound.
    QStringList faltas;
};

/// Reads a source and holds each entry against the rules that keep the game playable: alphabet and
/// length of words, length and characters of clues, no word and no clue twice, no clue that holds
/// its answer or the answer's stem, order of the words by their bytes, no more entries than the
/// bank holds.
FonteBanco LeFonte(const QByteArray &utf8);

/// Capitals without accents: what words are compared by.
QString SemAcentos(const QString &texto);

/// The part of a word that its clue must not hold, without accents: the whole of a short word, else
/// all but the last two letters, at least four.
QString RadicalDe(const QString &palavra);

/// The words of a clue, without accents.
QStringList PalavrasDaDica(const QString &dica);

/// The records of `entradas`, which must be sound: the bytes of a bank's file.
QByteArray CompilaBanco(const std::vector<EntradaFonte> &entradas);
