#pragma once

#include "core/bank/question_bank.h"
#include "core/builder/fill_driver.h"
#include <cstdint>
#include <vector>

/// Puzzles built in a row without a window, as a player would get them.

/// The tables of one run. Large: make it on the heap.
struct Corrida
{
    explicit Corrida(std::uint64_t semente) : acaso(semente) {}

    Tabuleiro tabuleiro;
    BancoPerguntas banco;
    MemoriaUsadas memoria;
    AcasoMersenne acaso;
    ExibicaoMontagem semJanela;
    /// Builds that failed and were begun anew.
    int falhas = 0;
    /// What each puzzle took, restarts included.
    std::vector<double> microssegundos;
};

/// One whole puzzle on an emptied board, restarts included. `indice` is that of the run's bank,
/// which must serve. False where the bank cannot yield one.
[[nodiscard]] bool MontaJogo(Corrida &corrida, const IndiceBanco &indice);
