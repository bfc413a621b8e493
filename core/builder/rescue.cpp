#include "core/builder/rescue.h"

#include <algorithm>

namespace {

bool SorteiaPara(Montagem &montagem, const Travessia &travessia, int tentar)
{
    for (int vez = 0; vez < tentar; ++vez) {
        const int k = montagem.SorteiaPergunta();
        const int usada = montagem.JaFoi(k) ? 1 : 0;
        const int pos = travessia.posicoes[k];
        // Whether one draw fits is as good as random, so the parts of the answer are put together
        // without a branch between them. What is below 0 has the sign bit.
        const int sobraAntes = travessia.antes - pos;
        const int sobraDepois = travessia.depois - 1 - (montagem.d.indice.Comprimento(k) - pos);
        if (((pos - 1) | sobraAntes | sobraDepois | -usada) >= 0) {
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
