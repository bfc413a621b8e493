#include "ui/toolkit/keyboard.h"

#include <QKeyEvent>
#include <qpa/qwindowsysteminterface.h>
#include <QWidget>
#include <QWindow>

namespace toolkit {

QWidget *JanelaVisivel(QWidget *janela)
{
    while (janela != nullptr && !janela->isVisible()) {
        janela = janela->parentWidget();
    }
    return janela == nullptr ? nullptr : janela->window();
}

void DevolveTeclado(QWidget &janela)
{
    // A window that belongs to its owner still counts as the owner's part that has the keyboard,
    // and the window manager would not be asked.
    if (janela.windowHandle() != nullptr) {
        janela.windowHandle()->setTransientParent(nullptr);
    }
    if (QWidget *dona = JanelaVisivel(janela.parentWidget())) {
        dona->activateWindow();
    }
}

bool TeclaRepetida(const QEvent &evento)
{
    return evento.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent &>(evento).isAutoRepeat();
}

void DigitaComposto(const QWidget &janela, const QString &texto)
{
    using Fila = QWindowSystemInterface::AsynchronousDelivery;
    QWindowSystemInterface::handleKeyEvent<Fila>(janela.windowHandle(), QEvent::KeyPress,
                                                 Qt::Key_unknown, Qt::NoModifier, texto);
}

} // namespace toolkit
