#include "ui/update/update_window.h"

#include <gtest/gtest.h>

#include "tests/ui/support/net_machine.h"
#include "tests/ui/support/net_server.h"
#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTest>

namespace {

const QString kFalhou = QStringLiteral("Não foi possível baixar a atualização");

class JanelaDeBaixar : public ::testing::Test
{
protected:
    void Baixa(const QString &endereco)
    {
        maquina.mensagens.clear();
        valores.LinkAtualizacao = endereco;
        BaixaAtualizacao(valores, maquina.ambiente, maquina.PastaDownloads(), dona);
        EXPECT_FALSE(maquina.preso);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    /// Text of the one message that was shown.
    [[nodiscard]] QString Mensagem() const
    {
        return maquina.mensagens.size() == 1 ? maquina.mensagens[0].texto : QString();
    }
    [[nodiscard]] QString NaPasta(const char *nome) const
    {
        return QDir::toNativeSeparators(
            QDir(maquina.PastaDownloads()).filePath(QString::fromUtf8(nome)));
    }
    [[nodiscard]] QString Endereco(const char *caminho) const
    {
        return servidor.Site() + QString::fromUtf8(caminho);
    }

    ValoresPrograma valores;
    MaquinaDeRede maquina;
    ServidorDeTeste servidor;
    toolkit::Form dona{toolkit::Moldura::Ferramenta, toolkit::kDpiPadrao};
};

} // namespace

TEST_F(JanelaDeBaixar, KeepsTheFileUnderAHarmlessFreeName)
{
    servidor.Responde("/jogo.exe", Diz(Http200("MZ")));
    servidor.Responde("/", Diz(Http("200 OK", "", "MZ")));
    servidor.Responde("/a/..%2F..%2Ffora.exe", Diz(Http200("MZ")));
    struct Caso
    {
        const char *caminho, *nome;
    };
    for (const Caso &caso :
         {Caso{"/jogo.exe?v=1.6\r\n", "jogo.exe"}, Caso{"/jogo.exe", "jogo (2).exe"},
          Caso{"/", "Quadrelo"}, Caso{"/a/..%2F..%2Ffora.exe", "_.._fora.exe"}}) {
        Baixa(Endereco(caso.caminho));
        EXPECT_TRUE(Mensagem().endsWith(NaPasta(caso.nome))) << qPrintable(Mensagem());
        EXPECT_EQ(QFileInfo(NaPasta(caso.nome)).size(), 2) << caso.nome;
    }
    EXPECT_EQ(maquina.Arquivos().size(), 4);
}

TEST_F(JanelaDeBaixar, SaysWhenThereIsNoFileAndLeavesNone)
{
    servidor.Responde("/cortado", Diz(Http("200 OK", "Content-Length: 9\r\n", "MZ")));
    servidor.Responde("/vazio", Diz(Http200("")));
    servidor.Responde("/parado",
                      Diz(Http("200 OK", "Content-Length: 9\r\n", "MZ"), Depois::Espera));
    servidor.Responde("/local", Desvia(QStringLiteral("file:///etc/hostname")));
    maquina.passo = 0.1;
    for (const QString &endereco :
         {Endereco("/cortado"), Endereco("/vazio"), Endereco("/parado"), Endereco("/local"),
          Endereco("/nada"), QStringLiteral("file:///etc/hostname"), QString(),
          QStringLiteral("javascript:alert(1)"), QStringLiteral("ftp://127.0.0.1/jogo.exe")}) {
        Baixa(endereco);
        EXPECT_EQ(Mensagem(), kFalhou) << qPrintable(endereco);
        EXPECT_EQ(maquina.Arquivos(), QStringList()) << qPrintable(endereco);
    }
    // A file stands where the folder would be.
    const QString pasta = maquina.PastaTemporaria() + QStringLiteral("arquivo");
    ASSERT_TRUE(QFile(pasta).open(QIODevice::WriteOnly));
    valores.LinkAtualizacao = Endereco("/vazio");
    maquina.mensagens.clear();
    BaixaAtualizacao(valores, maquina.ambiente, pasta, dona);
    EXPECT_EQ(Mensagem(), kFalhou);
}

TEST_F(JanelaDeBaixar, CanBeCancelledInEveryWay)
{
    servidor.Responde("/jogo.exe",
                      Diz(Http("200 OK", "Content-Length: 10\r\n", "metad"), Depois::Espera));
    const std::vector<std::function<void(QWidget &)>> modos = {
        [](QWidget &janela) {
            QTest::mouseClick(janela.findChild<QPushButton *>(), Qt::LeftButton);
        },
        [](QWidget &janela) {
            QTest::mouseClick(janela.findChild<QWidget *>(QStringLiteral("Image1")),
                              Qt::LeftButton);
        },
        [](QWidget &janela) { QTest::keyClick(&janela, Qt::Key_Escape); },
        [](QWidget &janela) { janela.close(); },
    };
    for (const auto &modo : modos) {
        QImage barra;
        int voltas = 0;
        maquina.tiques = 0;
        maquina.aCadaVolta = [&] {
            QWidget *janela = QApplication::activeModalWidget();
            auto *caixa = janela->findChild<QWidget *>(QStringLiteral("PicBaixado"));
            barra = caixa->grab().toImage();
            const bool pelaMetade =
                barra.pixelColor(barra.width() / 2 - 4, barra.height() / 2) == QColor(222, 199, 24);
            // The bar shows a percentage of 50 before the player loses patience.
            if (pelaMetade && ++voltas == 2) {
                EXPECT_TRUE(janela->isVisible());
                EXPECT_FALSE(QFile::exists(NaPasta("jogo.exe"))) << "a game killed now leaves it";
                modo(*janela);
            }
        };
        Baixa(Endereco("/jogo.exe"));
        EXPECT_EQ(barra.pixelColor(barra.width() / 2 + 4, barra.height() / 2), toolkit::kBranco);
        EXPECT_GT(maquina.tiques, 0);
        EXPECT_TRUE(maquina.mensagens.empty());
        EXPECT_EQ(maquina.Arquivos(), QStringList());
    }
}
