#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QByteArrayList>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>

/// A web server on this machine that says, for each path, exactly what a test wants, also what no
/// proper server would say.
class ServidorDeTeste : public QObject
{
public:
    enum class Fala { Http, Https };
    /// What is done with the connection once a request has come in.
    using Roteiro = std::function<void(QTcpSocket &ligacao)>;

    /// With Https its certificate is its own, made for 127.0.0.1, and nobody trusts it.
    explicit ServidorDeTeste(Fala fala = Fala::Http);
    ~ServidorDeTeste() override;

    void Responde(const QByteArray &caminho, Roteiro roteiro);
    /// Address of the server, by number, without a slash at its end.
    [[nodiscard]] QString Site() const;
    [[nodiscard]] quint16 Porta() const { return m_servidor->serverPort(); }
    /// Every request, from its first line to its last header.
    [[nodiscard]] const QByteArrayList &Pedidos() const { return m_pedidos; }

    /// The certificate in PEM, for a client that is to trust it.
    static QByteArray Certificado();

private:
    void Recebe(QTcpSocket &ligacao);

    std::unique_ptr<QTcpServer> m_servidor;
    QString m_esquema;
    std::map<QByteArray, Roteiro> m_roteiros;
    QByteArrayList m_pedidos;
};

/// A reply as it goes over the line. `campos`: header lines, each with CR LF behind it.
QByteArray Http(const QByteArray &status, const QByteArray &campos, const QByteArray &corpo);
/// A proper reply of status 200 with its length.
QByteArray Http200(const QByteArray &corpo);

enum class Depois { Fecha, Espera };
/// Sends the bytes, then closes the connection or leaves it open and silent.
ServidorDeTeste::Roteiro Diz(const QByteArray &bytes, Depois depois = Depois::Fecha);
/// Sends `cabecalho` and then a body without end, and counts what has left for the client.
ServidorDeTeste::Roteiro DizSemFim(const QByteArray &cabecalho, qint64 &enviados);
/// Sends the client on to another address.
ServidorDeTeste::Roteiro Desvia(const QString &endereco);
