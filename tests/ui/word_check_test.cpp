#include "tests/ui/support/test_game.h"

#include "tools/house_rules.h"
#include <gtest/gtest.h>

namespace {

/// A wrong letter for the cell under the cursor.
QString LetraErrada(const JogoDeTeste &jogo)
{
    return jogo.d().Quadrado(jogo.d().estado.Focus).Letra == u'Q' ? QStringLiteral("w")
                                                                  : QStringLiteral("q");
}

} // namespace

TEST(Verificacao, LocksARightWordAndGoesOn)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(1);
    EXPECT_TRUE(jogo.d().Item(1).ItemResolvido);
    EXPECT_EQ(jogo.d().estado.item, 2);
    EXPECT_FALSE(jogo.c().Lbt(1).Visible());
    ASSERT_TRUE(jogo.c().ImgR.ExisteObjeto(1));
    EXPECT_EQ(jogo.c().ImgR(1).Left(), jogo.c().Lbt(1).Left() - 31);
    EXPECT_EQ(jogo.c().ImgR(1).Width(), 301);
    EXPECT_TRUE(jogo.maquina.sons.last().startsWith(QStringLiteral("acerto")));
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Verificacao, ChoosesTheNextOpenItem)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(5);
    EXPECT_EQ(jogo.d().estado.item, 6) << "the next number, though 1 is open";
    jogo.Resolve(4);
    EXPECT_EQ(jogo.d().estado.item, 1) << "the lowest open one where the next is solved";
    jogo.Resolve(26);
    EXPECT_EQ(jogo.d().estado.item, 1);
}

TEST(Verificacao, SizesAMarkByItsSolvedNeighbours)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    for (const int n : {5, 7, 6}) {
        jogo.Resolve(n);
    }
    const auto recuo = [&jogo](int n) { return jogo.c().ImgR(n).Left() - jogo.c().Lbt(n).Left(); };
    EXPECT_EQ(jogo.c().ImgR(5).Width(), 300);
    EXPECT_EQ(recuo(5), -30);
    EXPECT_EQ(jogo.c().ImgR(6).Width(), 302);
    EXPECT_EQ(recuo(6), -31);
    jogo.Resolve(8);
    EXPECT_EQ(jogo.c().ImgR(8).Width(), 301);
    EXPECT_EQ(recuo(8), -31);
}

TEST(Verificacao, AcceptsAWordWithoutItsAccentsAndKeepsItSo)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    int n = 1;
    while (SemAcentos(jogo.d().Item(n).Palavra) == jogo.d().Item(n).Palavra) {
        ++n;
    }
    jogo.Seleciona(n);
    jogo.Digita(SemAcentos(jogo.LetrasLivres(n)).toLower());
    EXPECT_TRUE(jogo.d().Item(n).ItemResolvido);
    EXPECT_EQ(jogo.d().Item(n).Palavra, jogo.d().Item(n).Palavra.toUpper());
    QString noTabuleiro;
    for (int k = 0; k < jogo.d().Item(n).Palavra.size(); ++k) {
        noTabuleiro += jogo.c().Text1(CelulaDaLetra(jogo.d().Item(n), k)).Text();
    }
    EXPECT_EQ(noTabuleiro, SemAcentos(jogo.d().Item(n).Palavra));
}

TEST(Verificacao, WipesAWrongWordAndKeepsItsFixedLetters)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(1);
    // A word that crosses the solved one.
    int cruzado = 0;
    for (int k = 0; cruzado == 0 && k < jogo.d().Item(1).Palavra.size(); ++k) {
        cruzado = LeItens(jogo.d().Quadrado(CelulaDaLetra(jogo.d().Item(1), k)).Itens).segundo;
    }
    ASSERT_NE(cruzado, 0);
    jogo.Seleciona(cruzado);
    jogo.maquina.sons.clear();
    const auto livres = jogo.LetrasLivres(cruzado).size();
    for (qsizetype k = 0; k < livres; ++k) {
        jogo.Digita(LetraErrada(jogo));
    }
    EXPECT_EQ(jogo.d().estado.item, cruzado);
    EXPECT_FALSE(jogo.d().Item(cruzado).ItemResolvido);
    ASSERT_EQ(jogo.maquina.sons.size(), 1)
        << "the selection after a check does not talk over its sound";
    EXPECT_TRUE(jogo.maquina.sons[0].startsWith(QStringLiteral("erro")));
    EXPECT_EQ(jogo.LetrasLivres(cruzado).size(), livres);
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Verificacao, ShowsDesistirFromTenWordsOnAndEndsTheGameAfterTheLast)
{
    JogoDeTeste jogo;
    jogo.EncheRanking();
    jogo.Comeca();
    jogo.ResolveAte(9);
    EXPECT_FALSE(jogo.c().Image6.Visible());
    jogo.ResolveAte(10);
    EXPECT_TRUE(jogo.c().Image6.Visible());
    jogo.maquina.agora += 75;
    jogo.ResolveAte(kItens);
    EXPECT_TRUE(jogo.d().estado.TudoResolvido);
    EXPECT_FALSE(jogo.c().Timer1.Ligado());
    EXPECT_FALSE(jogo.c().Label4.Visible());
    EXPECT_FALSE(jogo.c().Image6.Visible());
    EXPECT_EQ(jogo.d().estado.Focus, 0);
    EXPECT_TRUE(jogo.c().Picture1.TemFoco());
}

TEST(Verificacao, GivesEachCellOneLetterWhereAPasteCameOutRight)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    // Two letters in the first cell and the rest one cell early; a given letter ends the word.
    int n = 1;
    const auto corrida = [](const QString &p) {
        return p.size() >= 4 && p[1].unicode() == p[0].unicode() + 1;
    };
    while (n <= kItens && !corrida(jogo.d().Item(n).Palavra)) {
        ++n;
    }
    RegistroItem &item = jogo.d().Item(n <= kItens ? n : n = 1);
    // The made-up words rarely hold a run, so the item gets one.
    item.Palavra = QStringLiteral("ABCDEFGHIJKLMNO").left(item.Palavra.size());
    for (int k = 0; k < item.Palavra.size(); ++k) {
        jogo.d().Quadrado(CelulaDaLetra(item, k)).Letra = item.Palavra[k];
    }
    jogo.Seleciona(n);
    const auto ultima = static_cast<int>(item.Palavra.size()) - 1;
    jogo.Cola(item.Palavra.left(2));
    jogo.Digita(item.Palavra.mid(2, ultima - 2));
    jogo.c().Text1(CelulaDaLetra(item, ultima)).SetText(item.Palavra.right(1));
    ASSERT_TRUE(item.ItemResolvido);
    for (int k = 0; k < item.Palavra.size(); ++k) {
        EXPECT_EQ(jogo.c().Text1(CelulaDaLetra(item, k)).Text(), item.Palavra.mid(k, 1)) << k;
    }
}
