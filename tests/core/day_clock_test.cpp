#include "core/machine/day_clock.h"
#include "core/machine/program_state.h"
#include "core/machine/steady_clock.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

TEST(RelogioDoDia, CountsOnFromTheTimeOfDayAtStart)
{
    double continuos = 5000.25; // any origin
    const RelogioDoDia relogio(QTime(23, 59, 58, 500), [&] { return continuos; });
    EXPECT_DOUBLE_EQ(relogio.Agora(), 86398.5);
    continuos += 3600.25;
    EXPECT_DOUBLE_EQ(relogio.Agora(), 89998.75); // midnight is no event
    ValoresPrograma valores;
    valores.HoraInicio = 86398.25;
    EXPECT_EQ(SegundosDeJogo(valores, relogio.Agora()), 3600);
    EXPECT_EQ(SegundosDeJogo(valores, 86398.0), 0) << "a start that lies a moment ahead";
}

TEST(SegundosContinuos, CountsSecondsAsAnotherSteadyClockDoes)
{
    // However long the machine stalls: one interval of the other clock lies round ours, one inside.
    QElapsedTimer fora;
    QElapsedTimer dentro;
    fora.start();
    const double antes = SegundosContinuos();
    dentro.start();
    while (dentro.elapsed() < 60) {
        const double agora = SegundosContinuos();
        ASSERT_GE(SegundosContinuos(), agora);
    }
    const double menos = static_cast<double>(dentro.nsecsElapsed()) * 1e-9;
    const double passados = SegundosContinuos() - antes;
    EXPECT_GE(passados, menos - 0.02);
    EXPECT_LE(passados, static_cast<double>(fora.nsecsElapsed()) * 1e-9 + 0.02);
}
