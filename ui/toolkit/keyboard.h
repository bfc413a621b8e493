#pragma once

class QEvent;
class QString;
class QWidget;

namespace toolkit {

/// The nearest window that shows, from that of `janela` up its owners; null if there is none.
[[nodiscard]] QWidget *JanelaVisivel(QWidget *janela);

/// `janela` has gone: gives the keyboard to the nearest of its owners that still shows. The system
/// alone does not always find it, above all where two windows go in the same moment.
void DevolveTeclado(QWidget &janela);

/// Whether `evento` is a key that goes on being held down.
[[nodiscard]] bool TeclaRepetida(const QEvent &evento);

/// Lets `texto`, which an input method has composed for a field of `janela`, come in like a typed
/// key: behind the keys that were typed before it, and once the input method has done its work. In
/// the middle of that work whatever the text sets off, a window with a field of its own above all,
/// would find an input method that has not finished.
void DigitaComposto(const QWidget &janela, const QString &texto);

} // namespace toolkit
