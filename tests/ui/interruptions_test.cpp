#include "core/files/codepage.h"
#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <utility>

// What comes in the middle of something: an event that a yield lets in, an item that no letter can
// make right, a text that a cell cannot hold.

namespace {

/// Lets `gesto` in at the next yield, once.
void NoProximoIntervalo(JogoDeTeste &jogo, const std::function<void()> &gesto)
{
    jogo.maquina.aoDeixarEventos = [&jogo, gesto, pronto = false]() mutable {
        if (!std::exchange(pronto, true)) {
            gesto();
        }
    };
}

void SocorroAteOFim(JogoDeTeste &jogo, int vezes)
{
    for (int vez = 0; vez < vezes && !jogo.d().estado.TudoResolvido; ++vez) {
        JogoDeTeste::Clica(jogo.c().Label4);
    }
}

} // namespace

TEST(Interrupcoes, AFullItemIsJudgedOnceAndNoMore)
{
    for (const bool certa : {true, false}) {
        JogoDeTeste jogo;
        jogo.Comeca();
        const RegistroItem &item = jogo.d().Item(9);
        jogo.d().estado.item = 0;
        for (int k = 0; k < item.Palavra.size(); ++k) {
            const int i = CelulaDaLetra(item, k);
            jogo.d().Quadrado(i).Fixa = true;
            jogo.c().Text1(i).SetText(certa ? QString(item.Palavra[k]) : QStringLiteral("9"));
        }
        jogo.maquina.sons.clear();
        jogo.Seleciona(9);
        EXPECT_EQ(jogo.d().Item(9).ItemResolvido, certa);
        EXPECT_EQ(jogo.d().estado.item == 9, !certa);
        EXPECT_EQ(jogo.d().estado.Focus == 0, !certa);
        EXPECT_EQ(jogo.maquina.sons.size(), 2) << "the selection's, and one judgement's";
    }
}

TEST(Interrupcoes, AnyBankCanBePlayedToGivingUp)
{
    for (const char estranha : {'\x01', '\t', '\x81', '\xad', '-', '\xd1', '\xdf', ' '}) {
        JogoDeTeste jogo(3, BancoInventado(600).replace('E', estranha));
        jogo.Comeca();
        SocorroAteOFim(jogo, 40);
        for (int n = 1; n <= kItens; ++n) {
            jogo.Resolve(n);
        }
        jogo.d().MostraDesistir(true);
        JogoDeTeste::Clica(*jogo.c().Label3[0]);
        EXPECT_TRUE(jogo.valores.Desistiu) << static_cast<int>(estranha);
        jogo.c().Text1(jogo.d().Item(1).Ponto).SetText(QStringLiteral("x"));
        EXPECT_NE(jogo.c().Text1(jogo.d().Item(1).Ponto).Text(), QStringLiteral("x"));
    }
}

TEST(Interrupcoes, AGameGivenUpInItsLastCheckGetsNoPlace)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.ResolveAte(kItens - 1);
    ASSERT_TRUE(jogo.c().Image6.Visible());
    NoProximoIntervalo(jogo, [&jogo] { JogoDeTeste::Clica(*jogo.c().Label3[0]); });
    jogo.ResolveAte(kItens);
    EXPECT_TRUE(jogo.valores.Desistiu);
    EXPECT_FALSE(jogo.c().Image6.Visible());
    EXPECT_EQ(jogo.maquina.mensagens, QStringList());
    EXPECT_FALSE(QFile::exists(jogo.Caminho(kArquivoRanking)));
}

TEST(Interrupcoes, AGameThatHelpEndsInACheckEndsOnce)
{
    JogoDeTeste jogo;
    jogo.EncheRanking();
    jogo.Comeca();
    jogo.ResolveAte(kItens - 2);
    NoProximoIntervalo(jogo, [&jogo] { SocorroAteOFim(jogo, 20); });
    jogo.ResolveAte(kItens - 1);
    ASSERT_TRUE(jogo.d().estado.TudoResolvido);
    EXPECT_EQ(jogo.maquina.mensagens.count(QStringLiteral("Parabéns !!!")), 1);
}

TEST(Interrupcoes, TheBubbleFollowsTheMouseThatHasMovedOn)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const toolkit::Control &celula = jogo.c().Text1(jogo.d().Item(2).Ponto);
    const toolkit::Control &outra = jogo.c().Text1(jogo.d().Item(9).Ponto);
    NoProximoIntervalo(jogo, [&jogo] { JogoDeTeste::Paira(jogo.c().Pic_q2); });
    JogoDeTeste::Paira(celula);
    EXPECT_FALSE(jogo.c().Timer3.Ligado()) << "the mouse has left the cells";
    JogoDeTeste::Paira(outra);
    const QString dica = jogo.c().LbHint.Caption();
    JogoDeTeste::Paira(jogo.c().Pic_q2);
    NoProximoIntervalo(jogo, [&outra] { JogoDeTeste::Paira(outra); });
    JogoDeTeste::Paira(celula);
    EXPECT_TRUE(jogo.c().Timer3.Ligado());
    EXPECT_EQ(jogo.c().LbHint.Caption(), dica) << "the later cell's";
}
