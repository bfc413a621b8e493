#include "ui/toolkit/window_drag.h"

#include "ui/toolkit/window_region.h"

#include <QWindow>

namespace toolkit {

namespace {

/// Longer than a click takes.
constexpr int kEsperaMs = 200;

} // namespace

Arrasto::Arrasto(QWidget &janela) : m_janela(janela)
{
    m_espera.setSingleShot(true);
    m_espera.setInterval(kEsperaMs);
    QObject::connect(&m_espera, &QTimer::timeout, &janela, [this] {
        // Once the pointer is on its way the system would lose the first step.
        if (QCursor::pos() == m_aperto) {
            EntregaAoSistema();
        }
    });
}

void Arrasto::Pega(const Mouse &mouse)
{
    m_aperto = mouse.aperto;
    m_pegada = mouse.aperto - m_janela.pos();
    m_moveSistema = false;
    m_espera.start();
}

void Arrasto::Move(const Mouse &mouse)
{
    if (m_aperto != mouse.aperto) {
        Pega(mouse);
    }
    if (m_moveSistema || mouse.global == mouse.aperto) {
        return;
    }
    m_espera.stop();
    if (JanelasCompostas()) {
        // Nobody but the system can move a window there.
        EntregaAoSistema();
    } else {
        m_janela.move(mouse.global - m_pegada);
    }
}

void Arrasto::Solta()
{
    m_espera.stop();
    m_aperto.reset();
    m_moveSistema = false;
}

void Arrasto::EntregaAoSistema()
{
    m_moveSistema =
        m_janela.windowHandle() != nullptr && m_janela.windowHandle()->startSystemMove();
}

} // namespace toolkit
