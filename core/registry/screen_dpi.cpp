#include "core/registry/screen_dpi.h"

#include "core/registry/registry_access.h"

int LeAppliedDPI(const ValoresPrograma &valores)
{
    return valores.registro->ReadDWORD(kChaveDaTela.toString(), kValorAppliedDPI.toString(), -1);
}
