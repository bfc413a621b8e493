#include "bank/used_words.h"

#include "app/board.h"
#include <algorithm>

void EmpurraUsadas(MemoriaUsadas &memoria, const Tabuleiro &tabuleiro)
{
    auto &usadas = memoria.PalavrasUsadas;
    std::move_backward(usadas.begin() + 1, usadas.end() - kItens, usadas.end());
    for (size_t k = 1; k <= kItens; ++k) {
        const bool posta = static_cast<int>(k) <= tabuleiro.QtdItens;
        usadas[k] = posta ? tabuleiro.ItemPalavra[k].Palavra : QString();
    }
    memoria.QtdUsadas = static_cast<int>(std::count_if(
        usadas.begin(), usadas.end(), [](const QString &palavra) { return !palavra.isEmpty(); }));
}
