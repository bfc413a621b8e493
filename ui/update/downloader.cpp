#include "ui/update/downloader.h"

#include "core/files/codepage.h"
#include <cmath>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>
#include <utility>

namespace {

constexpr qint64 kMaximoDoTexto = 64 << 10;
/// Longest sleep of a wait before it looks at the clock again.
constexpr int kSonoMs = 50;
/// Above this share a read counts as complete.
constexpr int kQuaseTudo = 99;

/// Each line with CR LF behind it, whatever ended it, the last one too.
QString ComFimDeLinha(QString texto)
{
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (!texto.isEmpty() && !texto.endsWith(u'\n')) {
        texto += u'\n';
    }
    return texto.replace(u'\n', QStringLiteral("\r\n"));
}

QString LeTexto(const QString &nome)
{
    QFile arquivo(nome);
    return arquivo.open(QIODevice::ReadOnly) ? ComFimDeLinha(DeCodePage(arquivo.readAll()))
                                             : QString();
}

} // namespace

DL::DL(Ambiente &ambiente, std::function<QString()> pastaTemporaria)
    : m_ambiente(ambiente), m_pastaTemporaria(std::move(pastaTemporaria))
{
    m_leituras.Progresso = [this](const QString &sID, qint64 bytes, qint64 total) {
        UserControl_AsyncReadProgress(sID, bytes, total);
    };
    m_leituras.Fim = [this](const QString &sID, const FimDaLeitura &fim) {
        UserControl_AsyncReadComplete(sID, fim);
    };
}

QString DL::GetConteudo(const QString &sWWWFile, const QString &sID, int TimeOut)
{
    const QString pasta = m_pastaTemporaria();
    const QString destino = pasta + QStringLiteral("temp01.dat");
    Comeca({sWWWFile, sID, pasta, kMaximoDoTexto}, destino, TimeOut);
    // Any end will do, also one that counts as incomplete: a reply of unknown length always does.
    if (!EsperaFim({}) || m_recebido != destino) {
        return {};
    }
    QString texto = LeTexto(destino);
    QFile::remove(destino);
    return texto;
}

EstadoDL DL::Download(const QString &sWWWFile, const QString &sDestination,
                      const std::function<void(int)> &objprogress, const QString &sID, int TimeOut)
{
    Comeca({sWWWFile, sID, QFileInfo(sDestination).path(), 0}, sDestination, TimeOut);
    return EsperaFim(objprogress) ? m_estado : EstadoDL::Incompleto;
}

void DL::CancelDownload(const QString &sID)
{
    // The name stays among the destinations: the next read under it still goes to the old place.
    m_leituras.Cancela(sID);
    m_estado = EstadoDL::Cancelado;
}

void DL::Comeca(const PedidoDeLeitura &pedido, const QString &destino, int timeOut)
{
    m_tempoLimite = timeOut;
    m_recebido.clear();
    // A name that a cancelled read or a time-out left behind keeps its old destination.
    m_destinos.try_emplace(pedido.sID, destino);
    m_leituras.Comeca(pedido);
    m_ultimaAtividade = m_ambiente.Agora();
    // The share received stays as the last request left it.
    m_estado = EstadoDL::Lendo;
}

/// Whether the read has ended; False if it has stalled.
bool DL::EsperaFim(const std::function<void(int)> &objprogress)
{
    while (m_estado == EstadoDL::Lendo) {
        if (objprogress) {
            objprogress(m_percentual);
        }
        // The limit counts from the last sign of life, so a slow server is waited for as long as it
        // sends. The two sides are compared in single precision.
        if (static_cast<float>(m_ambiente.Agora()) >
            static_cast<float>(m_tempoLimite + m_ultimaAtividade)) {
            // Nothing ever clears this. The destinations keep their names, too.
            m_abandonado = true;
            m_leituras.CancelaTodas();
            return false;
        }
        DaUmaVolta();
    }
    return true;
}

void DL::DaUmaVolta()
{
    m_ambiente.deixaEventos();
    if (m_estado == EstadoDL::Lendo) {
        // Sleeps until something happens, but not past the next look at the clock.
        QTimer despertador;
        despertador.start(kSonoMs);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void DL::UserControl_AsyncReadProgress(const QString &sID, qint64 bytes, qint64 total)
{
    if (m_abandonado) {
        return;
    }
    if (Progress) {
        Progress(bytes, total, sID);
    }
    // Where the length is unknown the share stays as it was.
    if (bytes > 0 && total > 0) {
        constexpr double kTudo = 100;
        m_percentual = static_cast<int>(
            std::lrint(kTudo / (static_cast<double>(total) / static_cast<double>(bytes))));
    }
    m_ultimaAtividade = m_ambiente.Agora();
}

void DL::UserControl_AsyncReadComplete(const QString &sID, const FimDaLeitura &fim)
{
    if (m_abandonado) {
        return;
    }
    const auto destino = m_destinos.extract(sID);
    if (fim.arquivo != nullptr && !destino.empty()) {
        Move(*fim.arquivo, destino.mapped());
    }
    m_inteira = fim.inteira;
    if (Completed) {
        Completed(fim.bytes, sID);
    }
    // Last, so that the wait finds the file in its place. A read that failed counts as complete
    // where the share was above 99, be it from an earlier request.
    m_estado = m_percentual > kQuaseTudo ? EstadoDL::Completo : EstadoDL::Incompleto;
}

void DL::Move(QTemporaryFile &arquivo, const QString &destino)
{
    // A temporary file is its owner's alone; this one gets the mode that the system gives a new
    // one.
    QFile lugar(destino);
    lugar.remove();
    const bool livre = lugar.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    const auto modo = lugar.permissions();
    if (livre && lugar.remove() && arquivo.rename(destino)) {
        arquivo.setPermissions(modo);
        arquivo.setAutoRemove(false);
        m_recebido = destino;
    }
}
