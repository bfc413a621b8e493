#include "core/machine/steady_clock.h"

#include <windows.h>

double SegundosContinuos()
{
    // Milliseconds in steps of about 15, and it goes on in suspend, which the finer counters do not
    // promise.
    return static_cast<double>(GetTickCount64()) / 1000.0;
}
