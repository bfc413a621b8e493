#include "core/files/codepage.h"
#include "core/registry/registry_access.h"
#include "core/registry/registry_store_portable.h"
#include <QDir>

std::unique_ptr<ArmazemRegistro> AbreRegistroDoSistema(const ValoresIniciais &iniciais)
{
    auto armazem = std::make_unique<RegistroPortatil>();
    clsRegistryAccess registro(*armazem);
    registro.WriteDWORD(kChaveDaTela.toString(), kValorAppliedDPI.toString(), iniciais.AppliedDPI);
    // A directory that the registry's code page cannot spell would come back as one that is not
    // there.
    registro.WriteString(kChaveDasPastas.toString(), kValorCache.toString(),
                         CabeNoCodePage(iniciais.Cache) ? iniciais.Cache : QDir::tempPath());
    return armazem;
}
