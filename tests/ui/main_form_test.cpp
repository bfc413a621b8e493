#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QTest>

TEST(NovoJogo, SaysSoWhereTheBankCannotServe)
{
    const QString vazio =
        QStringLiteral("O banco de perguntas \"Perguntas.tes\" não pôde ser lido ou está vazio.");
    const QString pouco =
        QStringLiteral("O banco de perguntas não tem palavras suficientes para montar um jogo.");
    const QByteArray curtas = QByteArray("CASA").leftJustified(76, ' ').repeated(40);
    struct Caso
    {
        const char *nome;
        QByteArray banco;
        QString mensagem;
    };
    for (const auto &[nome, banco, mensagem] :
         {Caso{"empty", {}, vazio}, Caso{"part of a record", QByteArray(75, 'A'), vazio},
          Caso{"short words only", curtas, pouco}, Caso{"20 words", BancoInventado(20), pouco},
          Caso{"NULs", QByteArray(76 * 30, '\0'), pouco}}) {
        JogoDeTeste jogo(1, banco);
        jogo.Comeca();
        EXPECT_EQ(jogo.maquina.mensagens, QStringList{mensagem}) << nome;
        EXPECT_FALSE(jogo.c().Picespere.Visible()) << nome;
        EXPECT_FALSE(jogo.c().Image4.Visible()) << nome;
        EXPECT_FALSE(jogo.c().Label4.Visible()) << nome;
        EXPECT_FALSE(jogo.c().Timer1.Ligado()) << nome;
        jogo.Digita(QStringLiteral("abc"));
        JogoDeTeste::Clica(jogo.c().Lbt(3));
        EXPECT_EQ(jogo.maquina.mensagens.size(), 1) << nome;
        JogoDeTeste::Clica(*jogo.c().Label3[1]);
        JogoDeTeste::Clica(*jogo.c().Label3[3]);
        EXPECT_EQ(jogo.maquina.mensagens.size(), 3)
            << nome << ": restart and save say that no game is there";
    }
}

TEST(Form1, LaysTheGridAndTheStripAtTheirPlaces)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    EXPECT_EQ(jogo.c().Text1(27).Left(), jogo.c().Text1(1).Left());
    EXPECT_EQ(jogo.c().Text1(572).Left(), 12 + 18 * 25);
    EXPECT_EQ(jogo.c().Text1(572).Top(), 13 + 18 * 21);
    EXPECT_EQ(jogo.c().Lbt(26).Left(), 8070);
    EXPECT_EQ(jogo.c().PicSombra(jogo.d().Item(1).Ponto).Left(),
              jogo.c().Text1(jogo.d().Item(1).Ponto).Left() + 2);
    EXPECT_EQ(jogo.form->Janela().size(), QSize(652, 499));
    // The puzzle stands in the middle of the sheet.
    const QRect folha = jogo.c().Pic_q2.Widget()->rect();
    QRect caixa;
    for (int i = 1; i <= kCelulas; ++i) {
        if (jogo.d().Ocupada(i)) {
            caixa |= jogo.c().Text1(i).Widget()->geometry();
        }
    }
    const QPoint lugar = caixa.topLeft() + jogo.c().Pic_q2.Widget()->pos();
    EXPECT_NEAR(lugar.x(), (folha.width() - caixa.width()) / 2.0, 1);
    EXPECT_NEAR(lugar.y(), (folha.height() - caixa.height()) / 2.0, 1);
}

TEST(Form1, EndsWhenTheWindowManagerClosesIt)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.form->Janela().close();
    EXPECT_EQ(jogo.maquina.fins, 1);
}

TEST(Selecao, TakesTheSecondPressOfADoubleClickForAClickOnAnotherNumber)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Seleciona(3);
    QTest::mouseDClick(jogo.c().Lbt(5).Widget(), Qt::LeftButton);
    QTest::mouseRelease(jogo.c().Lbt(5).Widget(), Qt::LeftButton);
    EXPECT_EQ(jogo.d().estado.item, 5);
}

TEST(BalaoDica, IsReadableWhereItReachesBeyondTheWindow)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.c().LbHint.SetCaption(QString(60, u'M'));
    jogo.c().Picture2.Move(9000, 3000, 600 * 15.0F, 20 * 15.0F);
    jogo.c().Picture2.SetVisible(true);
    int fora = 0;
    for (const QWidget *janela : QApplication::topLevelWidgets()) {
        fora += janela->isVisible() && janela->windowType() == Qt::ToolTip ? 1 : 0;
    }
    EXPECT_EQ(fora, 1);
    jogo.c().Picture2.SetVisible(false);
    for (const QWidget *janela : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(janela->isVisible() && janela->windowType() == Qt::ToolTip);
    }
}
