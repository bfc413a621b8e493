#include "core/machine/steady_clock.h"

#include <chrono>

double SegundosContinuos()
{
    const auto agora = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(agora).count();
}
