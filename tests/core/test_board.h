#pragma once

#include "core/board/board.h"

/// A complete board of 26 words that fit: twenty lie in the first column's rows, six stand across
/// them. `jogo` tells the clues of one game from those of another.
inline Tabuleiro TabuleiroDeTeste(int jogo = 1)
{
    const QString letras = QStringLiteral("ÁÇÃODEFGHI");
    Tabuleiro tabuleiro;
    for (int n = 1; n <= kItens; ++n) {
        auto &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        const int coluna = n - 21;
        item.Sentido = n <= 20 ? u'H' : u'V';
        item.Ponto = n <= 20 ? kColunas * (n - 1) + 1 : 2 * kColunas + coluna + 1;
        item.Palavra = n <= 20 ? letras.left(5 + n % 6) : QString(4 + coluna, letras[coluna]);
        item.Dica = QStringLiteral("Dica %1 do jogo %2").arg(n).arg(jogo);
        item.ItemResolvido = n % 3 == 0;
    }
    tabuleiro.QtdItens = kItens;
    return tabuleiro;
}
