#pragma once

#include <cstdint>
#include <optional>
#include <QStringList>
#include <variant>

/// What monta is asked for.

enum class Formato { Tsv, Texto, Html, Ipuz };

struct OpcoesMonta
{
    QString banco;
    std::uint64_t semente = 0;
    int jogos = 1;
    bool memoria = false;
    bool quieto = false;
    Formato formato = Formato::Tsv;
    QString titulo = QStringLiteral("Palavras cruzadas");
    /// Whether the letters are shown: with the grid in a text, on pages at the end of an HTML file.
    bool solucao = false;
    /// File that the puzzles go to; empty for the standard output.
    QString saida;
};

/// The options of a command line, or what is wrong with it, in Portuguese. A bank alone, as it is
/// dropped on the program, asks for one sheet beside it, with a seed of its own.
std::variant<OpcoesMonta, QString> LeOpcoesMonta(const QStringList &argumentos);
