#pragma once

#include "ui/toolkit/accessible.h"
#include "ui/toolkit/font.h"
#include "ui/toolkit/units.h"

#include <functional>
#include <memory>
#include <QCursor>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace toolkit {

/// Where a control comes from: its name, its place in a control array, and the container that it
/// lies in.
struct Origem
{
    QString nome;
    /// Index in its control array, or -1.
    int indice = -1;
    QWidget *pai = nullptr;
    /// Units of the container to a pixel: twips, or 1 in a container that counts in pixels.
    float porPixel = 1;
    int dpi = kDpiPadrao;
};

/// A mouse event on a control; the position is in pixels from the control's upper left corner.
struct Mouse
{
    Qt::MouseButtons botoes;
    QPoint lugar;
    /// The position on the screen, and that of the press that the movement goes back to.
    QPoint global = {};
    QPoint aperto = {};
};

/// A control of a form: geometry in the units of its container, visibility, z-order, pointer, and
/// the events that the rooms connect to. What it shows is the business of the classes made from it.
///
/// Lengths are kept as they were set and rounded to whole pixels only when shown. A control does
/// not pass its mouse events on to its container, and one that is not enabled is no obstacle to the
/// mouse.
class Control : public QObject
{
public:
    explicit Control(const Origem &origem);
    ~Control() override;

    [[nodiscard]] const QString &Name() const { return m_origem.nome; }
    [[nodiscard]] int Index() const { return m_origem.indice; }

    [[nodiscard]] float Left() const { return m_left; }
    [[nodiscard]] float Top() const { return m_top; }
    [[nodiscard]] float Width() const { return m_width; }
    [[nodiscard]] float Height() const { return m_height; }
    void SetLeft(float left);
    void SetTop(float top);
    void SetWidth(float width);
    void SetHeight(float height);
    void Move(float left, float top, float width, float height);
    /// Whether the control has a width and a height of its own (a timer has none).
    [[nodiscard]] virtual bool TemTamanho() const { return true; }

    /// The control's own flag: whether its container is shown makes no difference.
    [[nodiscard]] bool Visible() const { return m_visible; }
    void SetVisible(bool visible);
    [[nodiscard]] bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled);

    [[nodiscard]] const Font &GetFont() const { return m_font; }
    void SetFont(const Font &font);
    void SetFontBold(bool bold);
    void SetFontSize(float pontos);
    /// Whether the control has a font (an image has none).
    [[nodiscard]] virtual bool TemFonte() const { return true; }

    [[nodiscard]] QColor BackColor() const { return m_backColor; }
    virtual void SetBackColor(QColor cor);
    [[nodiscard]] QColor ForeColor() const { return m_foreColor; }
    virtual void SetForeColor(QColor cor);

    void SetMouseIcon(const QCursor &ponteiro);
    void ZOrderFrente();
    void ZOrderFundo();
    /// Stands right behind `outro`, which lies in the same container.
    void FicaAtrasDe(const Control &outro);
    void SetFocus();
    [[nodiscard]] bool TemFoco() const;

    /// What assistive technology is told of the control.
    void SetAcessivel(Acessivel dito);
    [[nodiscard]] const Acessivel &GetAcessivel() const;
    /// The part that it plays there, never Papel::Padrao.
    [[nodiscard]] Papel PapelAtual() const;
    /// The name that it has there where nothing has been said.
    [[nodiscard]] virtual QString NomePadrao() const { return {}; }

    /// The widget that shows the control, or null for one that never shows.
    [[nodiscard]] QWidget *Widget() const { return m_widget; }
    [[nodiscard]] const Origem &GetOrigem() const { return m_origem; }

    std::function<void()> Click;
    /// The second press of a double click. Without a handler it is a press like any other.
    std::function<void()> DblClick;
    std::function<void()> GotFocus;
    std::function<void(const Mouse &)> MouseDown;
    std::function<void(const Mouse &)> MouseUp;
    std::function<void(const Mouse &)> MouseMove;

protected:
    /// Takes the widget that shows the control; called once, by the constructors of the classes
    /// made from it.
    void UsaWidget(QWidget *widget);
    /// Shows a changed look: font, colours, enabled.
    virtual void MostraAspecto();
    /// Takes over everything but name, index, container and visibility.
    void CopiaBase(const Control &molde);
    [[nodiscard]] QFont FonteQt() const { return ParaQt(m_font, m_origem.dpi); }
    /// The part that its kind suggests to assistive technology.
    [[nodiscard]] virtual Papel PapelPadrao() const { return Papel::Nenhum; }
    /// Tells assistive technology of what reads differently now.
    void AvisaMudanca() const;
    /// Whether mouse events stop here, behind the control's own handlers, or go on to the widget.
    [[nodiscard]] virtual bool ConsomeMouse() const { return true; }

    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    void MostraGeometria();
    bool TrataMouse(QEvent *evento);

    Origem m_origem;
    QPointer<QWidget> m_widget;
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_apertado = false;
    QPoint m_lugarDoAperto;
    Font m_font;
    QColor m_backColor = QColor(240, 240, 240);
    QColor m_foreColor = kPreto;
    std::unique_ptr<const Acessivel> m_acessivel;
};

} // namespace toolkit
