#pragma once

#include "tools/monta_options.h"
#include "tools/paper/sheet.h"
#include <QByteArray>

/// The puzzles of a run in the format asked for, piece by piece: the beginning, each puzzle, the
/// end.
class Escritor
{
public:
    /// `opcoes` must outlive it; `perguntas` is the number of the bank's entries.
    Escritor(const OpcoesMonta &opcoes, int perguntas);

    [[nodiscard]] QByteArray Inicio() const;
    /// Puzzle number `jogo` of the run, from 1.
    [[nodiscard]] QByteArray Jogo(int jogo, const Tabuleiro &tabuleiro);
    [[nodiscard]] QByteArray Fim() const;

private:
    const OpcoesMonta &m_opcoes;
    OrigemFolha m_origem;
    /// All solutions stand behind the last sheet, so that the sheets alone can be printed.
    QByteArray m_solucoes;
};
