#include "ui/update/about.h"

#include "core/machine/texts.h"
#include "tests/ui/support/net.h"
#include "ui/forms/control_table.h"
#include <QGuiApplication>
#include <QTest>

namespace {

class Sobre : public TesteDeRede
{
protected:
    Sobre()
    {
        valores.Titulo = u"Um Jogo"_s;
        NovaForma();
    }
    void NovaForma()
    {
        form = std::make_unique<FrmSobre>(
            valores, maquina.ambiente, toolkit::kDpiPadrao,
            LugaresDaRede{servidor.Endereco(), [this] { return maquina.PastaTemporaria(); },
                          [this] { return maquina.PastaDownloads(); }});
        form->Janela().Show();
    }
    toolkit::Label &L(const char16_t *nome)
    {
        return forms::Acha<toolkit::Label>(form->Janela(), nome);
    }
    /// Clicks "Atualizar" and gives back the first message that comes.
    QString Atualiza()
    {
        maquina.mensagens.clear();
        Clica(L(u"Label10"));
        EXPECT_FALSE(maquina.preso);
        return maquina.mensagens.value(0);
    }

    ValoresPrograma valores;
    std::unique_ptr<FrmSobre> form;
};

QString Pergunta(const QString &versao)
{
    return texto::PerguntaAtualizar(u"1.5.1"_s, versao);
}

} // namespace

TEST_F(Sobre, AnswersEachKindOfReply)
{
    const QByteArray longa(10'000, 'z');
    const QString emDia = texto::VersaoEmDia(u"Um Jogo"_s);
    for (const auto &[resposta, mensagem] : std::vector<std::pair<QByteArray, QString>>{
             {"!*!x!*!1.6.0!*!ftp://a", Pergunta(u"1.6.0"_s)},
             {"!*!!*!1.6.0!*!ftp://a!*!\n", Pergunta(u"1.6.0"_s)},
             {"!*!x!*!1.6.0", Pergunta(u"1.6.0\r\n"_s)},
             {"!*!x!*!9%1%2!*!ftp://a", Pergunta(u"9%1%2"_s)},
             {"!*!x!*!9" + longa + "!*!a", Pergunta(u'9' + QString(10'000, u'z'))},
             {"!*!x!*!9\n8\r7!*!a", Pergunta(u"9\r\n8\r\n7"_s)},
             {"!*!x!*!1.5.1!*!a", emDia},
             {"!*!x!*!1.4.9!*!a", emDia},
             {"!*!x!*!10.0.0!*!a", emDia},
             {"!*!", emDia},
             {"x!*!1.6.0!*!a", u"!*!Linkx!*!1.6.0!*!a\r\n"_s},
             {"<html>erro</html>", texto::SemConexao()},
             {"", texto::SemConexao()}}) {
        SCOPED_TRACE(resposta.left(30).data());
        servidor.Responde("/update.php", Diz(Http200(resposta)));
        maquina.respostas = {Resposta::Nao};
        EXPECT_EQ(Atualiza(), mensagem);
        EXPECT_EQ(maquina.mensagens.size(), 1);
        EXPECT_EQ(maquina.botoes == Botoes::SimNao, mensagem.startsWith(u"Você está utilizando a"));
    }
    EXPECT_EQ(valores.LinkAtualizacao, QString());
    EXPECT_EQ(maquina.Arquivos(), QStringList());
    EXPECT_TRUE(servidor.Pedidos().last().startsWith("GET /update.php?prog=Um%20Jogo HTTP"));
}

TEST_F(Sobre, FetchesTheNewVersionOnYes)
{
    const QString endereco = servidor.Endereco("/jogo-1.6.exe");
    servidor.Responde("/update.php", Diz(Http200("!*!x!*!1.6.0!*!" + endereco.toLatin1())));
    servidor.Responde("/jogo-1.6.exe", Diz(Http200("MZ")));
    EXPECT_EQ(Atualiza(), Pergunta(u"1.6.0"_s));
    EXPECT_EQ(valores.LinkAtualizacao.trimmed(), endereco);
    EXPECT_TRUE(maquina.mensagens.value(1).contains(u"jogo-1.6.exe"));
    EXPECT_EQ(maquina.Arquivos(), QStringList{u"jogo-1.6.exe"_s});
    EXPECT_EQ(maquina.paginas, QStringList());
}

TEST_F(Sobre, StaysOpenWhileACheckRunsAndClosesInEveryWayWhenIdle)
{
    const std::vector<std::function<void(toolkit::Form &)>> fechos = {
        [](toolkit::Form &janela) { QTest::keyClick(&janela, Qt::Key_Escape); },
        [](toolkit::Form &janela) { QTest::keyClick(&janela, Qt::Key_Enter); },
        [](toolkit::Form &janela) { QTest::keyClick(&janela, Qt::Key_Return); },
        [](toolkit::Form &janela) { janela.close(); },
        [](toolkit::Form &janela) {
            Clica(forms::Acha<toolkit::CommandButton>(janela, u"Command1"));
        }};
    servidor.Responde("/update.php", Diz("", Depois::Espera));
    int voltas = 0;
    maquina.aCadaVolta = [&] {
        ++voltas;
        maquina.agora += 1;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        for (const auto &fecho : fechos)
            fecho(form->Janela());
        Clica(L(u"Label10"));
        EXPECT_TRUE(form->Janela().isVisible());
    };
    EXPECT_EQ(Atualiza(), texto::SemConexao());
    EXPECT_GT(voltas, kTempoLimiteS);
    EXPECT_GT(maquina.tiques, 0);
    EXPECT_EQ(maquina.mensagens.size(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    // Deaf until the form is opened anew.
    maquina.aCadaVolta = nullptr;
    servidor.Responde("/update.php", Diz(Http200("!*!x!*!1.5.1!*!a")));
    maquina.passo = 1;
    EXPECT_EQ(Atualiza(), texto::SemConexao());
    maquina.passo = 0;
    for (const auto &fecho : fechos) {
        NovaForma();
        EXPECT_EQ(Atualiza(), texto::VersaoEmDia(u"Um Jogo"_s));
        fecho(form->Janela());
        EXPECT_FALSE(form->Janela().isVisible());
    }
}

TEST_F(Sobre, NamesTheGameAndOpensTheSupportPage)
{
    EXPECT_EQ(form->Janela().windowTitle(), u" Sobre o Um Jogo"_s);
    EXPECT_EQ(L(u"Label1").Caption(), u"Lumbra - Um Jogo  1.5.1"_s);
    EXPECT_EQ(TextoCurto({2, 10, 0}), u"2.10"_s);
    Clica(L(u"Label7"));
    EXPECT_EQ(maquina.paginas, QStringList{servidor.Endereco("/html/faleconosco.html")});
}
