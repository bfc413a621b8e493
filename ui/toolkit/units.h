#pragma once

#include <QColor>

/// Units and colours of the forms.
///
/// Lengths on a form are twips, 1440 to the inch: 15 to the pixel on a screen of 96 DPI. Some
/// picture boxes count what lies in them in pixels.

namespace toolkit {

inline constexpr float kTwipsPorPolegada = 1440.0F;
inline constexpr int kDpiPadrao = 96;

/// How many twips a pixel measures at `dpi` dots per inch.
constexpr float TwipsPorPixel(int dpi)
{
    return kTwipsPorPolegada / static_cast<float>(dpi);
}

inline constexpr QColor kPreto = QColor(0, 0, 0);
inline constexpr QColor kBranco = QColor(255, 255, 255);

} // namespace toolkit
