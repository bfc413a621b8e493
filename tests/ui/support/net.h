#pragma once

#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <map>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// The machine of a network test: a clock that only the test moves, events that really run, and
/// folders that go with the test.
class MaquinaDeRede : public MaquinaDeTeste
{
public:
    MaquinaDeRede();

    /// Names of all files in the folders for temporary files and for downloads.
    [[nodiscard]] QStringList Arquivos() const;
    [[nodiscard]] QString PastaTemporaria() const;
    [[nodiscard]] QString PastaDownloads() const;

    /// Seconds by which each turn of a wait moves the clock.
    double passo = 0;
    /// Runs in each turn of a wait.
    std::function<void()> aCadaVolta;
    /// How often a timer of the program's other windows has fired.
    int tiques = 0;
    /// A wait hung and was ended by force.
    bool preso = false;
    Ambiente ambiente = Seam(1);

private:
    QTemporaryDir m_pasta;
    QTimer m_relogio;
    QElapsedTimer m_desdeOInicio;
};

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

    void Responde(const QByteArray &caminho, const Roteiro &roteiro)
    {
        m_roteiros[caminho] = roteiro;
    }
    /// Address of a path of the server, by number.
    [[nodiscard]] QString Endereco(const char *caminho = "") const;
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
/// Sends the client on to another address.
ServidorDeTeste::Roteiro Desvia(const QString &endereco);

class TesteDeRede : public ::testing::Test
{
protected:
    MaquinaDeRede maquina;
    ServidorDeTeste servidor;
};
