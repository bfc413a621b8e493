#include "gameplay/clock.h"

#include "shell/shared_routines.h"

void Relogio::Timer1_Timer()
{
    if (!d.valores.Desistiu) {
        d.c.Label2.SetCaption(FormataTempo(SegundosDeJogo(d.valores, d.ambiente.Agora())));
    }
}
