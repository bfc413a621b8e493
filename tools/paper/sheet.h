#pragma once

#include "core/board/board.h"
#include <cstdint>
#include <QString>
#include <vector>

/// A finished puzzle as paper wants it: only the part of the board that is in use, and the clues by
/// direction. Words keep the numbers of the board.

struct PalavraFolha
{
    int numero = 0;
    QString palavra;
    QString dica;
};

struct CasaFolha
{
    /// Null where no word passes.
    QChar letra;
    /// Number of the word that begins here, 0 for none. Two words can begin in one cell.
    int horizontal = 0;
    int vertical = 0;
    /// Some word goes on from here to the right or downwards. Cells that touch without it belong to
    /// words that have nothing to do with each other.
    bool seguePraDireita = false;
    bool seguePraBaixo = false;

    [[nodiscard]] bool Existe() const { return !letra.isNull(); }
};

/// Where a sheet comes from, so that the same one can be made again.
struct OrigemFolha
{
    QString titulo;
    /// Name of the bank's file, without its folder, and the number of its entries.
    QString banco;
    int perguntas = 0;
    std::uint64_t semente = 0;
    /// Number of the puzzle in the run of that seed, from 1.
    int jogo = 1;
    /// The run kept used words away.
    bool memoria = false;
};

struct Folha
{
    int linhas = 0;
    int colunas = 0;
    /// Row by row.
    std::vector<CasaFolha> casas;
    std::vector<PalavraFolha> horizontais;
    std::vector<PalavraFolha> verticais;

    /// The cell of a row and a column, both from 0; an empty one outside.
    [[nodiscard]] CasaFolha Casa(int linha, int coluna) const;
};

/// The sheet of a board with at least one word.
Folha FazFolha(const Tabuleiro &tabuleiro);

/// The small print, in one line.
QString FalaOrigem(const OrigemFolha &origem);
