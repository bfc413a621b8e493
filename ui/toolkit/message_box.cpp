#include "ui/toolkit/message_box.h"

#include "ui/toolkit/form.h"
#include "ui/toolkit/keyboard.h"
#include "ui/toolkit/picture.h"

#include <algorithm>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace toolkit {

namespace {

struct Opcao
{
    QString texto;
    Resposta resposta;
};

std::vector<Opcao> Opcoes(Botoes botoes)
{
    switch (botoes) {
    case Botoes::OkCancelar:
        return {{QStringLiteral("OK"), Resposta::Ok},
                {QStringLiteral("Cancelar"), Resposta::Cancelar}};
    case Botoes::SimNao:
        return {{QStringLiteral("Sim"), Resposta::Sim}, {QStringLiteral("Não"), Resposta::Nao}};
    case Botoes::Ok:
        break;
    }
    return {{QStringLiteral("OK"), Resposta::Ok}};
}

/// The text with plain line ends, cut so that the box stays on the screen whatever came in from
/// outside.
QString Apresentavel(QString texto)
{
    constexpr int kLinhas = 20;
    constexpr int kCaracteres = 600;
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    const QString curto = texto.left(kCaracteres).section(u'\n', 0, kLinhas - 1);
    return curto == texto ? texto : curto + QStringLiteral("…");
}

/// The game's own icon, sharp at every scale, which those of the style are not; where there is
/// none, none of the room for it either.
void PoeIcone(QMessageBox &caixa, Icone icone)
{
    if (icone == Icone::Pergunta) {
        caixa.setIconPixmap(
            Picture(QStringLiteral("Pergunta")).NoTamanhoDe(caixa.devicePixelRatioF()));
        return;
    }
    auto *grade = qobject_cast<QGridLayout *>(caixa.layout());
    auto *texto = caixa.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    QLayoutItem *recuo = grade == nullptr ? nullptr : grade->itemAtPosition(0, 0);
    if (texto == nullptr || recuo == nullptr || recuo->spacerItem() == nullptr) {
        return;
    }
    grade->removeItem(recuo);
    delete recuo;
    grade->removeWidget(texto);
    grade->addWidget(texto, 0, 0, 1, 2);
    texto->setContentsMargins(0, 0, 0, grade->verticalSpacing());
    texto->setIndent(0);
}

/// The window that the player has before him. The one that was active may have gone, and none is
/// where the keyboard is elsewhere.
QWidget *Dona()
{
    if (QWidget *ativa = JanelaVisivel(QApplication::activeWindow())) {
        return ativa;
    }
    if (QWidget *modal = JanelaVisivel(QApplication::activeModalWidget())) {
        return modal;
    }
    const auto janelas = QApplication::topLevelWidgets();
    const auto achada = std::find_if(janelas.begin(), janelas.end(), [](const QWidget *janela) {
        return janela->isVisible() && dynamic_cast<const Form *>(janela) != nullptr;
    });
    return achada == janelas.end() ? nullptr : *achada;
}

/// A message box that gives the keyboard back, and that a key held down does not answer: held from
/// one window to the next, it would go through both.
class Caixa final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    QPushButton *Botao(const QString &texto)
    {
        // Roles decide the order of buttons on some systems; one role keeps the order given.
        QPushButton *botao = addButton(texto, QMessageBox::ActionRole);
        botao->installEventFilter(this);
        return botao;
    }

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override
    {
        return TeclaRepetida(*evento) || QMessageBox::eventFilter(alvo, evento);
    }
    bool event(QEvent *evento) override
    {
        return TeclaRepetida(*evento) || QMessageBox::event(evento);
    }
    void hideEvent(QHideEvent *evento) override
    {
        QMessageBox::hideEvent(evento);
        DevolveTeclado(*this);
    }
};

} // namespace

Resposta MostraMensagem(const QString &titulo, const PedidoMensagem &pedido)
{
    Caixa caixa(Dona());
    caixa.setWindowTitle(titulo);
    // The text may come from outside: it is text and never markup.
    caixa.setTextFormat(Qt::PlainText);
    caixa.setText(Apresentavel(pedido.texto));
    PoeIcone(caixa, pedido.icone);

    const auto opcoes = Opcoes(pedido.botoes);
    std::vector<QPushButton *> teclas;
    for (const Opcao &opcao : opcoes) {
        teclas.push_back(caixa.Botao(opcao.texto));
    }
    caixa.setDefaultButton(teclas.front());
    caixa.setEscapeButton(teclas.back());
    caixa.exec();
    for (size_t k = 0; k < teclas.size(); ++k) {
        if (caixa.clickedButton() == teclas[k]) {
            return opcoes[k].resposta;
        }
    }
    return opcoes.back().resposta;
}

} // namespace toolkit
