#include "ui/toolkit/message_box.h"

#include <QApplication>
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

QWidget *Dona()
{
    QWidget *ativa = QApplication::activeWindow();
    return ativa != nullptr ? ativa : QApplication::activeModalWidget();
}

} // namespace

Resposta MostraMensagem(const QString &titulo, const PedidoMensagem &pedido)
{
    QMessageBox caixa(Dona());
    caixa.setWindowTitle(titulo);
    // The text may come from outside: it is text and never markup.
    caixa.setTextFormat(Qt::PlainText);
    caixa.setText(Apresentavel(pedido.texto));
    caixa.setIcon(pedido.icone == Icone::Pergunta ? QMessageBox::Question : QMessageBox::NoIcon);

    const auto opcoes = Opcoes(pedido.botoes);
    std::vector<QPushButton *> teclas;
    for (const Opcao &opcao : opcoes) {
        // Roles decide the order of buttons on some systems; one role keeps the order given.
        teclas.push_back(caixa.addButton(opcao.texto, QMessageBox::ActionRole));
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
