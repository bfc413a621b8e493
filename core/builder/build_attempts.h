#pragma once

#include "core/bank/used_words.h"

/// Counts the failed builds of one attempt at a new game, so that no bank lets it go on for ever.
///
/// After 50 failures in a row each further one forgets the oldest 26 used words, down to none; 50
/// failed builds with none left end the attempt.
class TentativasMontagem
{
public:
    enum class Decisao { TentarDeNovo, Desistir };

    /// A build has failed. Lowers `memoria.QtdUsadas` where old words are to be forgotten; the
    /// words themselves and the file stay as they are.
    [[nodiscard]] Decisao Falhou(MemoriaUsadas &memoria);

    /// Builds that failed so far.
    [[nodiscard]] int Falhas() const { return m_falhas; }

private:
    int m_falhas = 0;
    int m_falhasSemMemoria = 0;
};
