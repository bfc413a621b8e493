#pragma once

#include "ui/gameplay/play_context.h"

/// The clock on the strip: the distance from HoraInicio to now. Nothing that delays a tick can lose
/// time.
class Relogio
{
public:
    explicit Relogio(const ContextoJogo &jogo) : d(jogo) {}

    /// Shows the game's time; after giving up the time stands as it was.
    void Timer1_Timer();

private:
    ContextoJogo d;
};
