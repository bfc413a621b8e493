#include "core/machine/sound.h"

void TocaSom(const ValoresPrograma &valores, const Ambiente &ambiente, Som som)
{
    if (valores.SomLigado) {
        const QStringView arquivo = kArquivosDeSom.at(static_cast<size_t>(som));
        ambiente.tocaArquivo(Caminho(valores.PastaPrograma, arquivo));
    }
}
