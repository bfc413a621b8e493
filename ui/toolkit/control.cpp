#include "ui/toolkit/control.h"

#include <QAccessible>
#include <QMouseEvent>
#include <utility>

namespace toolkit {

Control::Control(const Origem &origem) : m_origem(origem) {}

Control::~Control()
{
    delete m_widget;
}

void Control::UsaWidget(QWidget *widget)
{
    m_widget = widget;
    m_widget->setObjectName(m_origem.indice < 0
                                ? m_origem.nome
                                : QStringLiteral("%1(%2)").arg(m_origem.nome).arg(m_origem.indice));
    m_widget->setMouseTracking(true);
    m_widget->installEventFilter(this);
    m_widget->lower();
}

void Control::SetLeft(float left)
{
    m_left = left;
    MostraGeometria();
}

void Control::SetTop(float top)
{
    m_top = top;
    MostraGeometria();
}

void Control::SetWidth(float width)
{
    m_width = width;
    MostraGeometria();
}

void Control::SetHeight(float height)
{
    m_height = height;
    MostraGeometria();
}

void Control::Move(float left, float top, float width, float height)
{
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    MostraGeometria();
}

void Control::MostraGeometria()
{
    if (m_widget) {
        const float porPixel = m_origem.porPixel;
        m_widget->setGeometry(qRound(m_left / porPixel), qRound(m_top / porPixel),
                              qRound(m_width / porPixel), qRound(m_height / porPixel));
    }
}

void Control::SetVisible(bool visible)
{
    m_visible = visible;
    if (m_widget) {
        m_widget->setVisible(visible);
        AvisaMudanca();
    }
}

void Control::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    MostraAspecto();
}

void Control::SetFont(const Font &font)
{
    m_font = font;
    MostraAspecto();
}

void Control::SetFontBold(bool bold)
{
    m_font.Bold = bold;
    MostraAspecto();
}

void Control::SetFontSize(float pontos)
{
    m_font.Tamanho = pontos;
    MostraAspecto();
}

void Control::SetBackColor(QColor cor)
{
    m_backColor = cor;
    MostraAspecto();
}

void Control::SetForeColor(QColor cor)
{
    m_foreColor = cor;
    MostraAspecto();
}

void Control::SetMouseIcon(const QCursor &ponteiro)
{
    m_widget->setCursor(ponteiro);
}

void Control::ZOrderFrente()
{
    m_widget->raise();
}

void Control::ZOrderFundo()
{
    m_widget->lower();
}

void Control::FicaAtrasDe(const Control &outro)
{
    m_widget->stackUnder(outro.m_widget);
}

void Control::SetFocus()
{
    m_widget->setFocus(Qt::OtherFocusReason);
}

bool Control::TemFoco() const
{
    return m_widget && m_widget->hasFocus();
}

void Control::MostraAspecto()
{
    if (m_widget) {
        m_widget->setAttribute(Qt::WA_TransparentForMouseEvents, !m_enabled);
        m_widget->update();
        AvisaMudanca();
    }
}

void Control::SetAcessivel(Acessivel dito)
{
    m_acessivel = std::make_unique<const Acessivel>(std::move(dito));
}

const Acessivel &Control::GetAcessivel() const
{
    static const Acessivel nadaDito;
    return m_acessivel ? *m_acessivel : nadaDito;
}

Papel Control::PapelAtual() const
{
    const Papel dito = GetAcessivel().papel;
    return dito == Papel::Padrao ? PapelPadrao() : dito;
}

void Control::AvisaMudanca() const
{
    if (QAccessible::isActive()) {
        if (auto *form = dynamic_cast<JanelaDeControles *>(m_widget->window())) {
            form->AvisaMudanca();
        }
    }
}

void Control::CopiaBase(const Control &molde)
{
    m_font = molde.m_font;
    m_backColor = molde.m_backColor;
    m_foreColor = molde.m_foreColor;
    m_enabled = molde.m_enabled;
    Move(molde.m_left, molde.m_top, molde.m_width, molde.m_height);
    if (molde.m_widget->testAttribute(Qt::WA_SetCursor)) {
        m_widget->setCursor(molde.m_widget->cursor());
    }
    SetVisible(false);
    MostraAspecto();
}

bool Control::eventFilter(QObject *alvo, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return TrataMouse(evento);
    case QEvent::FocusIn:
        // The widget takes note of its focus first: the handler may pass it on at once.
        alvo->event(evento);
        if (GotFocus) {
            GotFocus();
        }
        return true;
    default:
        return QObject::eventFilter(alvo, evento);
    }
}

bool Control::TrataMouse(QEvent *evento)
{
    const auto *mouse = static_cast<QMouseEvent *>(evento);
    const bool esquerdo = mouse->button() == Qt::LeftButton;
    const bool duplo = evento->type() == QEvent::MouseButtonDblClick;
    if (esquerdo && (duplo || evento->type() == QEvent::MouseButtonPress)) {
        m_lugarDoAperto = mouse->globalPosition().toPoint();
    }
    const Mouse dados{mouse->buttons() | mouse->button(), mouse->position().toPoint(),
                      mouse->globalPosition().toPoint(), m_lugarDoAperto};
    // A handler may destroy the control that it belongs to.
    const QPointer<Control> vivo(this);
    const auto chama = [&vivo](const auto &tratador, const auto &...argumentos) {
        if (vivo && tratador) {
            // A copy, so that the handler outlives the control.
            const auto copia = tratador;
            copia(argumentos...);
        }
    };
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        // The second press of a double click is reported as such and not as a press. It is one
        // more press wherever nobody asks for double clicks.
        if (duplo && DblClick) {
            chama(DblClick);
            break;
        }
        m_apertado = m_apertado || esquerdo;
        chama(MouseDown, dados);
        break;
    case QEvent::MouseButtonRelease: {
        const bool clicado = m_apertado && esquerdo && m_widget->rect().contains(dados.lugar);
        m_apertado = m_apertado && !esquerdo;
        chama(MouseUp, dados);
        if (clicado) {
            chama(Click);
        }
        break;
    }
    default:
        chama(MouseMove, Mouse{mouse->buttons(), dados.lugar, dados.global, dados.aperto});
        break;
    }
    return !vivo || ConsomeMouse();
}

} // namespace toolkit
