#include "ui/toolkit/window_region.h"

#include <QGuiApplication>
#include <qpa/qplatformwindow.h>
#include <QWindow>

namespace toolkit {

bool JanelasCompostas()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void RecortaJanela(QWindow &janela, const std::function<QRegion(qreal escala)> &regiao)
{
    if (QPlatformWindow *nativa = janela.handle()) {
        // Some systems count in pixels that they scale themselves.
        nativa->setMask(regiao(janela.devicePixelRatio() / nativa->devicePixelRatio()));
    }
}

} // namespace toolkit
