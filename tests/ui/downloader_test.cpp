#include "ui/update/downloader.h"

#include <gtest/gtest.h>

#include "tests/ui/support/net_machine.h"
#include "tests/ui/support/net_server.h"
#include <atomic>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSslConfiguration>
#include <QTest>
#include <QThread>

namespace {

constexpr qint64 kLimite = 64 << 10;
const QByteArray kLonga = "Content-Length: 1000\r\n";

class Baixador : public ::testing::Test
{
protected:
    QString Le(const QString &endereco)
    {
        const QString texto = dl.GetConteudo(endereco);
        EXPECT_FALSE(maquina.preso);
        EXPECT_EQ(maquina.Arquivos(), QStringList());
        return texto;
    }
    QString Endereco(const char *caminho) const
    {
        return servidor.Site() + QString::fromLatin1(caminho);
    }

    MaquinaDeRede maquina;
    ServidorDeTeste servidor;
    DL dl{maquina.ambiente, [this] { return maquina.PastaTemporaria(); }};
};

/// Trusts the test server's certificate for a while.
class Confianca
{
public:
    Confianca()
    {
        QSslConfiguration nova = m_velha;
        nova.addCaCertificates(QSslCertificate::fromData(ServidorDeTeste::Certificado()));
        QSslConfiguration::setDefaultConfiguration(nova);
    }
    ~Confianca() { QSslConfiguration::setDefaultConfiguration(m_velha); }
    Q_DISABLE_COPY_MOVE(Confianca)

private:
    QSslConfiguration m_velha = QSslConfiguration::defaultConfiguration();
};

} // namespace

TEST_F(Baixador, GivesTheTextThatHasComeAndNothingForFailures)
{
    struct Caso
    {
        const char *nome;
        ServidorDeTeste::Roteiro roteiro;
        QByteArray texto;
    };
    const QByteArray cheia(kLimite, 'x');
    const std::vector<Caso> casos = {
        {"one line", Diz(Http200("!*!a!*!1.6.0!*!b")), "!*!a!*!1.6.0!*!b\r\n"},
        {"all kinds of line ends", Diz(Http200("a\nb\r\n\rc\n")), "a\r\nb\r\n\r\nc\r\n"},
        {"code page", Diz(Http200("vers\xE3o")), "vers\xE3o\r\n"},
        {"empty", Diz(Http200("")), ""},
        {"no length", Diz(Http("200 OK", "", "abc")), "abc\r\n"},
        {"as long as can be", Diz(Http200(cheia)), cheia + "\r\n"},
        {"a byte too long", Diz(Http200(cheia + 'x')), ""},
        {"error page with fields", Diz(Http("500 Oh", "Content-Length: 5\r\n", "!*!ab")), ""},
        {"cut", Diz(Http("200 OK", kLonga, "abc")), "abc\r\n"},
        {"cut without a byte", Diz(Http("200 OK", kLonga, "")), ""},
        {"cut error page", Diz(Http("500 Oh", kLonga, "abc")), ""},
        {"cut before the reply", Diz(""), ""},
        {"no web server", Diz("220 ready\r\n"), ""},
        {"redirect to a file", Desvia(QStringLiteral("file:///etc/hostname")), ""},
        {"redirect without an address", Diz(Http("302 Found", "Content-Length: 3\r\n", "abc")), ""},
    };
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.nome);
        servidor.Responde("/r", caso.roteiro);
        EXPECT_EQ(Le(Endereco("/r")), QString::fromLatin1(caso.texto));
        EXPECT_FALSE(dl.Abandonado());
    }
}

TEST_F(Baixador, FollowsFiveRedirectsAndNoMore)
{
    for (int n = 1; n <= 6; ++n) {
        servidor.Responde("/" + QByteArray::number(n), Desvia(QStringLiteral("/%1").arg(n - 1)));
    }
    servidor.Responde("/0", Diz(Http200("aqui")));
    EXPECT_EQ(Le(Endereco("/5")), QStringLiteral("aqui\r\n"));
    EXPECT_EQ(Le(Endereco("/6")), QString());
    servidor.Responde("/volta", Desvia(QStringLiteral("/volta")));
    EXPECT_EQ(Le(Endereco("/volta")), QString());
}

TEST_F(Baixador, FetchesOnlyWebAddresses)
{
    QFile local(maquina.PastaTemporaria() + QStringLiteral("../segredo"));
    ASSERT_TRUE(local.open(QIODevice::WriteOnly) && local.write("!*!a!*!9.9.9!*!b") > 0);
    local.close();
    for (const QString &endereco :
         {QStringLiteral("file://") + QDir(local.fileName()).absolutePath(),
          QDir(local.fileName()).absolutePath(), QStringLiteral("file://localhost/etc/hostname"),
          QStringLiteral("data:,abc"), QStringLiteral("ftp://127.0.0.1/x"),
          QStringLiteral("qrc:/figuras/Mao.png"), QString(), QStringLiteral("http://"),
          QStringLiteral("://"), QStringLiteral("http://127.0.0.1:1/nobody")}) {
        EXPECT_EQ(dl.GetConteudo(endereco), QString()) << qPrintable(endereco);
        EXPECT_EQ(EnderecoDaRede(endereco).has_value(),
                  endereco.endsWith(QStringLiteral("nobody")));
    }
    EXPECT_FALSE(maquina.preso);
    EXPECT_EQ(maquina.Arquivos(), QStringList{QStringLiteral("segredo")});
}

TEST_F(Baixador, TakesASecureServerOnlyWithACertificateThatFits)
{
    ServidorDeTeste seguro(ServidorDeTeste::Fala::Https);
    seguro.Responde("/r", Diz(Http200("abc")));
    seguro.Responde("/inseguro", Desvia(Endereco("/r")));
    servidor.Responde("/r", Diz(Http200("aberto")));
    servidor.Responde("/seguro", Desvia(seguro.Site() + QStringLiteral("/r")));
    EXPECT_EQ(Le(seguro.Site() + QStringLiteral("/r")), QString());
    EXPECT_EQ(seguro.Pedidos().size(), 0);

    const Confianca confianca;
    DL outro{maquina.ambiente, [this] { return maquina.PastaTemporaria(); }};
    EXPECT_EQ(outro.GetConteudo(seguro.Site() + QStringLiteral("/r")), QStringLiteral("abc\r\n"));
    EXPECT_EQ(outro.GetConteudo(Endereco("/seguro")), QStringLiteral("abc\r\n"));
    EXPECT_EQ(outro.GetConteudo(seguro.Site() + QStringLiteral("/inseguro")), QString());
    const QString outroNome = QStringLiteral("https://localhost:%1/r").arg(seguro.Porta());
    EXPECT_EQ(outro.GetConteudo(outroNome), QString());
    EXPECT_FALSE(maquina.preso);
}

TEST_F(Baixador, AsksForAFreshCopyWithOnePlainGet)
{
    servidor.Responde("/update.php", Diz(Http200("a")));
    Le(Endereco("/update.php?prog=Um%20Jogo"));
    ASSERT_EQ(servidor.Pedidos().size(), 1);
    const QByteArray pedido = servidor.Pedidos().first().toLower();
    EXPECT_TRUE(pedido.startsWith("get /update.php?prog=um%20jogo http/1.1\r\n")) << pedido.data();
    EXPECT_TRUE(pedido.contains("cache-control: no-cache")) << pedido.data();
    EXPECT_TRUE(pedido.contains("accept-encoding: identity")) << pedido.data();
}

TEST_F(Baixador, StopsAnEndlessReplyAtOnce)
{
    qint64 enviados = 0;
    for (const QByteArray &campos : {QByteArray(), QByteArray("Content-Length: 1073741824\r\n")}) {
        servidor.Responde("/r", DizSemFim(Http("200 OK", campos, ""), enviados));
        EXPECT_EQ(Le(Endereco("/r")), QString());
        EXPECT_LT(enviados, 64 << 20);
    }
    // A file may be of any length, but an error page is none.
    servidor.Responde("/r", DizSemFim(Http("404 Not Found", "", ""), enviados));
    EXPECT_EQ(dl.Download(Endereco("/r"), maquina.PastaTemporaria() + u'x', {}),
              EstadoDL::Incompleto);
    EXPECT_FALSE(maquina.preso);
}

TEST_F(Baixador, StopsAFloodOfHeadersAtOnce)
{
    // On a thread of its own: in this one it would stop for as long as the game does.
    QTcpServer servidorDeFora;
    ASSERT_TRUE(servidorDeFora.listen(QHostAddress::LocalHost));
    std::atomic<bool> desligado = false;
    std::atomic<qint64> enviados = 0;
    QThread fio;
    QTcpSocket *ligacao = nullptr;
    const QByteArray campos = QByteArray("X: 1\r\n").repeated(4096);
    maquina.aCadaVolta = [&] {
        if (ligacao == nullptr && (ligacao = servidorDeFora.nextPendingConnection()) != nullptr) {
            ligacao->setParent(nullptr);
            ligacao->moveToThread(&fio);
            QObject::connect(ligacao, &QTcpSocket::bytesWritten, ligacao, [&](qint64 bytes) {
                enviados += bytes;
                ligacao->write(campos);
            });
            QObject::connect(ligacao, &QTcpSocket::disconnected, ligacao,
                             [&] { desligado = true; });
            QMetaObject::invokeMethod(ligacao,
                                      [&] { ligacao->write("HTTP/1.1 200 OK\r\n" + campos); });
            fio.start();
        }
        maquina.agora += enviados > (1 << 20) ? 1 : 0;
    };
    auto inundado =
        std::make_unique<DL>(maquina.ambiente, [this] { return maquina.PastaTemporaria(); });
    inundado->GetConteudo(QStringLiteral("http://127.0.0.1:%1/").arg(servidorDeFora.serverPort()));
    EXPECT_FALSE(maquina.preso);
    QElapsedTimer relogio;
    relogio.start();
    inundado.reset();
    EXPECT_LT(relogio.elapsed(), 2'000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desligado.load(); }, 2'000)) << "the read goes on";
    QMetaObject::invokeMethod(
        ligacao, [&] { delete ligacao; }, Qt::BlockingQueuedConnection);
    fio.quit();
    fio.wait();
}

TEST_F(Baixador, GivesUpAStalledReadAndIsDeafFromThenOn)
{
    for (const auto &roteiro :
         {Diz("", Depois::Espera), Diz(Http("200 OK", kLonga, "abc"), Depois::Espera)}) {
        servidor.Responde("/r", roteiro);
        DL novo{maquina.ambiente, [this] { return maquina.PastaTemporaria(); }};
        novo.Completed = [](qint64, const QString &) { ADD_FAILURE() << "an end that never came"; };
        // Time passes once the server has been asked.
        auto pedidos = servidor.Pedidos().size();
        maquina.aCadaVolta = [&] {
            maquina.agora += servidor.Pedidos().size() > pedidos ? 0.5 : 0;
        };
        const double inicio = maquina.agora;
        maquina.tiques = 0;
        EXPECT_EQ(novo.GetConteudo(Endereco("/r")), QString());
        EXPECT_GT(maquina.agora - inicio, kTempoLimiteS);
        EXPECT_GT(maquina.tiques, 0);
        EXPECT_TRUE(novo.Abandonado());

        // A proper reply comes too late for this instance, but not for a new one.
        servidor.Responde("/r", Diz(Http200("abc")));
        ++pedidos;
        EXPECT_EQ(novo.GetConteudo(Endereco("/r")), QString());
        EXPECT_EQ(novo.Destinos().size(), 1U);
        ++pedidos;
        EXPECT_EQ(novo.Download(Endereco("/r"), maquina.PastaTemporaria() + u'x', {}),
                  EstadoDL::Incompleto);
        EXPECT_EQ(maquina.Arquivos(), QStringList());
    }
    maquina.aCadaVolta = nullptr;
    EXPECT_EQ(Le(Endereco("/r")), QStringLiteral("abc\r\n"));
}

TEST_F(Baixador, WaitsForASlowServerAsLongAsItSends)
{
    const QByteArray corpo = "!*!a!*!1.6.0!*!http://x/y";
    QTcpSocket *ligacao = nullptr;
    servidor.Responde("/r", [&](QTcpSocket &nova) {
        ligacao = &nova;
        nova.write(
            Http("200 OK", "Content-Length: " + QByteArray::number(corpo.size()) + "\r\n", ""));
    });
    qint64 chegados = 0;
    qsizetype enviados = 0;
    dl.Progress = [&](qint64 bytes, qint64 total, const QString &sID) {
        chegados = bytes;
        EXPECT_EQ(total, corpo.size());
        EXPECT_EQ(sID, kNomeDaLeitura);
    };
    // A byte every seven seconds: the next one leaves when the last has arrived.
    maquina.aCadaVolta = [&] {
        if (ligacao != nullptr && chegados == enviados && enviados < corpo.size()) {
            maquina.agora += 7;
            ligacao->write(corpo.sliced(enviados++, 1));
        }
    };
    EXPECT_EQ(Le(Endereco("/r")), QString::fromLatin1(corpo) + QStringLiteral("\r\n"));
    EXPECT_EQ(enviados, corpo.size());
}

TEST_F(Baixador, CountsAReplyOfUnknownLengthAsIncomplete)
{
    servidor.Responde("/sem", Diz(Http("200 OK", "", "abc")));
    servidor.Responde("/com", Diz(Http200("abc")));
    std::vector<qint64> fins;
    dl.Completed = [&](qint64 bytes, const QString &) { fins.push_back(bytes); };
    Le(Endereco("/sem"));
    EXPECT_EQ(dl.Estado(), EstadoDL::Incompleto);
    EXPECT_EQ(dl.Percentual(), 0);
    EXPECT_TRUE(dl.Destinos().empty());
    Le(Endereco("/com"));
    EXPECT_EQ(dl.Estado(), EstadoDL::Completo);
    // The share of the request before lives on, so the same reply now counts as complete.
    Le(Endereco("/sem"));
    EXPECT_EQ(dl.Estado(), EstadoDL::Completo);
    EXPECT_EQ(fins, (std::vector<qint64>{3, 3, 3}));
}

TEST_F(Baixador, PutsADownloadInItsPlaceAndShowsHowItGrows)
{
    const QByteArray corpo(3 << 20, 'q');
    servidor.Responde("/r", Diz(Http200(corpo)));
    const QString destino = maquina.PastaTemporaria() + QStringLiteral("jogo.exe");
    std::vector<int> partes;
    EXPECT_EQ(dl.Download(Endereco("/r"), destino, [&](int parte) { partes.push_back(parte); }),
              EstadoDL::Completo);
    QFile arquivo(destino);
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(arquivo.readAll(), corpo);
    EXPECT_TRUE(dl.Recebeu(destino));
    QFile outro(destino + u'2');
    ASSERT_TRUE(outro.open(QIODevice::WriteOnly));
    EXPECT_EQ(arquivo.permissions(), outro.permissions());
    EXPECT_TRUE(outro.remove());
    EXPECT_TRUE(std::is_sorted(partes.begin(), partes.end()));
    EXPECT_EQ(maquina.Arquivos(), QStringList{QStringLiteral("jogo.exe")});

    // A reply that is no file leaves the one that is there.
    servidor.Responde("/r", Diz(Http("304 Not Modified", "", "")));
    EXPECT_EQ(dl.Download(Endereco("/r"), destino, {}), EstadoDL::Completo);
    EXPECT_FALSE(dl.Recebeu(destino));
    EXPECT_EQ(arquivo.size(), corpo.size());
}

TEST_F(Baixador, ACancelledReadLeavesNothingButItsName)
{
    servidor.Responde("/r", Diz(Http("200 OK", kLonga, "abc"), Depois::Espera));
    dl.Progress = [this](qint64, qint64, const QString &) { dl.CancelDownload(); };
    const QString destino = maquina.PastaTemporaria() + QStringLiteral("jogo.exe");
    EXPECT_EQ(dl.Download(Endereco("/r"), destino, {}), EstadoDL::Cancelado);
    EXPECT_EQ(maquina.Arquivos(), QStringList());
    EXPECT_FALSE(dl.Recebeu(destino));

    // So the next reply under that name goes to the old place, and nothing comes back.
    dl.Progress = nullptr;
    servidor.Responde("/r", Diz(Http200("abc")));
    EXPECT_EQ(dl.GetConteudo(Endereco("/r")), QString());
    EXPECT_EQ(QFile(destino).size(), 3);
}
