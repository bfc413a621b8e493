#include "core/machine/day_clock.h"

#include <utility>

RelogioDoDia::RelogioDoDia(QTime horaLocal, std::function<double()> segundosContinuos)
    : m_segundosContinuos(std::move(segundosContinuos)),
      m_avanco(horaLocal.msecsSinceStartOfDay() / 1000.0 - m_segundosContinuos())
{
}

double RelogioDoDia::Agora() const
{
    return m_segundosContinuos() + m_avanco;
}
