#include "ui/gameplay/clock.h"

#include "core/machine/shared_routines.h"

void Relogio::Timer1_Timer()
{
    if (!d.valores.Desistiu) {
        d.c.Label2.SetCaption(FormataTempo(SegundosDeJogo(d.valores, d.ambiente.Agora())));
    }
}
