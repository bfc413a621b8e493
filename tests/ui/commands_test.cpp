#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>

namespace {

const QString kAviso =
    QStringLiteral("Uma letra será revelada e dois minutos serão acrescentados ao seu tempo");

/// Number of occupied cells with a fixed letter.
int Fixas(const JogoDeTeste &jogo)
{
    int fixas = 0;
    for (int i = 1; i <= kCelulas; ++i) {
        fixas += jogo.d().Ocupada(i) && jogo.d().Quadrado(i).Fixa ? 1 : 0;
    }
    return fixas;
}

void Entrada(const JogoDeTeste &jogo, int k)
{
    JogoDeTeste::Clica(*jogo.c().Label3[static_cast<size_t>(k)]);
}

QString HoraMostrada(JogoDeTeste &jogo)
{
    jogo.c().Timer1.Tique();
    return jogo.c().Label2.Caption();
}

} // namespace

TEST(Socorro, GivesACrossingLetterForTwoMinutes)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.maquina.agora += 600;
    JogoDeTeste::Clica(jogo.c().Label4);
    EXPECT_EQ(jogo.maquina.mensagens, QStringList{kAviso});
    ASSERT_EQ(Fixas(jogo), 1);
    int dada = 1;
    while (!jogo.d().Quadrado(dada).Fixa) {
        ++dada;
    }
    EXPECT_EQ(jogo.d().Quadrado(dada).Sentido, QChar(u'M'));
    EXPECT_EQ(jogo.c().Text1(dada).Text(), QString(jogo.d().Quadrado(dada).Letra));
    const ItensDaCelula itens = LeItens(jogo.d().Quadrado(dada).Itens);
    EXPECT_TRUE(jogo.d().estado.item == itens.primeiro || jogo.d().estado.item == itens.segundo);
    EXPECT_EQ(HoraMostrada(jogo), QStringLiteral("00:12:00"));
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Socorro, ChangesNothingWhenThePlayerCancels)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.maquina.respostas = {Resposta::Cancelar};
    JogoDeTeste::Clica(jogo.c().Label4);
    EXPECT_EQ(Fixas(jogo), 0);
    EXPECT_EQ(HoraMostrada(jogo), QStringLiteral("00:00:00"));
}

TEST(Socorro, CanGiveTheWholePuzzleLetterByLetter)
{
    JogoDeTeste jogo(3);
    jogo.EncheRanking();
    jogo.Comeca();
    int vezes = 0;
    while (!jogo.d().estado.TudoResolvido && vezes < 300) {
        JogoDeTeste::Clica(jogo.c().Label4);
        ASSERT_EQ(jogo.FaltaNoEstado(), QString()) << vezes;
        ++vezes;
        // Given letters can leave open items without a free cell; selecting one finds it right.
        for (int n = 1; n <= kItens && !jogo.d().estado.TudoResolvido; ++n) {
            if (!jogo.d().Item(n).ItemResolvido && jogo.LetrasLivres(n).isEmpty()) {
                jogo.Seleciona(n);
            }
        }
    }
    EXPECT_TRUE(jogo.d().estado.TudoResolvido);
    EXPECT_GT(vezes, 60);
}

TEST(Desistir, ShowsTheMissingLettersInRedAndLeavesTheClues)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.ResolveAte(10);
    const int selecionado = jogo.d().estado.item;
    const int certa = jogo.d().estado.Focus;
    jogo.Digita(QString(jogo.d().Quadrado(certa).Letra));
    jogo.maquina.agora += 100;
    const QString antes = HoraMostrada(jogo);
    Entrada(jogo, 0);
    EXPECT_TRUE(jogo.d().valores.Desistiu);
    EXPECT_EQ(jogo.c().Text1(certa).ForeColor(), toolkit::kPreto)
        << "a right letter keeps its black";
    const RegistroItem &item = jogo.d().Item(selecionado);
    const int ultima = CelulaDaLetra(item, static_cast<int>(item.Palavra.size()) - 1);
    EXPECT_EQ(jogo.c().Text1(ultima).ForeColor(), kCorRevelada);
    EXPECT_EQ(jogo.c().Text1(ultima).Text(), QString(jogo.d().Quadrado(ultima).Letra));
    EXPECT_FALSE(jogo.c().Image6.Visible());
    jogo.maquina.agora += 50;
    EXPECT_EQ(HoraMostrada(jogo), antes) << "the clock stands";
    jogo.Seleciona(26);
    EXPECT_EQ(jogo.c().Label1.Caption(), jogo.d().Item(26).Dica);
    JogoDeTeste::Clica(jogo.c().Label4);
    EXPECT_EQ(jogo.maquina.mensagens.last(), kAviso) << "help asks, and finds no cell";
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
    Entrada(jogo, 0);
    EXPECT_FALSE(jogo.d().valores.Desistiu);
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Comandos, RefuseRestartAndSaveInAFinishedGame)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.ResolveAte(10);
    Entrada(jogo, 0);
    jogo.maquina.mensagens.clear();
    Entrada(jogo, 1);
    Entrada(jogo, 3);
    EXPECT_EQ(jogo.maquina.mensagens,
              QStringList({QStringLiteral("O jogo atual já está resolvido.\rClique em 'Novo Jogo'"),
                           QStringLiteral("O jogo atual já está completamente resolvido")}));
}

TEST(Reiniciar, EmptiesTheBoardAndKeepsTheClockAndDesistir)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    JogoDeTeste::Clica(jogo.c().Label4);
    JogoDeTeste::Clica(jogo.c().Label4);
    jogo.ResolveAte(10);
    const QString palavra = jogo.d().Item(7).Palavra;
    Entrada(jogo, 1);
    EXPECT_EQ(Fixas(jogo), 0);
    EXPECT_EQ(ContaResolvidos(jogo.d().tabuleiro), 0);
    EXPECT_EQ(jogo.d().Item(7).Palavra, palavra);
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_TRUE(jogo.c().Lbt(1).Visible());
    EXPECT_FALSE(jogo.c().ImgR.ExisteObjeto(1));
    EXPECT_TRUE(jogo.c().Image6.Visible());
    EXPECT_EQ(HoraMostrada(jogo), QStringLiteral("00:04:00"));
    jogo.Resolve(1);
    EXPECT_FALSE(jogo.c().Image6.Visible()) << "the next right word sets it by the new count";
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(Comandos, FrameAnEntryWhileItsButtonIsHeldAndLeave)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    toolkit::Label &sair = *jogo.c().Label3[5];
    sair.MouseDown({});
    EXPECT_EQ(sair.BorderStyle(), 1);
    sair.MouseUp({});
    EXPECT_EQ(sair.BorderStyle(), 0);
    Entrada(jogo, 5);
    JogoDeTeste::Clica(jogo.c().Image2);
    EXPECT_EQ(jogo.maquina.fins, 2);
}

TEST(Relogio, KnowsNoMidnightAndNeverGoesBelowZero)
{
    JogoDeTeste jogo;
    jogo.maquina.agora = 86390.5;
    jogo.Comeca();
    EXPECT_EQ(HoraMostrada(jogo), QStringLiteral("00:00:00"));
    jogo.maquina.agora += 3600;
    EXPECT_EQ(HoraMostrada(jogo), QStringLiteral("01:00:00"));
}
