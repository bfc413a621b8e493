#include "ui/window/region_runs.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kSemAlfa = 0x00FFFFFF;

bool LadoServe(int lado)
{
    return lado >= 1 && lado <= kLadoMaximoDaFigura;
}

bool FiguraServe(const PixelsDaFigura &figura)
{
    if (!LadoServe(figura.largura) || !LadoServe(figura.altura)) {
        return false;
    }
    const auto largura = static_cast<std::size_t>(figura.largura);
    const auto linhasAntes = static_cast<std::size_t>(figura.altura - 1);
    // Divided, not multiplied, since the step may be any number.
    return figura.passo >= largura && figura.pixels.size() >= largura &&
           (figura.pixels.size() - largura) / figura.passo >= linhasAntes;
}

void JuntaLinha(std::span<const std::uint32_t> linha, int y, std::uint32_t cor,
                std::vector<TrechoDaFigura> &trechos)
{
    const auto fora = [cor](std::uint32_t pixel) { return (pixel & kSemAlfa) == cor; };
    const auto coluna = [linha](auto posicao) { return static_cast<int>(posicao - linha.begin()); };
    auto inicio = std::find_if_not(linha.begin(), linha.end(), fora);
    while (inicio != linha.end()) {
        const auto fim = std::find_if(inicio, linha.end(), fora);
        trechos.push_back({y, coluna(inicio), coluna(fim)});
        inicio = std::find_if_not(fim, linha.end(), fora);
    }
}

} // namespace

std::optional<std::vector<TrechoDaFigura>> TrechosDaFigura(const PixelsDaFigura &figura,
                                                           std::uint32_t cor)
{
    if (!FiguraServe(figura)) {
        return std::nullopt;
    }
    std::vector<TrechoDaFigura> trechos;
    for (int y = 0; y < figura.altura; ++y) {
        const auto linha = figura.pixels.subspan(static_cast<std::size_t>(y) * figura.passo,
                                                 static_cast<std::size_t>(figura.largura));
        JuntaLinha(linha, y, cor & kSemAlfa, trechos);
    }
    return trechos;
}
