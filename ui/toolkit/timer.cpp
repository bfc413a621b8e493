#include "ui/toolkit/timer.h"

namespace toolkit {

Timer::Timer(const Origem &origem) : Control(origem)
{
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] {
        if (Tique) {
            Tique();
        }
    });
}

void Timer::SetLigado(bool ligado)
{
    if (ligado && !m_timer.isActive()) {
        m_timer.start();
    } else if (!ligado) {
        m_timer.stop();
    }
}

} // namespace toolkit
