#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// What every source of a question bank comes to, the project's own and a private list: words with
/// their clues. house_rules and own_list read them.

/// The characters that a cell accepts.
inline constexpr char16_t kAlfabeto[] = u"ABCDEFGHIJKLMNOPQRSTUVWXYZÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ0123456789";

/// Letters of the shortest word; the longest has kBytesPalavra.
inline constexpr int kMenorPalavra = 3;

struct EntradaFonte
{
    /// Line of the source, from 1.
    int linha = 0;
    QString palavra;
    QString dica;
};

/// The first character of `palavra` that no cell accepts, "" where all are accepted.
QString LetraRecusada(const QString &palavra);

/// The records of `entradas`, which must be sound: the bytes of a bank's file.
QByteArray CompilaBanco(const std::vector<EntradaFonte> &entradas);
