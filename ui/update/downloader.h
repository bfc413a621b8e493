#pragma once

#include "core/machine/ambiente.h"
#include "ui/update/async_read.h"

#include <cstdint>

/// How the last request of a downloader stands.
enum class EstadoDL : std::int16_t {
    /// A read is running.
    Lendo = 0,
    /// The read ended, and Percentual was above 99.
    Completo = 1,
    /// The read was cancelled.
    Cancelado = 2,
    /// The read ended with Percentual at 99 or below, or the wait timed out.
    Incompleto = 3,
};

/// Name of a read whose caller gives it none, and seconds without progress after which a wait gives
/// up.
inline constexpr QStringView kNomeDaLeitura = u"Id";
inline constexpr int kTempoLimiteS = 8;

/// Fetches a web address while the windows go on living, and tells a stall from a slow server.
///
/// The calls return when the read has ended; meanwhile pending events run, so the caller must keep
/// the player from whatever does not suit a running wait. Only http and https addresses are
/// fetched. Nothing is reported: an address that cannot be read gives an empty text or no file.
///
/// Once a wait has timed out the instance is deaf: every later request on it ends by time-out too.
class DL
{
public:
    /// `pastaTemporaria` gives the folder for temporary files. `ambiente` must outlive the object.
    DL(Ambiente &ambiente, std::function<QString()> pastaTemporaria);

    /// Fetches `sWWWFile` and gives back its text, each line with CR LF behind it; "" if there is
    /// none. Of a reply that is cut off it is what has come; one above 64 KiB counts as none.
    /// `TimeOut` is in seconds.
    QString GetConteudo(const QString &sWWWFile, const QString &sID = kNomeDaLeitura.toString(),
                        int TimeOut = kTempoLimiteS);

    /// Fetches `sWWWFile` into the file `sDestination`, which it replaces. `objprogress` is told
    /// the share received, 0 to 100, over and over. The result is the final state, Incompleto if
    /// the wait timed out; whether the file is there is Recebeu's to say.
    EstadoDL Download(const QString &sWWWFile, const QString &sDestination,
                      const std::function<void(int)> &objprogress,
                      const QString &sID = kNomeDaLeitura.toString(), int TimeOut = kTempoLimiteS);

    /// Ends the read of that name and the wait for it.
    void CancelDownload(const QString &sID = kNomeDaLeitura.toString());

    /// Whether the last request has put a whole reply into `arquivo`.
    [[nodiscard]] bool Recebeu(const QString &arquivo) const
    {
        return m_inteira && m_recebido == arquivo;
    }
    [[nodiscard]] EstadoDL Estado() const { return m_estado; }
    /// Share received at the last sign of life, 0 to 100. A new request does not clear it.
    [[nodiscard]] int Percentual() const { return m_percentual; }
    /// A wait has timed out.
    [[nodiscard]] bool Abandonado() const { return m_abandonado; }
    /// Destination of each running read, by the read's name.
    [[nodiscard]] const std::map<QString, QString> &Destinos() const { return m_destinos; }

    /// Data have come, inside a wait.
    std::function<void(qint64 DownLoadedBytes, qint64 TotalBytes, const QString &sID)> Progress;
    /// A read has ended and its file has been moved, if there is one.
    std::function<void(qint64 Bytes, const QString &sID)> Completed;

private:
    void Comeca(const PedidoDeLeitura &pedido, const QString &destino, int timeOut);
    bool EsperaFim(const std::function<void(int)> &objprogress);
    void DaUmaVolta();
    void UserControl_AsyncReadProgress(const QString &sID, qint64 bytes, qint64 total);
    void UserControl_AsyncReadComplete(const QString &sID, const FimDaLeitura &fim);
    void Move(QTemporaryFile &arquivo, const QString &destino);

    Ambiente &m_ambiente;
    std::function<QString()> m_pastaTemporaria;
    LeiturasAssincronas m_leituras;
    std::map<QString, QString> m_destinos;
    /// File that the last request has filled, "" while there is none, and whether with all.
    QString m_recebido;
    bool m_inteira = false;
    int m_tempoLimite = kTempoLimiteS;
    double m_ultimaAtividade = 0;
    int m_percentual = 0;
    EstadoDL m_estado = EstadoDL::Lendo;
    bool m_abandonado = false;
};
