#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTest>

namespace {

/// Runs `acao` at a moment in the middle of the next build.
void NoMeioDaMontagem(JogoDeTeste &jogo, const std::function<void()> &acao)
{
    QTimer::singleShot(0, &jogo.form->Janela(), [&jogo, acao] {
        EXPECT_TRUE(jogo.c().Image4.Visible());
        acao();
    });
}

} // namespace

TEST(NovoJogo, OpensPlayWithItemOneSelectedAndTheClockAtZero)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    EXPECT_EQ(jogo.d().tabuleiro.QtdItens, kItens);
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_EQ(jogo.d().estado.Focus, jogo.d().Item(1).Ponto);
    EXPECT_EQ(jogo.c().Label1.Caption(), jogo.d().Item(1).Dica);
    EXPECT_EQ(jogo.c().Label2.Caption(), QStringLiteral("00:00:00"));
    EXPECT_FALSE(jogo.c().Picespere.Visible());
    EXPECT_FALSE(jogo.c().Image4.Visible());
    EXPECT_FALSE(jogo.c().Image6.Visible());
    EXPECT_TRUE(jogo.c().Label4.Visible());
    EXPECT_TRUE(jogo.c().Timer4.Ligado());
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
    // The first game of a run opens in silence.
    EXPECT_EQ(jogo.maquina.sons, QStringList());
}

TEST(NovoJogo, SoundsWhenItComesOutOfAGameInPlayAndNotAfterASolvedOne)
{
    JogoDeTeste jogo;
    jogo.EncheRanking();
    jogo.Comeca();
    JogoDeTeste::Clica(*jogo.c().Label3[0]);
    EXPECT_EQ(jogo.maquina.sons,
              QStringList({QStringLiteral("click.wav"), QStringLiteral("select.wav")}));
    jogo.ResolveAte(kItens);
    ASSERT_TRUE(jogo.d().estado.TudoResolvido);
    jogo.maquina.sons.clear();
    JogoDeTeste::Clica(*jogo.c().Label3[0]);
    EXPECT_EQ(jogo.maquina.sons, QStringList({QStringLiteral("click.wav")}));
    EXPECT_FALSE(jogo.d().estado.TudoResolvido);
    EXPECT_TRUE(jogo.c().Label4.Visible());
}

TEST(NovoJogo, AnswersNoCommandWhileTheBoardIsBuilt)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    int chamadas = 0;
    NoMeioDaMontagem(jogo, [&] {
        ++chamadas;
        JogoDeTeste::Clica(*jogo.c().Label3[0]);
        JogoDeTeste::Clica(jogo.c().Lbt(7));
        jogo.Digita(QStringLiteral("a"));
    });
    JogoDeTeste::Clica(*jogo.c().Label3[0]);
    EXPECT_EQ(chamadas, 1);
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_EQ(jogo.maquina.sons.count(QStringLiteral("click.wav")), 2);
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(NovoJogo, LetsTheShieldTakeTheClicksOfTheOtherEntries)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const auto embaixo = [&jogo](int entrada) {
        const QWidget *zona = jogo.c().Label3[static_cast<size_t>(entrada)]->Widget();
        return jogo.form->Janela().childAt(zona->geometry().center());
    };
    EXPECT_EQ(embaixo(0), jogo.c().Label3[0]->Widget());
    EXPECT_EQ(embaixo(3), jogo.c().Label3[3]->Widget());
    jogo.c().Image4.SetVisible(true);
    jogo.c().Image6.SetVisible(true);
    EXPECT_EQ(embaixo(0), jogo.c().Label3[0]->Widget());
    for (int entrada = 1; entrada < 6; ++entrada) {
        EXPECT_EQ(embaixo(entrada), jogo.c().Image4.Widget()) << entrada;
    }
}

TEST(NovoJogo, SurvivesAThousandClicksQueuedDuringABuild)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    QWidget *entrada = jogo.c().Label3[0]->Widget();
    for (int k = 0; k < 1000; ++k) {
        for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QApplication::postEvent(
                entrada,
                new QMouseEvent(tipo, QPointF(5, 5), entrada->mapToGlobal(QPointF(5, 5)),
                                Qt::LeftButton,
                                tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                Qt::NoModifier));
        }
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(jogo.maquina.sons.count(QStringLiteral("click.wav")), 1000);
    EXPECT_EQ(jogo.FaltaNoEstado(), QString());
}

TEST(NovoJogo, CancelsTheMemoryOfAPuzzleThrownAway)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const QString arquivo = jogo.Caminho(u"Dados/jf.dat");
    JogoDeTeste::Clica(*jogo.c().Label3[0]);
    EXPECT_FALSE(QFile::exists(arquivo));
    jogo.c().Timer4.Tique();
    EXPECT_FALSE(jogo.c().Timer4.Ligado());
    MemoriaUsadas memoria;
    LeUsadas(memoria, arquivo);
    EXPECT_EQ(memoria.QtdUsadas, kItens);
    EXPECT_EQ(memoria.PalavrasUsadas[26], jogo.d().Item(26).Palavra);
}

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
