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

/// A window whose controls tell it that they look different: it tells assistive technology what
/// reads differently now, once the event at hand is dealt with.
class JanelaDeControles
{
public:
    virtual void AvisaMudanca() = 0;

protected:
    ~JanelaDeControles() = default;
};

} // namespace toolkit
