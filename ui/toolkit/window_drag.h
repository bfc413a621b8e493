#pragma once

#include "ui/toolkit/control.h"

#include <optional>
#include <QTimer>

namespace toolkit {

/// Moves a window exactly the pointer's way while the left button is down.
///
/// Where the button rests for a moment before it moves, the system takes over, as if the title bar
/// had been grabbed. Not before: a system that hears of a press whose button is up again would
/// never let the window go. What is quicker is moved from here.
class Arrasto
{
public:
    /// `janela` must outlive it.
    explicit Arrasto(QWidget &janela);

    /// The left button has gone down on a drag strip.
    void Pega(const Mouse &mouse);
    /// The pointer has moved with the left button down.
    void Move(const Mouse &mouse);
    /// The button is no longer down.
    void Solta();

private:
    void EntregaAoSistema();

    QWidget &m_janela;
    QTimer m_espera;
    /// The press that the drag under way goes back to, and where it holds the window.
    std::optional<QPoint> m_aperto;
    QPoint m_pegada;
    bool m_moveSistema = false;
};

} // namespace toolkit
