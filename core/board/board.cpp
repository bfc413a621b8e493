#include "core/board/board.h"

#include <algorithm>

ItensDaCelula LeItens(const QString &itens)
{
    const auto virgula = itens.indexOf(u',');
    if (virgula < 0) {
        return {itens.toInt(), 0};
    }
    return {itens.first(virgula).toInt(), itens.sliced(virgula + 1).left(3).toInt()};
}

void ZeraTabuleiro(Tabuleiro &tabuleiro)
{
    for (int n = 1; n <= kItens; ++n) {
        tabuleiro.ItemPalavra[n].ItemResolvido = false;
    }
    for (auto &celula : tabuleiro.Quadrado) {
        celula.Itens.clear();
        celula.Fixa = false;
    }
    tabuleiro.Ocupada.fill(false);
    ++tabuleiro.Partida;
}

int ContaResolvidos(const Tabuleiro &tabuleiro)
{
    return static_cast<int>(
        std::count_if(tabuleiro.ItemPalavra.begin() + 1, tabuleiro.ItemPalavra.end(),
                      [](const RegistroItem &item) { return item.ItemResolvido; }));
}

int PrimeiroAberto(const Tabuleiro &tabuleiro, int desde)
{
    const auto comeco = tabuleiro.ItemPalavra.begin();
    const auto aberto = std::find_if(comeco + desde, tabuleiro.ItemPalavra.end(),
                                     [](const RegistroItem &item) { return !item.ItemResolvido; });
    return aberto == tabuleiro.ItemPalavra.end() ? 0 : static_cast<int>(aberto - comeco);
}
