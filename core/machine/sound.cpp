#include "core/machine/sound.h"

void TocaSom(const ValoresPrograma &valores, const Ambiente &ambiente, QStringView nome)
{
    if (valores.SomLigado) {
        ambiente.tocaArquivo(Caminho(valores.PastaPrograma, nome));
    }
}
