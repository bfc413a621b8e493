#include "core/builder/placement_tests.h"

#include <algorithm>

namespace {

/// First cell of the last row.
constexpr int kUltimaLinha = kCelulas - kColunas + 1;

int EspacoEsquerda(int ponto)
{
    return ponto < kColunas + 1 ? ponto - 2 : ponto % kColunas - 2;
}

int EspacoDireita(int ponto)
{
    if (ponto < kColunas + 1) {
        return kColunas - ponto;
    }
    if (ponto >= kUltimaLinha) {
        return kCelulas - ponto;
    }
    const int resto = ponto % kColunas;
    return resto == 0 ? 0 : kColunas - resto;
}

int EspacoAcima(int ponto)
{
    if (ponto < kColunas + 1) {
        return 0;
    }
    return ponto / kColunas - (ponto % kColunas > 0 ? 1 : 2);
}

int EspacoAbaixo(int ponto)
{
    return ponto >= kUltimaLinha ? 0 : (kCelulas - ponto) / kColunas;
}

} // namespace

int espaco(int ww_ponto, QChar direcao)
{
    switch (direcao.unicode()) {
    case u'L':
        return EspacoEsquerda(ww_ponto);
    case u'R':
        return EspacoDireita(ww_ponto);
    case u'T':
        return EspacoAcima(ww_ponto);
    case u'D':
        return EspacoAbaixo(ww_ponto);
    default:
        return 0;
    }
}

bool Cabe(int comprimento, int w_ponto, QChar w_sentido)
{
    // A start below 1 comes out of the skeleton's subtraction: it is no cell, and espaco has no
    // case for it.
    if (w_ponto < 1) {
        return false;
    }
    if (w_sentido == u'H') {
        return espaco(w_ponto, u'R') >= comprimento;
    }
    return w_sentido == u'V' && espaco(w_ponto, u'D') >= comprimento;
}

int Vazios(const Tabuleiro &tabuleiro, int i, QChar d)
{
    const bool horizontal = d == u'L' || d == u'R';
    const int limite = espaco(i, d);
    const int tamanho = horizontal ? 1 : kColunas;
    const int passo = d == u'L' || d == u'T' ? -tamanho : tamanho;
    const int lado = horizontal ? kColunas : 1;
    const auto ocupada = [&tabuleiro](int j) { return tabuleiro.Ocupada[j]; };

    int contagem = 0;
    for (int k = 1; k <= limite; ++k) {
        const int j = i + k * passo;
        if (ocupada(j) || (j + lado <= kCelulas && ocupada(j + lado)) ||
            (j - lado >= 1 && ocupada(j - lado))) {
            break;
        }
        ++contagem;
    }
    return contagem;
}

bool jafoi(const QString &palavra, MemoriaUsadas &memoria, const Tabuleiro &tabuleiro)
{
    memoria.QtdUsadas = std::min(memoria.QtdUsadas, kUsadas);
    // The list is read from entry 0 to entry QtdUsadas, one past the words it counts: an empty word
    // always counts as used.
    const auto usadas = memoria.PalavrasUsadas.begin();
    if (std::find(usadas, usadas + memoria.QtdUsadas + 1, palavra) !=
        usadas + memoria.QtdUsadas + 1) {
        return true;
    }
    const auto itens = tabuleiro.ItemPalavra.begin() + 1;
    return std::any_of(itens, itens + tabuleiro.QtdItens,
                       [&palavra](const RegistroItem &item) { return item.Palavra == palavra; });
}
