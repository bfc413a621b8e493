#pragma once

class QEvent;
class QWidget;

namespace toolkit {

/// The nearest window that shows, from that of `janela` up its owners; null if there is none.
[[nodiscard]] QWidget *JanelaVisivel(QWidget *janela);

/// `janela` has gone: gives the keyboard to the nearest of its owners that still shows. The system
/// alone does not always find it, above all where two windows go in the same moment.
void DevolveTeclado(QWidget &janela);

/// Whether `evento` is a key that goes on being held down.
[[nodiscard]] bool TeclaRepetida(const QEvent &evento);

} // namespace toolkit
