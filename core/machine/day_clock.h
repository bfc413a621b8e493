#pragma once

#include <functional>
#include <QTime>

/// The game's clock: seconds of the day on which it was started, counted on without an end.
class RelogioDoDia
{
public:
    /// `horaLocal` is the local time of day at this moment; `segundosContinuos` gives seconds from
    /// any origin that never go back (SegundosContinuos in the program).
    RelogioDoDia(QTime horaLocal, std::function<double()> segundosContinuos);

    /// Seconds, with fractions, since the local midnight that began the day on which the object was
    /// made. Midnight is no event: the second day starts at 86,400. Changes of the system's clock
    /// do not show.
    [[nodiscard]] double Agora() const;

private:
    std::function<double()> m_segundosContinuos;
    /// What Agora() is ahead of the continuous seconds.
    double m_avanco;
};
