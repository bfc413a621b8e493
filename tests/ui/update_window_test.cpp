#include "ui/update/update_window.h"

#include "core/machine/texts.h"
#include "tests/ui/support/net.h"
#include <QApplication>
#include <QPushButton>
#include <QTest>

namespace {

class JanelaDeBaixar : public TesteDeRede
{
protected:
    /// Gives the messages that have been shown.
    QStringList Baixa(const QString &endereco, const QString &pasta)
    {
        maquina.mensagens.clear();
        valores.LinkAtualizacao = endereco;
        BaixaAtualizacao(valores, maquina.ambiente, pasta, dona);
        EXPECT_FALSE(maquina.preso);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return maquina.mensagens;
    }
    QStringList Baixa(const QString &endereco) { return Baixa(endereco, maquina.PastaDownloads()); }
    [[nodiscard]] QString NaPasta(const char *nome) const
    {
        return QDir::toNativeSeparators(
            QDir(maquina.PastaDownloads()).filePath(QString::fromUtf8(nome)));
    }

    ValoresPrograma valores;
    toolkit::Form dona{toolkit::Moldura::Ferramenta, toolkit::kDpiPadrao};
};

} // namespace

TEST_F(JanelaDeBaixar, KeepsTheFileUnderAHarmlessFreeName)
{
    servidor.Responde("/jogo.exe", Diz(Http200("MZ")));
    servidor.Responde("/", Diz(Http("200 OK", "", "MZ")));
    servidor.Responde("/a/..%2F..%2Ffora.exe", Diz(Http200("MZ")));
    for (const auto &[caminho, nome] : std::vector<std::pair<const char *, const char *>>{
             {"/jogo.exe?v=1.6\r\n", "jogo.exe"},
             {"/jogo.exe", "jogo (2).exe"},
             {"/", "Quadrelo"},
             {"/a/..%2F..%2Ffora.exe", "_.._fora.exe"}}) {
        EXPECT_EQ(Baixa(servidor.Endereco(caminho)),
                  QStringList{texto::AtualizacaoGravada(NaPasta(nome))});
        EXPECT_EQ(QFileInfo(NaPasta(nome)).size(), 2) << nome;
    }
    EXPECT_EQ(maquina.Arquivos().size(), 4);
}

TEST_F(JanelaDeBaixar, SaysWhenThereIsNoFileAndLeavesNone)
{
    const QByteArray cortado = Http("200 OK", "Content-Length: 9\r\n", "MZ");
    servidor.Responde("/cortado", Diz(cortado));
    servidor.Responde("/vazio", Diz(Http200("")));
    servidor.Responde("/parado", Diz(cortado, Depois::Espera));
    servidor.Responde("/local", Desvia(u"file:///etc/hostname"_s));
    maquina.passo = 0.1;
    const QString vazio = servidor.Endereco("/vazio");
    for (const QString &endereco :
         {servidor.Endereco("/cortado"), vazio, servidor.Endereco("/parado"),
          servidor.Endereco("/local"), servidor.Endereco("/nada"), u"file:///etc/hostname"_s,
          QString(), u"javascript:alert(1)"_s, u"ftp://127.0.0.1/jogo.exe"_s}) {
        EXPECT_EQ(Baixa(endereco), QStringList{texto::AtualizacaoFalhou()}) << qPrintable(endereco);
        EXPECT_EQ(maquina.Arquivos(), QStringList()) << qPrintable(endereco);
    }
    // A file stands where the folder would be.
    const QString pasta = maquina.PastaTemporaria() + u"arquivo"_s;
    ASSERT_TRUE(QFile(pasta).open(QIODevice::WriteOnly));
    EXPECT_EQ(Baixa(vazio, pasta), QStringList{texto::AtualizacaoFalhou()});
}

TEST_F(JanelaDeBaixar, CanBeCancelledInEveryWay)
{
    servidor.Responde("/jogo.exe",
                      Diz(Http("200 OK", "Content-Length: 10\r\n", "metad"), Depois::Espera));
    const auto aperta = [](QWidget *botao) { QTest::mouseClick(botao, Qt::LeftButton); };
    for (const auto &modo : std::vector<std::function<void(QWidget &)>>{
             [&](QWidget &janela) { aperta(janela.findChild<QPushButton *>()); },
             [&](QWidget &janela) { aperta(janela.findChild<QWidget *>(u"Image1"_s)); },
             [](QWidget &janela) { QTest::keyClick(&janela, Qt::Key_Escape); },
             [](QWidget &janela) { janela.close(); }}) {
        int voltas = 0;
        maquina.tiques = 0;
        maquina.aCadaVolta = [&] {
            QWidget *janela = QApplication::activeModalWidget();
            const QImage barra = janela->findChild<QWidget *>(u"PicBaixado"_s)->grab().toImage();
            const auto cor = [&barra](int x) {
                return barra.pixelColor(barra.width() / 2 + x, barra.height() / 2);
            };
            // The bar shows a percentage of 50 before the player loses patience.
            if (cor(-4) != QColor(222, 199, 24) || ++voltas != 2) return;
            EXPECT_EQ(cor(4), toolkit::kBranco);
            EXPECT_TRUE(janela->isVisible());
            EXPECT_FALSE(QFile::exists(NaPasta("jogo.exe"))) << "a game killed now leaves it";
            modo(*janela);
        };
        EXPECT_EQ(Baixa(servidor.Endereco("/jogo.exe")), QStringList());
        EXPECT_EQ(voltas, 2);
        EXPECT_GT(maquina.tiques, 0);
        EXPECT_EQ(maquina.Arquivos(), QStringList());
    }
}
