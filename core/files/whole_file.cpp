#include "core/files/whole_file.h"

#include "core/files/disk_sync.h"
#include <algorithm>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

namespace {

/// A virus scanner that holds a file lets go of it soon.
constexpr int kVezesDeAbrir = 5;
constexpr int kPausaDeAbrirMs = 20;
constexpr int kPausaDaTravaMs = 1;
/// Age from which a lock counts as dead although nothing is known of its owner.
constexpr int kTravaMortaMs = 10'000;

bool Abre(QFile &leitor, bool existe)
{
    for (int vez = 1; !leitor.open(QIODevice::ReadOnly); ++vez) {
        if (!existe || vez == kVezesDeAbrir) {
            return false;
        }
        QThread::msleep(kPausaDeAbrirMs);
    }
    return true;
}

/// A file that nobody may write stays, also where its owner has the power to replace it.
bool SoLeitura(const QString &arquivo)
{
    constexpr auto kEscrita =
        QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    const QFileInfo info(arquivo);
    return info.exists() && (!(info.permissions() & kEscrita) || !info.isWritable());
}

QString NomeDaTrava(const QString &arquivo)
{
    return arquivo + QStringLiteral(".lock");
}

/// Whether six letters are as the system draws them by lot, and not "backup", "Backup" or "BACKUP".
bool Sorteadas(const QString &letras)
{
    const auto letra = [](QChar l) { return l.unicode() < 0x80 && l.isLetter(); };
    const auto maiuscula = [](QChar l) { return l.isUpper(); };
    return std::all_of(letras.begin(), letras.end(), letra) &&
           std::any_of(letras.begin() + 1, letras.end(), maiuscula) &&
           !std::all_of(letras.begin(), letras.end(), maiuscula);
}

} // namespace

std::optional<QByteArray> LeArquivo(const QString &arquivo)
{
    const QFileInfo info(arquivo);
    QFile leitor(arquivo);
    if (info.exists() && !info.isFile()) {
        return {};
    }
    if (!Abre(leitor, info.exists())) {
        // What the system refuses to look for need not be missing.
        const bool falta = !info.exists() && leitor.error() == QFileDevice::OpenError;
        return falta ? std::optional(QByteArray()) : std::nullopt;
    }
    if (leitor.size() > kMaximoDoArquivo) {
        return {};
    }
    const auto bytes = leitor.readAll();
    return leitor.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

Troca TrocaArquivo(const QString &arquivo, const QByteArray &bytes,
                   const std::function<bool()> &aindaVale)
{
    // Where the system allows it, a device would make room for the new file.
    const QFileInfo info(arquivo);
    if ((info.exists() && !info.isFile()) || bytes.size() > kMaximoDoArquivo ||
        SoLeitura(arquivo)) {
        return Troca::Falhou;
    }
    QSaveFile escritor(arquivo);
    // The commit overlooks what these two find: a full disk, and one that fails.
    if (!escritor.open(QIODevice::WriteOnly) || escritor.write(bytes) != bytes.size() ||
        !escritor.flush() || !SincronizaDisco(escritor.handle())) {
        return Troca::Falhou;
    }
    if (aindaVale && !aindaVale()) {
        return Troca::Recusada;
    }
    return escritor.commit() ? Troca::Feita : Troca::Falhou;
}

TravaDeArquivo::TravaDeArquivo(const QString &arquivo, int esperaMs) : m_trava(NomeDaTrava(arquivo))
{
    m_trava.setStaleLockTime(kTravaMortaMs);
    QElapsedTimer relogio;
    relogio.start();
    // Its own wait sleeps too long at a time: a busy writer would always be quicker.
    while (!m_trava.tryLock() && m_trava.error() == QLockFile::LockFailedError &&
           relogio.elapsed() < esperaMs) {
        QThread::msleep(kPausaDaTravaMs);
    }
}

void LimpaRestos(const QString &arquivo)
{
    const QDir pasta = QFileInfo(arquivo).dir();
    const QString nome = QFileInfo(arquivo).fileName();
    const QStringList restos = pasta.entryList(
        {nome + QStringLiteral(".??????"), QFileInfo(NomeDaTrava(arquivo)).fileName()},
        QDir::Files | QDir::Hidden);
    if (restos.isEmpty()) {
        return;
    }
    const TravaDeArquivo trava(arquivo, 0);
    for (const QString &resto : restos) {
        const QString letras = resto.sliced(nome.size() + 1);
        if (trava.Minha() && letras.size() == 6 && Sorteadas(letras)) {
            QFile::remove(pasta.filePath(resto));
        }
    }
}
