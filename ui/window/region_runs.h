#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The shape of a window, cut from its background picture.

/// Highest width and height, in pixels, of a picture that gives a shape.
inline constexpr int kLadoMaximoDaFigura = 32767;

/// A picture's pixels, each 0xAARRGGBB, row by row from the top.
struct PixelsDaFigura
{
    std::span<const std::uint32_t> pixels;
    int largura = 0;
    int altura = 0;
    /// Pixels from the start of one row to the start of the next, `largura` at least.
    std::size_t passo = 0;
};

/// Pixels x0 to x1 - 1 of row y that lie inside the window; y and x from 0.
struct TrechoDaFigura
{
    int y = 0;
    int x0 = 0;
    int x1 = 0;

    bool operator==(const TrechoDaFigura &) const = default;
};

/// The parts of the picture that have not the key colour `cor` (0x00RRGGBB), row by row and from
/// left to right, as long as they can be. Colours are compared exactly, the alpha of both counts
/// for nothing.
///
/// No entries for a picture of key pixels alone. Nothing at all where no shape can be made: the
/// picture has no pixels, fewer than its sides say, or a side above kLadoMaximoDaFigura.
std::optional<std::vector<TrechoDaFigura>> TrechosDaFigura(const PixelsDaFigura &figura,
                                                           std::uint32_t cor);
