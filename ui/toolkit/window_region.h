#pragma once

#include <functional>
#include <QRegion>

class QWindow;

namespace toolkit {

/// Whether windows are put together from pictures that they hand over (Wayland): such a window is
/// not cut and cannot move itself, but what is transparent in it shows what lies behind.
[[nodiscard]] bool JanelasCompostas();

/// Cuts a window that exists in the system to `regiao`, which gives the region for a screen of
/// `escala` device pixels to the pixel: Qt's own mask knows only whole pixels of 96 DPI, and would
/// give a screen of twice the resolution corners of twice the coarseness. An empty region leaves
/// the window whole. Where windows are composed only clicks outside the region pass through.
void RecortaJanela(QWindow &janela, const std::function<QRegion(qreal escala)> &regiao);

} // namespace toolkit
