#include "tests/core/fuzz_files.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

/// fuzz_files SECONDS [SEED]: damages files and proves all readers, each for its share of the time.
/// Exit status 1 and the bytes on stderr at the first promise broken.
int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fputs("usage: fuzz_files SECONDS [SEED]\n", stderr);
        return 2;
    }
    const auto alvos = Alvos();
    const std::chrono::duration<double> parte(std::atof(argv[1]) /
                                              static_cast<double>(alvos.size()));
    const auto semente = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    for (const auto &alvo : alvos) {
        Dado dado(semente);
        const auto fim = std::chrono::steady_clock::now() + parte;
        long rodadas = 0;
        for (; std::chrono::steady_clock::now() < fim; ++rodadas) {
            const auto quebra = RodadaDeFuzz(alvo, dado);
            if (!quebra.isEmpty()) {
                std::fprintf(stderr, "round %ld, seed %llu: %s\n", rodadas, semente,
                             qPrintable(quebra));
                return 1;
            }
        }
        std::printf("%s: %ld rounds\n", alvo.nome, rodadas);
        std::fflush(stdout);
    }
    return 0;
}
