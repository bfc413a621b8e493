#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QTemporaryFile>
#include <QUrl>

/// The address as one that the program may fetch: http or https, with a host. White space at the
/// ends is passed over. Nothing for any other address.
std::optional<QUrl> EnderecoDaRede(const QString &endereco);

/// What a read fetches and what it is called.
struct PedidoDeLeitura
{
    QString endereco;
    /// Name of the read, under which its events come and it can be cancelled.
    QString sID;
    /// Folder in which the data lie until the read ends; made if it is missing.
    QString pasta;
    /// Most bytes that the reply may have, 0 for any number. A longer one is stopped and counts as
    /// failed.
    qint64 maximo = 0;
};

/// How a read has ended.
struct FimDaLeitura
{
    /// What has come, or null if the read failed. Removed behind the event unless the handler turns
    /// its autoRemove off.
    QTemporaryFile *arquivo = nullptr;
    qint64 bytes = 0;
    /// The reply came to its end; it was not cut off.
    bool inteira = false;
};

/// Reads web addresses into temporary files while the windows go on living.
///
/// Each read asks for a fresh copy, follows at most five redirects, never to a less safe scheme,
/// and takes a secure server only with a certificate that the system trusts. What is no reply of
/// status 2xx is a failure, whatever the reason. No temporary file outlasts its read.
class LeiturasAssincronas : public QObject
{
public:
    LeiturasAssincronas();
    ~LeiturasAssincronas() override;

    /// Starts a read and returns at once. The events come later, also where the read cannot even
    /// begin. While a read of the same name runs, nothing is started.
    void Comeca(const PedidoDeLeitura &pedido);
    /// Ends a read without another event. A name that does not exist passes in silence.
    void Cancela(const QString &sID);
    void CancelaTodas();

    /// Data have come: bytes read so far, and bytes expected or 0 where the server does not say.
    std::function<void(const QString &sID, qint64 bytes, qint64 total)> Progresso;
    /// The read has ended.
    std::function<void(const QString &sID, const FimDaLeitura &fim)> Fim;

private:
    struct Leitura
    {
        QNetworkReply *resposta = nullptr;
        std::unique_ptr<QTemporaryFile> arquivo;
        qint64 bytes = 0;
        qint64 maximo = 0;
    };
    enum class Passo { Segue, Falha };
    enum class Resultado { Inteira, Cortada, Falha };

    void LigaEventos(const QString &sID, const QNetworkReply *resposta);
    void AoChegarem(const QString &sID);
    void AoTerminar(const QString &sID);
    Passo Guarda(Leitura &leitura);
    void Encerra(const QString &sID, Resultado resultado);
    void Solta(Leitura &leitura);

    QNetworkAccessManager m_rede;
    std::map<QString, Leitura> m_leituras;
};
