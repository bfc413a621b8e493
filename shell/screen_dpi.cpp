#include "shell/screen_dpi.h"

#include "shell/registry_access.h"

int LeAppliedDPI(const ValoresPrograma &valores)
{
    return valores.registro->ReadDWORD(kChaveDaTela.toString(), kValorAppliedDPI.toString(), -1);
}
