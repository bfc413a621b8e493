#include "shell/day_clock.h"
#include "shell/steady_clock.h"

#include <gtest/gtest.h>

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

TEST(SegundosContinuos, GoesOnInFractionsAndNeverBack)
{
    // Wait for the clock's next step, however long a step is on this system.
    const double antes = SegundosContinuos();
    double depois = antes;
    while (depois == antes) {
        depois = SegundosContinuos();
    }
    EXPECT_GT(depois, antes);
    EXPECT_LT(depois - antes, 0.9);
}
