#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QTest>

namespace {

/// A crossing cell and its two items.
struct Cruzamento
{
    int celula = 0;
    ItensDaCelula itens;
};

/// Crossing cell number `qual` (from 0) of two open items.
Cruzamento AchaCruzamento(const JogoDeTeste &jogo, int qual = 0)
{
    for (int i = 1; i <= kCelulas; ++i) {
        if (jogo.d().Ocupada(i) && jogo.d().Quadrado(i).Sentido == u'M' && qual-- == 0) {
            return {i, LeItens(jogo.d().Quadrado(i).Itens)};
        }
    }
    return {};
}

} // namespace

TEST(Selecao, AlternatesOnCrossingsAcrossTheWholeBoard)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const Cruzamento um = AchaCruzamento(jogo, 0);
    const Cruzamento outro = AchaCruzamento(jogo, 3);
    JogoDeTeste::Clica(jogo.c().Text1(um.celula));
    EXPECT_EQ(jogo.d().estado.item, um.itens.segundo)
        << "the first click picks the word laid later";
    JogoDeTeste::Clica(jogo.c().Text1(outro.celula));
    EXPECT_EQ(jogo.d().estado.item, outro.itens.primeiro);
    JogoDeTeste::Clica(jogo.c().Text1(um.celula), Qt::RightButton);
    EXPECT_EQ(jogo.d().estado.item, um.itens.segundo);
    // A double click arrives as a press and, instead of a second one, a press of its own kind.
    JogoDeTeste::Clica(jogo.c().Text1(um.celula));
    EXPECT_EQ(jogo.d().estado.item, um.itens.primeiro);
    QTest::mouseDClick(jogo.c().Text1(um.celula).Widget(), Qt::LeftButton);
    EXPECT_EQ(jogo.d().estado.item, um.itens.segundo) << "a double click counts as two clicks";
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

TEST(Selecao, WipesTheItemThatIsLeftAndMarksTheNewOne)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const int primeira = jogo.d().estado.Focus;
    jogo.Digita(QStringLiteral("xy"));
    jogo.Seleciona(5);
    EXPECT_EQ(jogo.c().Text1(primeira).Text(), QString());
    EXPECT_EQ(jogo.c().Lbt(1).ForeColor(), toolkit::kPreto);
    EXPECT_FALSE(jogo.c().Lbt(1).GetFont().Bold);
    EXPECT_EQ(jogo.c().Lbt(5).ForeColor(), toolkit::kBranco);
    EXPECT_TRUE(jogo.c().Lbt(5).GetFont().Bold);
    EXPECT_EQ(jogo.c().Image1.Left(), jogo.c().Lbt(5).Left() - 30);
    EXPECT_EQ(jogo.c().Label1.Caption(), jogo.d().Item(5).Dica);
    jogo.Digita(QStringLiteral("x"));
    jogo.Seleciona(5);
    EXPECT_EQ(jogo.d().estado.Focus, jogo.d().Item(5).Ponto)
        << "selecting again starts the word anew";
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Selecao, TakesTheOpenWordOfACrossingAndNoSolvedOne)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const Cruzamento um = AchaCruzamento(jogo);
    jogo.Resolve(um.itens.segundo);
    jogo.Seleciona(um.itens.primeiro == 1 ? 26 : 1);
    JogoDeTeste::Clica(jogo.c().Text1(um.celula));
    EXPECT_EQ(jogo.d().estado.item, um.itens.primeiro);
    jogo.Resolve(um.itens.primeiro);
    const int antes = jogo.d().estado.item;
    jogo.maquina.sons.clear();
    JogoDeTeste::Clica(jogo.c().Text1(um.celula));
    EXPECT_EQ(jogo.d().estado.item, antes);
    EXPECT_TRUE(jogo.maquina.sons.isEmpty());
}

TEST(BalaoDica, ShowsTheCluesOfACrossingAcrossFirst)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const Cruzamento um = AchaCruzamento(jogo);
    JogoDeTeste::Paira(jogo.c().Text1(um.celula));
    EXPECT_FALSE(jogo.c().Picture2.Visible());
    ASSERT_TRUE(jogo.c().Timer3.Ligado());
    jogo.c().Timer3.Tique();
    EXPECT_TRUE(jogo.c().Picture2.Visible());
    const RegistroItem &a = jogo.d().Item(um.itens.primeiro);
    const RegistroItem &b = jogo.d().Item(um.itens.segundo);
    const RegistroItem &deitada = a.Sentido == u'H' ? a : b;
    const RegistroItem &emPe = a.Sentido == u'H' ? b : a;
    EXPECT_EQ(jogo.c().LbHint.Caption(), deitada.Dica + u'\r' + emPe.Dica);
    EXPECT_TRUE(jogo.c().ImgHintDire.Visible());
    EXPECT_FALSE(jogo.c().ImgHintDire2.Visible());
    // Its lower left corner stands on the cell's upper right corner, wherever the sheet is.
    const QWidget *celula = jogo.c().Text1(um.celula).Widget();
    const QWidget *balao = jogo.c().Picture2.Widget();
    const QPoint canto = celula->mapTo(&jogo.form->Janela(), QPoint(celula->width(), 0));
    EXPECT_NEAR(balao->x(), canto.x(), 1);
    EXPECT_NEAR(balao->y() + balao->height(), canto.y(), 1);
}

TEST(BalaoDica, ComesBackOnlyAfterTheMouseHasLeftTheCells)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const toolkit::TextBox &celula = jogo.c().Text1(jogo.d().Item(1).Ponto);
    JogoDeTeste::Paira(celula);
    jogo.c().Timer3.Tique();
    jogo.c().Timer2.Tique();
    EXPECT_FALSE(jogo.c().Picture2.Visible());
    JogoDeTeste::Paira(celula);
    EXPECT_FALSE(jogo.c().Timer3.Ligado()) << "the same text is not shown twice";
    JogoDeTeste::Paira(jogo.c().Pic_q2);
    JogoDeTeste::Paira(celula);
    EXPECT_TRUE(jogo.c().Timer3.Ligado());
    JogoDeTeste::Paira(jogo.c().Pic_q2);
    EXPECT_FALSE(jogo.c().Timer3.Ligado()) << "left before the half second was over";
}

TEST(BalaoDica, GivesAnArrowOnlyWhereAnotherWordIsSolved)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const Cruzamento um = AchaCruzamento(jogo);
    jogo.Resolve(um.itens.primeiro);
    JogoDeTeste::Paira(jogo.c().Text1(um.celula));
    const RegistroItem &aberto = jogo.d().Item(um.itens.segundo);
    EXPECT_EQ(jogo.c().LbHint.Caption(), aberto.Dica);
    EXPECT_EQ(jogo.c().ImgHintDire.Visible(), aberto.Sentido == u'H');
    EXPECT_EQ(jogo.c().ImgHintDire2.Visible(), aberto.Sentido == u'V');
    JogoDeTeste::Paira(jogo.c().Text1(jogo.d().Item(26).Ponto));
    EXPECT_FALSE(jogo.c().ImgHintDire.Visible() &&
                 !jogo.d().Quadrado(jogo.d().Item(26).Ponto).Itens.contains(u','));
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
