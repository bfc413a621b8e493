#include "builder/rescue.h"

#include "builder/placement_tests.h"

namespace {

/// A cell across which a word can run: `antes` and `depois` are the clear cells on either side of
/// it.
struct Travessia
{
    int celula;
    QChar sentido;
    int antes;
    int depois;
};

Travessia TravessiaDe(const Tabuleiro &tabuleiro, int i)
{
    // A cell where two words cross is offered the direction across, and finds a neighbour in the
    // way.
    const bool desce = tabuleiro.Quadrado[static_cast<size_t>(i)].Sentido == u'H';
    const QChar primeira = desce ? u'T' : u'L';
    const QChar segunda = desce ? u'D' : u'R';
    return {i, desce ? u'V' : u'H', Vazios(tabuleiro, i, primeira), Vazios(tabuleiro, i, segunda)};
}

bool SorteiaPara(Montagem &montagem, const Travessia &travessia, int tentar)
{
    const QChar letra = montagem.d.tabuleiro.Quadrado[static_cast<size_t>(travessia.celula)].Letra;
    const std::uint8_t *posicoes = montagem.d.indice.PrimeirasPosicoes(letra);
    for (int vez = 0; vez < tentar; ++vez) {
        const int k = montagem.SorteiaPergunta();
        if (montagem.JaFoi(k)) {
            continue;
        }
        const int pos = posicoes[k];
        if (pos > 0 && pos - 1 < travessia.antes &&
            montagem.d.indice.Comprimento(k) - pos < travessia.depois) {
            montagem.Poe(k, travessia.celula - (pos - 1) * PassoDe(travessia.sentido),
                         travessia.sentido);
            return true;
        }
    }
    return false;
}

} // namespace

bool encaixadoidao(Montagem &montagem, int tentar)
{
    if (montagem.Completa()) {
        return false;
    }
    const bool crescente = Sorteia(montagem.d.acaso, 50);
    const Tabuleiro &tabuleiro = montagem.d.tabuleiro;
    for (int vez = 1; vez <= kCelulas; ++vez) {
        const int i = crescente ? vez : kCelulas + 1 - vez;
        if (!tabuleiro.Ocupada[static_cast<size_t>(i)]) {
            continue;
        }
        const Travessia travessia = TravessiaDe(tabuleiro, i);
        if (travessia.antes > 0 && travessia.depois > 0 &&
            SorteiaPara(montagem, travessia, tentar)) {
            return true;
        }
    }
    return false;
}
