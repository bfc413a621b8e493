#include "core/machine/steady_clock.h"

#include <ctime>

double SegundosContinuos()
{
    // The one clock of the system that goes on in suspend.
    timespec agora{};
    clock_gettime(CLOCK_BOOTTIME, &agora);
    return static_cast<double>(agora.tv_sec) + static_cast<double>(agora.tv_nsec) * 1e-9;
}
