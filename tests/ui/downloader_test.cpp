#include "ui/update/downloader.h"

#include "tests/ui/support/net.h"
#include <atomic>
#include <QFile>
#include <QTest>
#include <QThread>

namespace {

constexpr qint64 kLimite = 64 << 10;
const QByteArray kLonga = "Content-Length: 1000\r\n";

class Baixador : public TesteDeRede
{
protected:
    QString Le(const QString &endereco)
    {
        const QString texto = dl.GetConteudo(endereco);
        EXPECT_FALSE(maquina.preso);
        EXPECT_EQ(maquina.Arquivos(), QStringList());
        return texto;
    }
    std::function<QString()> pasta = [this] { return maquina.PastaTemporaria(); };
    DL dl{maquina.ambiente, pasta};
    const QString r = servidor.Endereco("/r"), destino = pasta() + u"jogo.exe"_s;
};

} // namespace

TEST_F(Baixador, GivesTheTextThatHasComeAndNothingForFailures)
{
    struct Caso
    {
        const char *nome;
        Roteiro roteiro;
        QByteArray texto;
    };
    const QByteArray cheia(kLimite, 'x');
    for (const Caso &caso : std::vector<Caso>{
             {"one line", Diz(Http200("!*!a!*!1.6.0!*!b")), "!*!a!*!1.6.0!*!b\r\n"},
             {"all kinds of line ends", Diz(Http200("a\nb\r\n\rc\n")), "a\r\nb\r\n\r\nc\r\n"},
             {"code page", Diz(Http200("vers\xE3o")), "vers\xE3o\r\n"},
             {"empty", Diz(Http200("")), ""},
             {"no length", Diz(Http("200 OK", "", "abc")), "abc\r\n"},
             {"as long as can be", Diz(Http200(cheia)), cheia + "\r\n"},
             {"a byte too long", Diz(Http200(cheia + 'x')), ""},
             {"error page", Diz(Http("500 Oh", "Content-Length: 5\r\n", "!*!ab")), ""},
             {"cut", Diz(Http("200 OK", kLonga, "abc")), "abc\r\n"},
             {"cut without a byte", Diz(Http("200 OK", kLonga, "")), ""},
             {"cut error page", Diz(Http("500 Oh", kLonga, "abc")), ""},
             {"cut before the reply", Diz(""), ""},
             {"no web server", Diz("220 ready\r\n"), ""},
             {"redirect to a file", Desvia(u"file:///etc/hostname"_s), ""},
             {"redirect for ever", Desvia(u"/r"_s), ""},
             {"redirect nowhere", Diz(Http("302 Found", "Content-Length: 3\r\n", "abc")), ""}}) {
        SCOPED_TRACE(caso.nome);
        servidor.Responde("/r", caso.roteiro);
        EXPECT_EQ(Le(r), QString::fromLatin1(caso.texto));
        EXPECT_FALSE(dl.Abandonado());
    }
    const QByteArray pedido = servidor.Pedidos().first().toLower();
    EXPECT_TRUE(pedido.contains("cache-control: no-cache")) << pedido.data();
    EXPECT_TRUE(pedido.contains("accept-encoding: identity")) << pedido.data();
    // Five redirects are followed, no more.
    for (int n = 1; n <= 6; ++n)
        servidor.Responde("/" + QByteArray::number(n), Desvia(u"/%1"_s.arg(n - 1)));
    servidor.Responde("/0", Diz(Http200("aqui")));
    EXPECT_EQ(Le(servidor.Endereco("/5")), u"aqui\r\n"_s);
    EXPECT_EQ(Le(servidor.Endereco("/6")), QString());
}

TEST_F(Baixador, FetchesOnlyWebAddresses)
{
    QFile local(pasta() + u"../segredo"_s);
    ASSERT_TRUE(local.open(QIODevice::WriteOnly) && local.write("!*!a!*!9.9.9!*!b") > 0);
    local.close();
    const QString caminho = QDir(local.fileName()).absolutePath();
    for (const QString &endereco :
         {u"file://"_s + caminho, caminho, u"file://localhost/etc/hostname"_s, u"data:,abc"_s,
          u"ftp://127.0.0.1/x"_s, u"qrc:/figuras/Mao.png"_s, QString(), u"http://"_s, u"://"_s,
          u"http://127.0.0.1:1/nobody"_s}) {
        EXPECT_EQ(dl.GetConteudo(endereco), QString()) << qPrintable(endereco);
        EXPECT_EQ(EnderecoDaRede(endereco).has_value(), endereco.endsWith(u"nobody"));
    }
    EXPECT_FALSE(maquina.preso);
    EXPECT_EQ(maquina.Arquivos(), QStringList{u"segredo"_s});
}

TEST_F(Baixador, TakesASecureServerOnlyWithACertificateThatFits)
{
    ServidorDeTeste seguro(ServidorDeTeste::Fala::Https);
    const QString endereco = seguro.Endereco("/r");
    seguro.Responde("/r", Diz(Http200("abc")));
    seguro.Responde("/inseguro", Desvia(r));
    servidor.Responde("/r", Diz(Http200("aberto")));
    servidor.Responde("/seguro", Desvia(endereco));
    EXPECT_EQ(Le(endereco), QString());
    EXPECT_EQ(seguro.Pedidos().size(), 0);

    const QSslConfiguration velha = QSslConfiguration::defaultConfiguration();
    QSslConfiguration nova = velha;
    nova.addCaCertificates(QSslCertificate::fromData(ServidorDeTeste::Certificado()));
    QSslConfiguration::setDefaultConfiguration(nova);
    DL outro{maquina.ambiente, pasta};
    EXPECT_EQ(outro.GetConteudo(endereco), u"abc\r\n"_s);
    EXPECT_EQ(outro.GetConteudo(servidor.Endereco("/seguro")), u"abc\r\n"_s);
    EXPECT_EQ(outro.GetConteudo(seguro.Endereco("/inseguro")), QString());
    EXPECT_EQ(outro.GetConteudo(u"https://localhost:%1/r"_s.arg(seguro.Porta())), QString());
    EXPECT_FALSE(maquina.preso);
    QSslConfiguration::setDefaultConfiguration(velha);
}

TEST_F(Baixador, StopsAnEndlessReplyAtOnce)
{
    qint64 enviados = 0;
    const auto semFim = [&enviados](const QByteArray &cabecalho) {
        return [&enviados, cabecalho](QTcpSocket &ligacao) {
            QObject::connect(&ligacao, &QTcpSocket::bytesWritten, &ligacao, [&](qint64 bytes) {
                enviados += bytes;
                if (ligacao.bytesToWrite() == 0) ligacao.write(QByteArray(256 << 10, 'x'));
            });
            ligacao.write(cabecalho);
        };
    };
    for (const QByteArray &campos : {QByteArray(), QByteArray("Content-Length: 1073741824\r\n")}) {
        servidor.Responde("/r", semFim(Http("200 OK", campos, "")));
        EXPECT_EQ(Le(r), QString());
        EXPECT_LT(enviados, 64 << 20);
    }
    // A file may be of any length, but an error page is none.
    servidor.Responde("/r", semFim(Http("404 Not Found", "", "")));
    EXPECT_EQ(dl.Download(r, destino, {}), EstadoDL::Incompleto);
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
        maquina.agora += enviados > (1 << 20) ? 1 : 0;
        if (ligacao != nullptr || !servidorDeFora.hasPendingConnections()) return;
        ligacao = servidorDeFora.nextPendingConnection();
        ligacao->setParent(nullptr);
        ligacao->moveToThread(&fio);
        QObject::connect(ligacao, &QTcpSocket::bytesWritten, ligacao, [&](qint64 bytes) {
            enviados += bytes;
            ligacao->write(campos);
        });
        QObject::connect(ligacao, &QTcpSocket::disconnected, ligacao, [&] { desligado = true; });
        QMetaObject::invokeMethod(ligacao, [&] { ligacao->write("HTTP/1.1 200 OK\r\n" + campos); });
        fio.start();
    };
    auto inundado = std::make_unique<DL>(maquina.ambiente, pasta);
    inundado->GetConteudo(u"http://127.0.0.1:%1/"_s.arg(servidorDeFora.serverPort()));
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
    for (const QByteArray &inicio : {QByteArray(), Http("200 OK", kLonga, "abc")}) {
        servidor.Responde("/r", Diz(inicio, Depois::Espera));
        DL novo{maquina.ambiente, pasta};
        novo.Completed = [](qint64, const QString &) { ADD_FAILURE() << "an end that never came"; };
        // Time passes once the server has been asked.
        auto pedidos = servidor.Pedidos().size();
        maquina.aCadaVolta = [&] {
            maquina.agora += servidor.Pedidos().size() > pedidos ? 0.5 : 0;
        };
        const double antes = maquina.agora;
        maquina.tiques = 0;
        EXPECT_EQ(novo.GetConteudo(r), QString());
        EXPECT_GT(maquina.agora - antes, kTempoLimiteS);
        EXPECT_GT(maquina.tiques, 0);
        EXPECT_TRUE(novo.Abandonado());

        // A proper reply comes too late for this instance, but not for a new one.
        servidor.Responde("/r", Diz(Http200("abc")));
        ++pedidos;
        EXPECT_EQ(novo.GetConteudo(r), QString());
        EXPECT_EQ(novo.Destinos().size(), 1U);
        ++pedidos;
        EXPECT_EQ(novo.Download(r, destino, {}), EstadoDL::Incompleto);
        EXPECT_EQ(maquina.Arquivos(), QStringList());
    }
    maquina.aCadaVolta = nullptr;
    EXPECT_EQ(Le(r), u"abc\r\n"_s);
}

TEST_F(Baixador, WaitsForASlowServerAsLongAsItSends)
{
    const QByteArray corpo = "!*!a!*!1.6.0!*!http://x/y";
    QTcpSocket *ligacao = nullptr;
    servidor.Responde("/r", [&](QTcpSocket &nova) {
        ligacao = &nova;
        nova.write(Http200(corpo).chopped(corpo.size()));
    });
    qint64 chegados = 0, enviados = 0;
    dl.Progress = [&](qint64 bytes, qint64 total, const QString &sID) {
        chegados = bytes;
        EXPECT_EQ(total, corpo.size());
        EXPECT_EQ(sID, kNomeDaLeitura);
    };
    // A byte every seven seconds: the next one leaves when the last has arrived.
    maquina.aCadaVolta = [&] {
        if (ligacao == nullptr || chegados != enviados || enviados == corpo.size()) return;
        maquina.agora += 7;
        ligacao->write(corpo.sliced(enviados++, 1));
    };
    EXPECT_EQ(Le(r), QString::fromLatin1(corpo) + u"\r\n"_s);
}

TEST_F(Baixador, CountsAReplyOfUnknownLengthAsIncomplete)
{
    servidor.Responde("/sem", Diz(Http("200 OK", "", "abc")));
    servidor.Responde("/r", Diz(Http200("abc")));
    std::vector<qint64> fins;
    dl.Completed = [&](qint64 bytes, const QString &) { fins.push_back(bytes); };
    Le(servidor.Endereco("/sem"));
    EXPECT_EQ(dl.Estado(), EstadoDL::Incompleto);
    EXPECT_EQ(dl.Percentual(), 0);
    EXPECT_TRUE(dl.Destinos().empty());
    // The share of the request before lives on, so the same reply then counts as complete.
    for (const QString &endereco : {r, servidor.Endereco("/sem")}) {
        Le(endereco);
        EXPECT_EQ(dl.Estado(), EstadoDL::Completo);
    }
    EXPECT_EQ(fins, (std::vector<qint64>{3, 3, 3}));
}

TEST_F(Baixador, PutsADownloadInItsPlaceAndShowsHowItGrows)
{
    const QByteArray corpo(3 << 20, 'q');
    servidor.Responde("/r", Diz(Http200(corpo)));
    std::vector<int> partes;
    EXPECT_EQ(dl.Download(r, destino, [&](int parte) { partes.push_back(parte); }),
              EstadoDL::Completo);
    QFile arquivo(destino), outro(destino + u'2');
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly) && outro.open(QIODevice::WriteOnly));
    EXPECT_EQ(arquivo.readAll(), corpo);
    EXPECT_TRUE(dl.Recebeu(destino));
    EXPECT_EQ(arquivo.permissions(), outro.permissions());
    EXPECT_TRUE(outro.remove());
    EXPECT_TRUE(std::is_sorted(partes.begin(), partes.end()));
    EXPECT_EQ(maquina.Arquivos(), QStringList{u"jogo.exe"_s});

    // A reply that is no file leaves the one that is there.
    servidor.Responde("/r", Diz(Http("304 Not Modified", "", "")));
    EXPECT_EQ(dl.Download(r, destino, {}), EstadoDL::Completo);
    EXPECT_FALSE(dl.Recebeu(destino));
    EXPECT_EQ(arquivo.size(), corpo.size());
}

TEST_F(Baixador, ACancelledReadLeavesNothingButItsName)
{
    servidor.Responde("/r", Diz(Http("200 OK", kLonga, "abc"), Depois::Espera));
    dl.Progress = [this](qint64, qint64, const QString &) { dl.CancelDownload(); };
    EXPECT_EQ(dl.Download(r, destino, {}), EstadoDL::Cancelado);
    EXPECT_EQ(maquina.Arquivos(), QStringList());
    EXPECT_FALSE(dl.Recebeu(destino));

    // So the next reply under that name goes to the old place, and nothing comes back.
    dl.Progress = nullptr;
    servidor.Responde("/r", Diz(Http200("abc")));
    EXPECT_EQ(dl.GetConteudo(r), QString());
    EXPECT_EQ(QFile(destino).size(), 3);
}
