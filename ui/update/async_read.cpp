#include "ui/update/async_read.h"

#include <QDir>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <utility>

namespace {

constexpr int kMaximoDesvios = 5;
/// What Qt may hold of a reply before it stops taking data from the server.
constexpr qint64 kMemoriaDaResposta = 1 << 20;
constexpr qint64 kBloco = 64 << 10;

QNetworkRequest PedidoHttp(const QUrl &url)
{
    QNetworkRequest pedido(url);
    pedido.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    pedido.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    pedido.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    pedido.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    pedido.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                        QNetworkRequest::NoLessSafeRedirectPolicy);
    pedido.setMaximumRedirectsAllowed(kMaximoDesvios);
    // As it is: a packed reply could grow without bounds, and its length would say nothing.
    pedido.setRawHeader("Accept-Encoding", "identity");
    return pedido;
}

/// The way to a server that the system names, and for the straight way one that ends up the same.
/// For the straight way by name Qt takes the bytes of a header one by one off the system, and hears
/// no request to stop for as long as the server sends; on any other way it takes what is there, and
/// listens.
class CaminhoComMemoria : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &pergunta) override
    {
        QList<QNetworkProxy> caminhos = proxyForQuery(pergunta);
        for (QNetworkProxy &caminho : caminhos) {
            if (caminho.type() == QNetworkProxy::NoProxy) {
                caminho = QNetworkProxy(QNetworkProxy::DefaultProxy);
            }
        }
        return caminhos;
    }
};

qint64 Total(const QNetworkReply &resposta)
{
    return resposta.header(QNetworkRequest::ContentLengthHeader).toLongLong();
}

bool StatusBom(const QNetworkReply &resposta)
{
    constexpr int kBom = 2;
    constexpr int kCentena = 100;
    return resposta.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() / kCentena == kBom;
}

} // namespace

std::optional<QUrl> EnderecoDaRede(const QString &endereco)
{
    const QUrl url(endereco.trimmed());
    const QString esquema = url.scheme();
    const bool daRede = esquema == QStringLiteral("http") || esquema == QStringLiteral("https");
    return url.isValid() && daRede && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

LeiturasAssincronas::LeiturasAssincronas()
{
    m_rede.setProxyFactory(new CaminhoComMemoria);
}

LeiturasAssincronas::~LeiturasAssincronas()
{
    CancelaTodas();
}

void LeiturasAssincronas::Comeca(const PedidoDeLeitura &pedido)
{
    const QString sID = pedido.sID;
    if (m_leituras.contains(sID)) {
        return;
    }
    Leitura &leitura = m_leituras[sID];
    leitura.maximo = pedido.maximo;
    QDir().mkpath(pedido.pasta);
    leitura.arquivo = std::make_unique<QTemporaryFile>(
        QDir(pedido.pasta).filePath(QStringLiteral("qXXXXXX.tmp")));
    const auto url = EnderecoDaRede(pedido.endereco);
    if (!url || !leitura.arquivo->open()) {
        // Nobody expects an event inside the call that starts the read.
        QMetaObject::invokeMethod(
            this, [this, sID] { Encerra(sID, Resultado::Falha); }, Qt::QueuedConnection);
        return;
    }
    leitura.resposta = m_rede.get(PedidoHttp(*url));
    leitura.resposta->setReadBufferSize(kMemoriaDaResposta);
    LigaEventos(sID, leitura.resposta);
}

void LeiturasAssincronas::LigaEventos(const QString &sID, const QNetworkReply *resposta)
{
    connect(resposta, &QNetworkReply::readyRead, this, [this, sID] { AoChegarem(sID); });
    connect(resposta, &QNetworkReply::finished, this, [this, sID] { AoTerminar(sID); });
}

void LeiturasAssincronas::AoChegarem(const QString &sID)
{
    Leitura &leitura = m_leituras.at(sID);
    if (Guarda(leitura) == Passo::Falha) {
        Encerra(sID, Resultado::Falha);
    } else if (Progresso) {
        Progresso(sID, leitura.bytes, Total(*leitura.resposta));
    }
}

void LeiturasAssincronas::AoTerminar(const QString &sID)
{
    if (m_leituras.at(sID).resposta->bytesAvailable() > 0) {
        AoChegarem(sID);
    }
    const auto achada = m_leituras.find(sID);
    if (achada == m_leituras.end()) {
        return;
    }
    const Leitura &leitura = achada->second;
    if (!StatusBom(*leitura.resposta)) {
        Encerra(sID, Resultado::Falha);
        return;
    }
    const qint64 total = Total(*leitura.resposta);
    const bool inteira = leitura.resposta->error() == QNetworkReply::NoError &&
                         (total == 0 || total == leitura.bytes);
    Encerra(sID, inteira ? Resultado::Inteira : Resultado::Cortada);
}

/// Puts what has come of a reply into its file.
LeiturasAssincronas::Passo LeiturasAssincronas::Guarda(Leitura &leitura)
{
    if (!StatusBom(*leitura.resposta)) {
        return Passo::Falha;
    }
    while (leitura.resposta->bytesAvailable() > 0) {
        const QByteArray bloco = leitura.resposta->read(kBloco);
        leitura.bytes += bloco.size();
        if (leitura.maximo > 0 && leitura.bytes > leitura.maximo) {
            return Passo::Falha;
        }
        if (leitura.arquivo->write(bloco) != bloco.size()) {
            return Passo::Falha;
        }
    }
    return Passo::Segue;
}

void LeiturasAssincronas::Encerra(const QString &sID, Resultado resultado)
{
    auto no = m_leituras.extract(sID);
    if (no.empty()) {
        return;
    }
    Leitura &leitura = no.mapped();
    Solta(leitura);
    // A disk that is full may show only now.
    if (resultado == Resultado::Falha || !leitura.arquivo->flush()) {
        leitura.arquivo.reset();
    }
    if (Fim) {
        Fim(sID, {leitura.arquivo.get(), leitura.bytes, resultado == Resultado::Inteira});
    }
}

void LeiturasAssincronas::Solta(Leitura &leitura)
{
    if (QNetworkReply *resposta = std::exchange(leitura.resposta, nullptr)) {
        resposta->disconnect(this);
        // Its end stops the transfer, and more quietly than an abort in the middle of a reply.
        resposta->deleteLater();
    }
}

void LeiturasAssincronas::Cancela(const QString &sID)
{
    auto no = m_leituras.extract(sID);
    if (!no.empty()) {
        Solta(no.mapped());
    }
}

void LeiturasAssincronas::CancelaTodas()
{
    while (!m_leituras.empty()) {
        Cancela(m_leituras.begin()->first);
    }
}
