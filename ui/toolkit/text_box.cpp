#include "ui/toolkit/text_box.h"

#include "ui/toolkit/keyboard.h"
#include "ui/toolkit/thin_frame.h"

#include <algorithm>
#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>

namespace toolkit {

namespace {

/// The text as a box of one line stores it: with blanks for control characters.
QString SemControles(QString texto)
{
    const auto controle = [](QChar letra) { return letra.category() == QChar::Other_Control; };
    std::replace_if(texto.begin(), texto.end(), controle, u' ');
    return texto;
}

} // namespace

/// The widget: a line edit with a flat one-pixel frame.
class TextBox::Campo final : public QLineEdit, public WidgetDeControle
{
public:
    Campo(QWidget *pai, TextBox &dono) : QLineEdit(pai), WidgetDeControle(dono)
    {
        setFrame(false);
        // The ground that the line edit paints by itself knows nothing of the frame.
        QPalette cores = palette();
        cores.setColor(QPalette::Base, Qt::transparent);
        setPalette(cores);
    }

    bool celula = false;

    [[nodiscard]] QLineEdit *Linha() override { return this; }
    [[nodiscard]] bool AceitaEscrita() const override { return !celula || hasFocus(); }

protected:
    void paintEvent(QPaintEvent *evento) override
    {
        QPainter fundo(this);
        fundo.fillRect(AreaDaMoldura(fundo, size()), Dono().BackColor());
        fundo.end();
        QLineEdit::paintEvent(evento);
        QPainter moldura(this);
        PintaMoldura(moldura, size(), kPreto);
    }

    void inputMethodEvent(QInputMethodEvent *evento) override
    {
        if (evento->commitString().isEmpty() || evento->replacementLength() != 0) {
            QLineEdit::inputMethodEvent(evento);
            return;
        }
        QInputMethodEvent semTexto(evento->preeditString(), evento->attributes());
        QLineEdit::inputMethodEvent(&semTexto);
        DigitaComposto(*window(), evento->commitString());
    }

    void contextMenuEvent(QContextMenuEvent *evento) override
    {
        // A press on a cell has just moved the cursor: the menu must act where the cursor is.
        auto *foco = celula ? qobject_cast<QLineEdit *>(QApplication::focusWidget()) : this;
        if (foco != nullptr) {
            MostraMenu(*foco, evento->globalPos());
        }
    }

    void dragEnterEvent(QDragEnterEvent *evento) override
    {
        if (!celula || hasFocus()) {
            QLineEdit::dragEnterEvent(evento);
        } else {
            evento->ignore();
        }
    }

private:
    /// The system's menu with those of its entries that can act; none where there are none.
    static void MostraMenu(QLineEdit &campo, QPoint lugar)
    {
        QMenu *menu = campo.createStandardContextMenu();
        bool age = false;
        for (QAction *entrada : menu->actions()) {
            const bool serve = entrada->isEnabled() && !entrada->isSeparator();
            entrada->setVisible(serve || entrada->isSeparator());
            age = age || serve;
        }
        menu->setAttribute(Qt::WA_DeleteOnClose);
        age ? menu->popup(lugar) : menu->deleteLater();
    }
};

TextBox::TextBox(const Origem &origem) : Control(origem), m_campo(new Campo(origem.pai, *this))
{
    UsaWidget(m_campo);
    SetBackColor(kBranco);
    QObject::connect(m_campo, &QLineEdit::textChanged, this, [this] { TextoMudou(); });
}

void TextBox::TextoMudou()
{
    AvisaMudanca();
    if (const QString texto = SemControles(m_campo->text()); texto != m_campo->text()) {
        // Comes back here with the text that is left.
        m_campo->setText(texto);
    } else if (Change) {
        Change();
    }
}

QString TextBox::Text() const
{
    return m_campo->text();
}

void TextBox::SetText(const QString &texto)
{
    // Setting the text that stands there would still forget the undo history and move the cursor,
    // and a Change handler that sets a text which the box stores otherwise would never come to
    // rest.
    const QString guardado = SemControles(texto).left(m_campo->maxLength());
    if (guardado != m_campo->text()) {
        m_campo->setText(guardado);
    }
}

void TextBox::SetMaxLength(int maximo)
{
    if (maximo > 0) {
        m_campo->setMaxLength(maximo);
    }
}

void TextBox::SetAlignment(Alinhamento alinhamento)
{
    m_campo->setAlignment(alinhamento == Alinhamento::Centro    ? Qt::AlignCenter
                          : alinhamento == Alinhamento::Direita ? Qt::AlignRight | Qt::AlignVCenter
                                                                : Qt::AlignLeft | Qt::AlignVCenter);
}

void TextBox::SelecionaTudo()
{
    m_campo->selectAll();
}

void TextBox::SetCelula()
{
    m_celula = true;
    m_campo->celula = true;
    m_campo->setDragEnabled(false);
}

void TextBox::CopiaDe(const TextBox &molde)
{
    m_campo->setText(molde.Text());
    m_campo->setAlignment(molde.m_campo->alignment());
    m_campo->setMaxLength(molde.m_campo->maxLength());
    if (molde.m_celula) {
        SetCelula();
    }
    CopiaBase(molde);
}

void TextBox::MostraAspecto()
{
    QPalette cores = m_campo->palette();
    cores.setColor(QPalette::Text, ForeColor());
    if (cores != m_campo->palette()) {
        m_campo->setPalette(cores);
    }
    const QFont fonte = FonteQt();
    if (fonte != m_campo->font()) {
        m_campo->setFont(fonte);
    }
    Control::MostraAspecto();
}

} // namespace toolkit
