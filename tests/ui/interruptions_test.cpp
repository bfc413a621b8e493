#include "core/machine/texts.h"
#include "core/records/ranking_table.h"
#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QTest>

using namespace Qt::StringLiterals;

// What comes in the middle of something: an event that a yield lets in, an item that no letter can
// make right, a text that a cell cannot hold.

namespace {

/// Lets `gesto` in at the next yield, once.
void NoProximoIntervalo(JogoDeTeste &jogo, const std::function<void()> &gesto)
{
    jogo.maquina.aoDeixarEventos = [gesto, pronto = false]() mutable {
        if (!std::exchange(pronto, true)) gesto();
    };
}

void Socorro(const JogoDeTeste &jogo, int vezes)
{
    while (vezes-- > 0 && !jogo.d().estado.TudoResolvido)
        Clica(jogo.c().Label4);
}

} // namespace

TEST(Interrupcoes, AnyBankCanBePlayedToGivingUp)
{
    for (const char estranha : {'\x01', '\t', '\x81', '\xad', '-', '\xd1', '\xdf', ' '}) {
        JogoDeTeste jogo(3, BancoInventado(600).replace('E', estranha));
        jogo.Comeca();
        Socorro(jogo, 40);
        for (int n = 1; n <= kItens; ++n)
            jogo.Resolve(n);
        jogo.c().Image6.SetVisible(true);
        jogo.Menu(0);
        EXPECT_TRUE(jogo.valores.Desistiu) << static_cast<int>(estranha);
    }
}

TEST(Interrupcoes, AGameGivenUpOrEndedByHelpInACheckEndsOnce)
{
    for (const bool desiste : {true, false}) {
        JogoDeTeste jogo;
        jogo.Comeca();
        // Nobody can beat the ranking: no name is asked for.
        for (int p = 1; !desiste && p <= 5; ++p)
            GravaLugar(jogo.Caminho(u"Dados/Ranking.dat"), p, u"Ana"_s, 0);
        jogo.ResolveAte(desiste ? kItens - 1 : kItens - 2);
        NoProximoIntervalo(jogo, [&] { desiste ? jogo.Menu(0) : Socorro(jogo, 20); });
        jogo.Resolve(PrimeiroAberto(jogo.d().tabuleiro));
        EXPECT_TRUE(jogo.d().estado.TudoResolvido);
        EXPECT_EQ(jogo.valores.Desistiu, desiste);
        EXPECT_FALSE(desiste && jogo.c().Image6.Visible());
        EXPECT_EQ(jogo.maquina.mensagens.count(texto::Parabens()), desiste ? 0 : 1);
        EXPECT_EQ(QFile::exists(jogo.Caminho(u"Dados/Ranking.dat")), !desiste);
    }
}

TEST(Interrupcoes, TheBubbleFollowsTheMouseThatHasMovedOn)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const toolkit::Control &celula = jogo.c().Text1(jogo.d().Item(2).Ponto);
    const toolkit::Control &outra = jogo.c().Text1(jogo.d().Item(9).Ponto);
    const auto sai = [&] { QTest::mouseMove(jogo.form->Janela().windowHandle(), {560, 420}); };
    NoProximoIntervalo(jogo, sai);
    Paira(celula);
    EXPECT_FALSE(jogo.c().Timer3.Ligado()) << "the mouse has left the cells";
    Paira(outra);
    const QString dica = jogo.c().LbHint.Caption();
    sai();
    NoProximoIntervalo(jogo, [&] { Paira(outra); });
    Paira(celula);
    EXPECT_TRUE(jogo.c().Timer3.Ligado());
    EXPECT_EQ(jogo.c().LbHint.Caption(), dica) << "the later cell's";
}
