#include "toolkit/message_box.h"

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

} // namespace

Resposta MostraMensagem(const QString &titulo, const PedidoMensagem &pedido)
{
    QMessageBox caixa(QApplication::activeWindow());
    caixa.setWindowTitle(titulo);
    // The text may come from outside: it is text and never markup.
    caixa.setTextFormat(Qt::PlainText);
    QString texto = pedido.texto;
    caixa.setText(
        texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n'));
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
