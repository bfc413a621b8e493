#include "core/builder/build_attempts.h"

#include "core/board/board.h"
#include <algorithm>

namespace {
constexpr int kFalhasToleradas = 50;
}

TentativasMontagem::Decisao TentativasMontagem::Falhou(MemoriaUsadas &memoria)
{
    ++m_falhas;
    if (memoria.QtdUsadas == 0) {
        ++m_falhasSemMemoria;
        return m_falhasSemMemoria < kFalhasToleradas ? Decisao::TentarDeNovo : Decisao::Desistir;
    }
    if (m_falhas > kFalhasToleradas) {
        memoria.QtdUsadas = std::max(0, memoria.QtdUsadas - kItens);
    }
    return Decisao::TentarDeNovo;
}
