#include "ui/toolkit/window_region.h"

#include <qpa/qplatformwindow.h>
#include <QWindow>

namespace toolkit {

void RecortaJanela(QWindow &janela, const QRegion &regiao)
{
    if (QPlatformWindow *nativa = janela.handle()) {
        nativa->setMask(regiao);
    }
}

} // namespace toolkit
