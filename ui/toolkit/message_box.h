#pragma once

#include "core/machine/ambiente.h"

class QWidget;

namespace toolkit {

/// Shows a message box under `titulo` on the window that is active, and waits. Its buttons are in
/// Portuguese whatever the system's language; the first is the default, Esc answers the last.
Resposta MostraMensagem(const QString &titulo, const PedidoMensagem &pedido);

} // namespace toolkit
