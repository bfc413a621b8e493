#include "tests/core/fuzz_files.h"

#include <gtest/gtest.h>

TEST(Fuzz, DamagedFilesBreakNoReader)
{
    for (const auto &alvo : Alvos()) {
        Dado dado(20240607);
        for (int rodada = 0; rodada < 800; ++rodada) {
            const auto quebra = RodadaDeFuzz(alvo, dado);
            ASSERT_TRUE(quebra.isEmpty()) << "round " << rodada << ' ' << quebra.toStdString();
        }
    }
}
