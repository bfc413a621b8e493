#pragma once

#include "tools/bank_source.h"

/// Where the project's own bank stands: what the next editor wants to know in a second.
struct FigurasDoBanco
{
    int entradas = 0;
    /// Words of 3, 4, ... letters, the last for 10 and more.
    std::vector<int> porTamanho;
    int dicasDeUmaPalavra = 0;
    /// Clues of three words or fewer: rhythm. Those that begin with an article without its noun ("O
    /// de sebo..."), and bare lists of examples ("Lima, Roma ou Nairóbi"): mannerisms.
    int curtas = 0;
    int elididas = 0;
    int listas = 0;
    double mediaDaDica = 0;
    /// Of `jogos` puzzles in a row with the memory of twenty games, those in which some clue holds
    /// another answer of the same grid, of four letters or more, accents aside.
    int jogos = 0;
    int jogosQueContam = 0;
};

/// Counts over sound entries, and builds `jogos` puzzles of them.
FigurasDoBanco ContaFiguras(const std::vector<EntradaFonte> &entradas, int jogos);
