#include "core/machine/texts.h"
#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

TEST(NovoJogo, SaysSoWhereTheBankCannotServe)
{
    const QByteArray curtas = QByteArray("CASA").leftJustified(76, ' ').repeated(40);
    struct Caso
    {
        const char *nome;
        QByteArray banco;
        QString mensagem;
    };
    for (const auto &[nome, banco, mensagem] :
         {Caso{"empty", {}, texto::BancoIlegivel()},
          Caso{"part of a record", QByteArray(75, 'A'), texto::BancoIlegivel()},
          Caso{"short words only", curtas, texto::BancoPequeno()},
          Caso{"20 words", BancoInventado(20), texto::BancoPequeno()},
          Caso{"NULs", QByteArray(76 * 30, '\0'), texto::BancoPequeno()}}) {
        SCOPED_TRACE(nome);
        JogoDeTeste jogo(1, banco);
        jogo.Comeca();
        EXPECT_EQ(jogo.maquina.mensagens, QStringList{mensagem});
        const forms::ControlesForm1 &c = jogo.c();
        EXPECT_FALSE(c.Picespere.Visible() || c.Image4.Visible() || c.Label4.Visible() ||
                     c.Timer1.Ligado());
        jogo.Digita(u"abc"_s);
        jogo.Seleciona(3);
        EXPECT_EQ(jogo.maquina.mensagens.size(), 1);
        jogo.Menu(1);
        jogo.Menu(3);
        EXPECT_EQ(jogo.maquina.mensagens.mid(1), QStringList(2, texto::SemJogo()));
    }
}

TEST(BalaoDica, IsReadableWhereItReachesBeyondTheWindow)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.c().LbHint.SetCaption(QString(60, u'M'));
    jogo.c().Picture2.Move(9000, 3000, 600 * 15.0F, 20 * 15.0F);
    for (const bool visivel : {true, false}) {
        jogo.c().Picture2.SetVisible(visivel);
        const auto janelas = QApplication::topLevelWidgets();
        EXPECT_EQ(std::count_if(janelas.begin(), janelas.end(),
                                [](const QWidget *janela) {
                                    return janela->isVisible() &&
                                           janela->windowType() == Qt::ToolTip;
                                }),
                  visivel ? 1 : 0);
    }
}

TEST(Form1, TakesADoubleClickForAClickOnAnotherNumberAndEndsWithItsWindow)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Seleciona(3);
    QTest::mouseDClick(jogo.c().Lbt(5).Widget(), Qt::LeftButton);
    QTest::mouseRelease(jogo.c().Lbt(5).Widget(), Qt::LeftButton);
    EXPECT_EQ(jogo.d().estado.item, 5);
    jogo.form->Janela().close();
    EXPECT_EQ(jogo.maquina.fins, 1);
}
