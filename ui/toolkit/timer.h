#pragma once

#include "ui/toolkit/control.h"

#include <QTimer>

namespace toolkit {

/// A timer of a form: fires every Interval milliseconds while it is enabled.
class Timer final : public Control
{
public:
    explicit Timer(const Origem &origem);

    [[nodiscard]] bool Ligado() const { return m_timer.isActive(); }
    /// Enabling a timer that runs leaves it running as it was.
    void SetLigado(bool ligado);
    void SetInterval(int ms) { m_timer.setInterval(ms); }
    [[nodiscard]] int Interval() const { return m_timer.interval(); }

    std::function<void()> Tique;

    [[nodiscard]] bool TemTamanho() const override { return false; }
    [[nodiscard]] bool TemFonte() const override { return false; }

private:
    QTimer m_timer;
};

/// A control without a role on the screen that only has a place, such as a helper of its form.
class Helper final : public Control
{
public:
    using Control::Control;
    [[nodiscard]] bool TemFonte() const override { return false; }
};

} // namespace toolkit
