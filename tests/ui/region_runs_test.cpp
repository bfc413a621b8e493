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
    for (int y = 0; y < figura.altura; ++y) {
        for (int x = 0; x < figura.largura; ++x) {
            const std::size_t k =
                static_cast<std::size_t>(y) * figura.passo + static_cast<std::size_t>(x);
            if (figura.pixels[k] % 0x1000000 == cor) {
                continue;
            }
            if (!trechos.empty() && trechos.back().y == y && trechos.back().x1 == x) {
                ++trechos.back().x1;
            } else {
                trechos.push_back({y, x, x + 1});
            }
        }
    }
    return trechos;
}

} // namespace

TEST(TrechosDaFigura, CutsOutExactlyTheKeyColour)
{
    const std::array<std::uint32_t, 12> pixels = {
        0xFFFF0000, 0xFFFE0000, 0xFFFF0000, 0x12345678, // the fourth column lies behind the picture
        0x00FF0000, 0xFFFF0000, 0xFFFF0000, 0x12345678, //
        0xFFFF0001, 0xFF00FF00, 0xFFFF0100, 0x12345678};
    const PixelsDaFigura figura{pixels, 3, 3, 4};
    const std::vector<TrechoDaFigura> esperado = {{0, 1, 2}, {2, 0, 3}};
    EXPECT_EQ(TrechosDaFigura(figura, kVermelho), esperado);
    EXPECT_EQ(TrechosDaFigura(figura, 0xFF000000 | kVermelho), esperado);
}

TEST(TrechosDaFigura, GivesWhatTheSlowWayGives)
{
    AcasoMersenne acaso(20);
    for (int jogo = 0; jogo < 300; ++jogo) {
        const int largura = SorteiaNumero(acaso, 12);
        const int altura = SorteiaNumero(acaso, 6);
        const auto passo = static_cast<std::size_t>(largura + SorteiaNumero(acaso, 3) - 1);
        // Without the gap behind the last row, which a picture need not have.
        std::vector<std::uint32_t> pixels(passo * static_cast<std::size_t>(altura - 1) +
                                          static_cast<std::size_t>(largura));
        for (auto &pixel : pixels) {
            pixel = Sorteia(acaso, jogo % 102) ? 0xFF000000 | kVermelho : 0xFFFF0001;
        }
        const PixelsDaFigura figura{pixels, largura, altura, passo};
        ASSERT_EQ(TrechosDaFigura(figura, kVermelho), Devagar(figura, kVermelho)) << jogo;
    }
}

TEST(TrechosDaFigura, GivesNothingWhereThereIsNoShape)
{
    const std::vector<std::uint32_t> pixels(32768, kVermelho);
    const auto da = [&](int largura, int altura, std::size_t passo, std::size_t quantos) {
        return TrechosDaFigura({std::span(pixels).first(quantos), largura, altura, passo},
                               kVermelho)
            .has_value();
    };
    EXPECT_TRUE(da(32767, 1, 32767, 32767));
    EXPECT_TRUE(da(1, 32767, 1, 32767));
    EXPECT_FALSE(da(32768, 1, 32768, 32768));
    EXPECT_FALSE(da(1, 32768, 1, 32768));
    EXPECT_FALSE(da(0, 0, 0, 0));
    EXPECT_FALSE(da(0, 5, 0, 0));
    EXPECT_FALSE(da(-1, 1, 1, 1));
    EXPECT_FALSE(da(4, 2, 3, 100));
    EXPECT_FALSE(da(4, 2, 5, 8));
    EXPECT_FALSE(da(4, 32767, ~std::size_t{0}, 100));
}
