#include "core/machine/day_clock.h"
#include "core/machine/steady_clock.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <utility>

TEST(RelogioDoDia, CountsOnFromTheTimeOfDayAtStart)
{
    double continuos = 5000.25; // any origin
    const RelogioDoDia relogio(QTime(23, 59, 58, 500), [&] { return continuos; });
    EXPECT_DOUBLE_EQ(relogio.Agora(), 86398.5);
    continuos += 0.25;
    EXPECT_DOUBLE_EQ(relogio.Agora(), 86398.75);
    continuos += 3600;
    EXPECT_DOUBLE_EQ(relogio.Agora(), 89998.75); // midnight is no event
}

TEST(SegundosContinuos, CountsSecondsAsAnotherSteadyClockDoes)
{
    // However long the machine stalls: one interval of the other clock lies round ours, one inside
    // it.
    constexpr double kPassoDoRelogio = 0.02;
    QElapsedTimer fora;
    QElapsedTimer dentro;
    fora.start();
    const double antes = SegundosContinuos();
    dentro.start();
    double agora = antes;
    while (dentro.elapsed() < 60) {
        const double anterior = std::exchange(agora, SegundosContinuos());
        ASSERT_GE(agora, anterior);
    }
    const double menos = static_cast<double>(dentro.nsecsElapsed()) * 1e-9;
    const double passados = SegundosContinuos() - antes;
    const double mais = static_cast<double>(fora.nsecsElapsed()) * 1e-9;
    EXPECT_GE(passados, menos - kPassoDoRelogio);
    EXPECT_LE(passados, mais + kPassoDoRelogio);
}
