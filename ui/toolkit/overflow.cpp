#include "ui/toolkit/overflow.h"

#include <QEvent>
#include <QScreen>

namespace toolkit {

Transbordo::Transbordo(const PictureBox &caixa)
    : QWidget(caixa.Widget()->window(), Qt::ToolTip | Qt::FramelessWindowHint |
                                            Qt::WindowTransparentForInput |
                                            Qt::WindowDoesNotAcceptFocus),
      m_alvo(*caixa.Widget())
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_alvo.installEventFilter(this);
}

bool Transbordo::eventFilter(QObject *alvo, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        Acompanha();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(alvo, evento);
}

void Transbordo::Acompanha()
{
    const QWidget *janela = m_alvo.window();
    const QRect lugar(m_alvo.mapTo(janela, QPoint()), m_alvo.size());
    // A box that lies wholly outside is kept there on purpose.
    if (!m_alvo.isVisible() || janela->rect().contains(lugar) ||
        !janela->rect().intersects(lugar)) {
        hide();
        return;
    }
    const QRect tela = janela->screen()->geometry();
    QRect global = lugar.translated(janela->mapToGlobal(QPoint()));
    global.moveRight(qMin(global.right(), tela.right()));
    global.moveBottom(qMin(global.bottom(), tela.bottom()));
    global.moveLeft(qMax(global.left(), tela.left()));
    global.moveTop(qMax(global.top(), tela.top()));
    setGeometry(global);
    show();
    update();
}

void Transbordo::paintEvent(QPaintEvent * /*evento*/)
{
    m_alvo.render(this);
}

} // namespace toolkit
