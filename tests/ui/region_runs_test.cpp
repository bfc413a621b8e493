#include "ui/window/region_runs.h"

#include <gtest/gtest.h>

#include "core/machine/chance.h"
#include <array>

namespace {

constexpr std::uint32_t kVermelho = 0xFF0000;

/// The slow way: each pixel for itself, glued to the run before it where the two touch.
std::vector<TrechoDaFigura> Devagar(const PixelsDaFigura &figura, std::uint32_t cor)
{
    std::vector<TrechoDaFigura> trechos;
    for (int k = 0; k < figura.largura * figura.altura; ++k) {
        const int x = k % figura.largura, y = k / figura.largura;
        const auto onde = static_cast<std::size_t>(y) * figura.passo + static_cast<std::size_t>(x);
        if (figura.pixels[onde] % 0x1000000 == cor) continue;
        if (!trechos.empty() && trechos.back().y == y && trechos.back().x1 == x)
            ++trechos.back().x1;
        else
            trechos.push_back({y, x, x + 1});
    }
    return trechos;
}

} // namespace

TEST(TrechosDaFigura, CutsOutExactlyTheKeyColourAsTheSlowWayDoes)
{
    constexpr std::array<std::uint32_t, 4> kQuase = {0xFFFF0001, 0xFFFE0000, 0xFFFF0100, 0x345678};
    AcasoMersenne acaso(20);
    for (int jogo = 0; jogo < 300; ++jogo) {
        const int largura = SorteiaNumero(acaso, 12);
        const int altura = SorteiaNumero(acaso, 6);
        const auto passo = static_cast<std::size_t>(largura + SorteiaNumero(acaso, 3) - 1);
        // Without the gap behind the last row, which a picture need not have.
        std::vector<std::uint32_t> pixels(passo * static_cast<std::size_t>(altura - 1) +
                                          static_cast<std::size_t>(largura));
        for (auto &pixel : pixels)
            pixel = Sorteia(acaso, jogo % 102) ? kVermelho | (Sorteia(acaso, 50) ? 0xFF000000 : 0)
                                               : kQuase[static_cast<std::size_t>(jogo) % 4];
        const PixelsDaFigura figura{pixels, largura, altura, passo};
        const std::uint32_t cor = jogo % 2 == 0 ? kVermelho : 0xFF000000 | kVermelho;
        ASSERT_EQ(TrechosDaFigura(figura, cor), Devagar(figura, kVermelho)) << jogo;
    }
}

TEST(TrechosDaFigura, GivesNothingWhereThereIsNoShape)
{
    struct Caso
    {
        int largura, altura;
        std::size_t passo, quantos;
        bool da;
    };
    const std::vector<std::uint32_t> pixels(32768, kVermelho);
    for (const auto &[largura, altura, passo, quantos, da] :
         std::vector<Caso>{{32767, 1, 32767, 32767, true},
                           {1, 32767, 1, 32767, true},
                           {32768, 1, 32768, 32768, false},
                           {1, 32768, 1, 32768, false},
                           {0, 0, 0, 0, false},
                           {0, 5, 0, 0, false},
                           {-1, 1, 1, 1, false},
                           {4, 2, 3, 100, false},
                           {4, 2, 5, 8, false},
                           {4, 32767, ~std::size_t{0}, 100, false}}) {
        const std::span<const std::uint32_t> parte = std::span(pixels).first(quantos);
        EXPECT_EQ(TrechosDaFigura({parte, largura, altura, passo}, kVermelho).has_value(), da)
            << largura << ' ' << altura << ' ' << passo;
    }
}
