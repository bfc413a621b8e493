#include "ui/update/about.h"

#include <gtest/gtest.h>

#include "tests/ui/support/net_machine.h"
#include "tests/ui/support/net_server.h"
#include "ui/forms/control_table.h"
#include <QDir>
#include <QGuiApplication>
#include <QTest>

namespace {

const QString kSemServidor = QStringLiteral("Não foi possível conectar ao servidor");
const QString kMaisRecente =
    QStringLiteral("Você já está utilizando a versão mais recente do Um Jogo");

class Sobre : public ::testing::Test
{
protected:
    Sobre()
    {
        valores.Titulo = QStringLiteral("Um Jogo");
        NovaForma();
    }

    void NovaForma()
    {
        form = std::make_unique<FrmSobre>(
            valores, maquina.ambiente, toolkit::kDpiPadrao,
            LugaresDaRede{servidor.Site(), [this] { return maquina.PastaTemporaria(); },
                          [this] { return maquina.PastaDownloads(); }});
        form->Janela().Show();
    }

    void Clica(const char16_t *nome)
    {
        QTest::mouseClick(forms::Acha<toolkit::Label>(form->Janela(), nome).Widget(),
                          Qt::LeftButton);
    }

    /// Clicks "Atualizar" and gives back the first message that comes.
    QString Atualiza()
    {
        maquina.mensagens.clear();
        Clica(u"Label10");
        EXPECT_FALSE(maquina.preso);
        return maquina.mensagens.empty() ? QString() : maquina.mensagens[0].texto;
    }

    ValoresPrograma valores;
    MaquinaDeRede maquina;
    ServidorDeTeste servidor;
    std::unique_ptr<FrmSobre> form;
};

QString Pergunta(const QString &versao)
{
    return QStringLiteral("Você está utilizando a versão 1.5.1\r\n\r\n"
                          "Deseja atualizar para a versão %1 agora?")
        .arg(versao);
}

} // namespace

TEST_F(Sobre, AnswersEachKindOfReply)
{
    struct Caso
    {
        const char *nome;
        QByteArray resposta;
        QString mensagem;
    };
    const QByteArray longa(10'000, 'z');
    const std::vector<Caso> casos = {
        {"newer", "!*!x!*!1.6.0!*!ftp://a", Pergunta(QStringLiteral("1.6.0"))},
        {"newer, closed", "!*!!*!1.6.0!*!ftp://a!*!\n", Pergunta(QStringLiteral("1.6.0"))},
        {"no address", "!*!x!*!1.6.0", Pergunta(QStringLiteral("1.6.0\r\n"))},
        {"placeholder", "!*!x!*!9%1%2!*!ftp://a", Pergunta(QStringLiteral("9%1%2"))},
        {"long", "!*!x!*!9" + longa + "!*!a", Pergunta(u'9' + QString(10'000, u'z'))},
        {"line ends", "!*!x!*!9\n8\r7!*!a", Pergunta(QStringLiteral("9\r\n8\r\n7"))},
        {"same", "!*!x!*!1.5.1!*!a", kMaisRecente},
        {"older", "!*!x!*!1.4.9!*!a", kMaisRecente},
        {"more digits", "!*!x!*!10.0.0!*!a", kMaisRecente},
        {"separator alone", "!*!", kMaisRecente},
        {"does not begin with it", "x!*!1.6.0!*!a", QStringLiteral("!*!Linkx!*!1.6.0!*!a\r\n")},
        {"no separator", "<html>erro</html>", kSemServidor},
        {"empty", "", kSemServidor},
    };
    maquina.resposta = Resposta::Nao;
    for (const Caso &caso : casos) {
        servidor.Responde("/update.php", Diz(Http200(caso.resposta)));
        EXPECT_EQ(Atualiza(), caso.mensagem) << caso.nome;
        ASSERT_EQ(maquina.mensagens.size(), 1U) << caso.nome;
        const bool pergunta = caso.mensagem.startsWith(QStringLiteral("Você está"));
        EXPECT_EQ(maquina.mensagens[0].botoes, pergunta ? Botoes::SimNao : Botoes::Ok) << caso.nome;
    }
    EXPECT_EQ(valores.LinkAtualizacao, QString());
    EXPECT_EQ(maquina.Arquivos(), QStringList());
    EXPECT_TRUE(servidor.Pedidos().last().startsWith("GET /update.php?prog=Um%20Jogo HTTP"));
}

TEST_F(Sobre, FetchesTheNewVersionOnYes)
{
    const QString endereco = servidor.Site() + QStringLiteral("/jogo-1.6.exe");
    servidor.Responde("/update.php", Diz(Http200("!*!x!*!1.6.0!*!" + endereco.toLatin1())));
    servidor.Responde("/jogo-1.6.exe", Diz(Http200("MZ")));
    EXPECT_EQ(Atualiza(), Pergunta(QStringLiteral("1.6.0")));
    EXPECT_EQ(valores.LinkAtualizacao.trimmed(), endereco);
    ASSERT_EQ(maquina.mensagens.size(), 2U);
    EXPECT_TRUE(maquina.mensagens[1].texto.contains(QStringLiteral("jogo-1.6.exe")));
    EXPECT_EQ(maquina.Arquivos(), QStringList{QStringLiteral("jogo-1.6.exe")});
    EXPECT_EQ(maquina.paginas, QStringList());
}

TEST_F(Sobre, StaysOpenWhileACheckRuns)
{
    servidor.Responde("/update.php", Diz("", Depois::Espera));
    auto &janela = form->Janela();
    const auto &ok = forms::Acha<toolkit::CommandButton>(janela, u"Command1");
    int voltas = 0;
    maquina.aCadaVolta = [&] {
        ++voltas;
        maquina.agora += 1;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QTest::keyClick(&janela, Qt::Key_Escape);
        QTest::keyClick(&janela, Qt::Key_Return);
        QTest::mouseClick(ok.Widget(), Qt::LeftButton);
        janela.close();
        Clica(u"Label10");
        EXPECT_TRUE(janela.isVisible());
    };
    EXPECT_EQ(Atualiza(), kSemServidor);
    EXPECT_GT(voltas, kTempoLimiteS);
    EXPECT_GT(maquina.tiques, 0);
    EXPECT_EQ(maquina.mensagens.size(), 1U);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(ok.Enabled());

    // Deaf until the form is opened anew.
    maquina.aCadaVolta = nullptr;
    servidor.Responde("/update.php", Diz(Http200("!*!x!*!1.5.1!*!a")));
    maquina.passo = 1;
    EXPECT_EQ(Atualiza(), kSemServidor);
    maquina.passo = 0;
    NovaForma();
    EXPECT_EQ(Atualiza(), kMaisRecente);
}

TEST_F(Sobre, ClosesInEveryWayWhenIdle)
{
    const std::vector<std::function<void(toolkit::Form &)>> modos = {
        [](toolkit::Form &janela) { QTest::keyClick(&janela, Qt::Key_Escape); },
        [](toolkit::Form &janela) { QTest::keyClick(&janela, Qt::Key_Enter); },
        [](toolkit::Form &janela) { janela.close(); },
        [](toolkit::Form &janela) {
            QTest::mouseClick(forms::Acha<toolkit::CommandButton>(janela, u"Command1").Widget(),
                              Qt::LeftButton);
        },
    };
    for (const auto &modo : modos) {
        NovaForma();
        modo(form->Janela());
        EXPECT_FALSE(form->Janela().isVisible());
    }
}

TEST_F(Sobre, NamesTheGameAndOpensTheSupportPage)
{
    const auto texto = [this](const char16_t *nome) {
        return forms::Acha<toolkit::Label>(form->Janela(), nome).Caption();
    };
    EXPECT_EQ(form->Janela().windowTitle(), QStringLiteral(" Sobre o Um Jogo"));
    EXPECT_EQ(texto(u"Label1"), QStringLiteral("Lumbra - Um Jogo  1.5.1"));
    EXPECT_EQ(TextoCurto({2, 10, 0}), QStringLiteral("2.10"));
    Clica(u"Label7");
    EXPECT_EQ(maquina.paginas,
              QStringList{servidor.Site() + QStringLiteral("/html/faleconosco.html")});
}
