#pragma once

#include <functional>
#include <QString>
#include <QWidget>

class QLineEdit;

/// How assistive technology (a screen reader, a braille display, speech control) sees the controls.
///
/// Names and descriptions are worked out when they are asked for. While no such technology is
/// active nothing is worked out and nothing is told.

namespace toolkit {

class Control;

/// What a control is to assistive technology.
enum class Papel {
    /// What its kind suggests: a label with a click or an image with one is a button, a label with
    /// a caption a text, a text box a field; anything else is Nenhum.
    Padrao,
    /// Nothing. What lies in it counts as lying in its container.
    Nenhum,
    Botao,
    Texto,
    Campo,
    Relogio,
    Grupo,
    /// A bubble that comes up by itself.
    Balao,
    /// A place that only holds the focus.
    Painel,
};

/// What assistive technology is told of a control. What is left out follows from the control.
struct Acessivel
{
    Papel papel = Papel::Padrao;
    std::function<QString()> nome = nullptr;
    std::function<QString()> descricao = nullptr;
    /// False: the control is not there at the moment, nor is what lies in it, though it shows.
    std::function<bool()> presente = nullptr;
    /// Reading order among the controls of one container, lowest first; equals go from front to
    /// back.
    int ordem = 0;
};

/// A widget that shows a control. Destroyed as a QWidget, never as this.
class WidgetDeControle
{
public:
    explicit WidgetDeControle(Control &dono) : m_dono(dono) {}
    [[nodiscard]] Control &Dono() const { return m_dono; }
    /// The line edit of a text box, else null.
    [[nodiscard]] virtual QLineEdit *Linha() { return nullptr; }
    /// Whether a field may be written to by other means than the keyboard.
    [[nodiscard]] virtual bool AceitaEscrita() const { return false; }

protected:
    virtual ~WidgetDeControle() = default;

private:
    Control &m_dono;
};

/// Makes forms, controls and announcements known to the system's accessibility interface. Needs the
/// application object; once more does nothing.
void InstalaAcessibilidade();

/// Tells assistive technology which of the names, descriptions and states that it has read in
/// `janela` are no longer the same.
void ContaMudancas(const QWidget &janela);

/// Whether a click of the player in the middle of `widget` would reach it: it shows, nothing lies
/// over it there, and no modal window keeps the player from its window.
bool RecebeClique(const QWidget &widget);
/// The same, where no heed is paid to modal windows.
bool EstaDescoberto(const QWidget &widget);

} // namespace toolkit
