#include "ui/toolkit/accessible_control.h"

#include "ui/toolkit/control.h"

#include <QLineEdit>

namespace toolkit {

namespace {

QAccessible::Role ParaQt(Papel papel)
{
    switch (papel) {
    case Papel::Botao:
        return QAccessible::Button;
    case Papel::Texto:
        return QAccessible::StaticText;
    case Papel::Campo:
        return QAccessible::EditableText;
    case Papel::Relogio:
        return QAccessible::Clock;
    case Papel::Grupo:
        return QAccessible::Grouping;
    case Papel::Balao:
        return QAccessible::ToolTip;
    case Papel::Painel:
        return QAccessible::Pane;
    case Papel::Padrao:
    case Papel::Nenhum:
        break;
    }
    return QAccessible::Client;
}

/// Notes what is said for the first time. What is said later, others who have asked before do not
/// know yet: only the news of a change reaches them all.
template <class T>
T Lembra(std::optional<T> &dito, const T &agora)
{
    dito = dito.value_or(agora);
    return agora;
}

/// The field of a text box: its letters can be read, and written where the keyboard could write.
class LeituraCampo final : public LeituraControle,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    LeituraCampo(QLineEdit &campo, const WidgetDeControle &dele)
        : LeituraControle(campo, dele.Dono()), m_campo(campo), m_dele(dele)
    {
    }

    void *interface_cast(QAccessible::InterfaceType tipo) override
    {
        switch (tipo) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface *>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface *>(this);
        default:
            return LeituraControle::interface_cast(tipo);
        }
    }

    [[nodiscard]] QString text(QAccessible::Text texto) const override
    {
        return texto == QAccessible::Value ? m_campo.displayText() : LeituraControle::text(texto);
    }
    void setText(QAccessible::Text texto, const QString &novo) override
    {
        if (texto == QAccessible::Value) {
            replaceText(0, characterCount(), novo);
        }
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State estado = LeituraControle::state();
        estado.editable = true;
        estado.selectableText = true;
        return estado;
    }

    void selection(int /*qual*/, int *inicio, int *fim) const override
    {
        *inicio = m_campo.hasSelectedText() ? m_campo.selectionStart() : 0;
        *fim = m_campo.hasSelectedText() ? m_campo.selectionEnd() : 0;
    }
    [[nodiscard]] int selectionCount() const override { return m_campo.hasSelectedText() ? 1 : 0; }
    void addSelection(int inicio, int fim) override { setSelection(0, inicio, fim); }
    void removeSelection(int /*qual*/) override { m_campo.deselect(); }
    void setSelection(int /*qual*/, int inicio, int fim) override
    {
        m_campo.setSelection(inicio, fim - inicio);
    }
    [[nodiscard]] int cursorPosition() const override { return m_campo.cursorPosition(); }
    void setCursorPosition(int lugar) override { m_campo.setCursorPosition(lugar); }
    [[nodiscard]] QString text(int inicio, int fim) const override
    {
        return m_campo.displayText().mid(inicio, fim - inicio);
    }
    [[nodiscard]] int characterCount() const override
    {
        return static_cast<int>(m_campo.displayText().size());
    }
    /// Of the whole field: none of the game's shows so much that it mattered.
    [[nodiscard]] QRect characterRect(int /*lugar*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint &ponto) const override
    {
        return m_campo.cursorPositionAt(m_campo.mapFromGlobal(ponto));
    }
    void scrollToSubstring(int inicio, int fim) override
    {
        m_campo.setCursorPosition(fim);
        m_campo.setCursorPosition(inicio);
    }
    QString attributes(int /*lugar*/, int *inicio, int *fim) const override
    {
        *inicio = 0;
        *fim = characterCount();
        return {};
    }

    void deleteText(int inicio, int fim) override { replaceText(inicio, fim, {}); }
    void insertText(int lugar, const QString &novo) override { replaceText(lugar, lugar, novo); }
    /// Takes place once the event at hand is dealt with, as a press does: the last letter of the
    /// board opens a dialog.
    void replaceText(int inicio, int fim, const QString &novo) override
    {
        const auto escreve = [=, &campo = m_campo, &dele = m_dele] {
            if (dele.AceitaEscrita() && RecebeClique(campo)) {
                const QString velho = campo.text();
                campo.setText(velho.left(inicio) + novo + velho.mid(fim));
            }
        };
        QMetaObject::invokeMethod(&m_campo, escreve, Qt::QueuedConnection);
    }

private:
    QLineEdit &m_campo;
    const WidgetDeControle &m_dele;
};

} // namespace

QAccessibleInterface *LeituraControle::parent() const
{
    return QAccessible::queryAccessibleInterface(PaiLido(*widget()));
}

QAccessible::Role LeituraControle::role() const
{
    return ParaQt(m_controle.PapelAtual());
}

QString LeituraControle::Nome() const
{
    const Acessivel &dito = m_controle.GetAcessivel();
    return dito.nome ? dito.nome() : m_controle.NomePadrao();
}

QString LeituraControle::Descricao() const
{
    const Acessivel &dito = m_controle.GetAcessivel();
    return dito.descricao ? dito.descricao() : QString();
}

QString LeituraControle::text(QAccessible::Text texto) const
{
    switch (texto) {
    case QAccessible::Name:
        return Lembra(m_nomeDito, Nome());
    case QAccessible::Description:
        return Lembra(m_descricaoDita, Descricao());
    default:
        return {};
    }
}

QAccessible::State LeituraControle::state() const
{
    QAccessible::State estado = LeituraWidget::state();
    estado.invisible = estado.invisible || !EstaNaArvore(*widget());
    estado.disabled =
        Lembra(m_inativoDito, estado.disabled || (Aciona() && !EstaDescoberto(*widget())));
    return estado;
}

/// Whether pressing the control does something.
bool LeituraControle::Aciona() const
{
    return m_controle.PapelAtual() != Papel::Nenhum && (m_controle.Click || m_controle.MouseDown);
}

QStringList LeituraControle::actionNames() const
{
    // The first action is the one that assistive technology takes when it is asked for no other.
    QStringList acoes = LeituraWidget::actionNames();
    if (Aciona()) {
        acoes.prepend(pressAction());
    }
    return acoes;
}

QString LeituraControle::localizedActionName(const QString &acao) const
{
    return acao == pressAction()      ? QStringLiteral("Pressionar")
           : acao == setFocusAction() ? QStringLiteral("Focalizar")
                                      : LeituraWidget::localizedActionName(acao);
}

QString LeituraControle::localizedActionDescription(const QString &acao) const
{
    return acao == pressAction()      ? QStringLiteral("Faz o que um clique faria")
           : acao == setFocusAction() ? QStringLiteral("Leva o teclado para cá")
                                      : LeituraWidget::localizedActionDescription(acao);
}

void LeituraControle::doAction(const QString &acao)
{
    if (acao != pressAction()) {
        LeituraWidget::doAction(acao);
        return;
    }
    const auto pressiona = [alvo = widget()] {
        if (RecebeClique(*alvo)) {
            Clica(*alvo);
        }
    };
    QMetaObject::invokeMethod(widget(), pressiona, Qt::QueuedConnection);
}

void LeituraControle::ContaMudanca()
{
    // What is not there, such as the board while it is built, can wait until it comes back.
    if (!EstaNaArvore(*widget())) {
        return;
    }
    const auto conta = [this](QAccessible::Event tipo) {
        QAccessibleEvent evento(this, tipo);
        QAccessible::updateAccessibility(&evento);
    };
    if (m_nomeDito && *m_nomeDito != Nome()) {
        m_nomeDito = Nome();
        conta(QAccessible::NameChanged);
    }
    if (m_descricaoDita && *m_descricaoDita != Descricao()) {
        m_descricaoDita = Descricao();
        conta(QAccessible::DescriptionChanged);
    }
    if (m_inativoDito && *m_inativoDito != (state().disabled != 0)) {
        m_inativoDito = !*m_inativoDito;
        QAccessible::State mudou;
        mudou.disabled = true;
        QAccessibleStateChangeEvent evento(this, mudou);
        QAccessible::updateAccessibility(&evento);
    }
}

LeituraControle *CriaLeitura(QWidget &widget, WidgetDeControle &dele)
{
    if (QLineEdit *campo = dele.Linha()) {
        return new LeituraCampo(*campo, dele);
    }
    return new LeituraControle(widget, dele.Dono());
}

} // namespace toolkit
