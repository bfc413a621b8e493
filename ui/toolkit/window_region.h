#pragma once

#include <QRegion>

class QWindow;

namespace toolkit {

/// Cuts a window that exists in the system to `regiao`, in device pixels: Qt's own mask knows only
/// whole pixels of 96 DPI, and would give a screen of twice the resolution corners of twice the
/// coarseness. An empty region leaves the window whole.
void RecortaJanela(QWindow &janela, const QRegion &regiao);

} // namespace toolkit
