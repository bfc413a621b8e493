#include "builder/rescue.h"

#include <algorithm>

namespace {

bool SorteiaPara(Montagem &montagem, const Travessia &travessia, int tentar)
{
    for (int vez = 0; vez < tentar; ++vez) {
        const int k = montagem.SorteiaPergunta();
        if (montagem.JaFoi(k)) {
            continue;
        }
        const int pos = travessia.posicoes[k];
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
    const auto &travessias = montagem.Travessias();
    const auto tenta = [&montagem, tentar](const Travessia &travessia) {
        return SorteiaPara(montagem, travessia, tentar);
    };
    return crescente ? std::any_of(travessias.begin(), travessias.end(), tenta)
                     : std::any_of(travessias.rbegin(), travessias.rend(), tenta);
}
