#pragma once

#include <functional>
#include <optional>
#include <QByteArray>
#include <QLockFile>
#include <QString>

/// Files read and replaced as wholes, so that whatever happens the disk holds the old one or the
/// new one.

/// Largest file that is kept this way, in bytes. A larger one counts as damaged.
inline constexpr qint64 kMaximoDoArquivo = 4 << 20;

/// The bytes of a file, none for a missing one. No value where something is there that is no file,
/// is too large or cannot be read, not even a moment later: it must not be taken for empty, and
/// nothing may be written over it.
std::optional<QByteArray> LeArquivo(const QString &arquivo);

enum class Troca {
    Feita,
    /// The directory is missing or closed, the disk full or broken, the file read-only or not a
    /// file, the new one too large.
    Falhou,
    /// `aindaVale` said no.
    Recusada,
};

/// Puts a file of these bytes, flushed to the disk, in the place of `arquivo`, or changes nothing
/// and leaves nothing behind. It creates no directory. `aindaVale`, if given, is asked at the last
/// moment.
[[nodiscard]] Troca TrocaArquivo(const QString &arquivo, const QByteArray &bytes,
                                 const std::function<bool()> &aindaVale = {});

/// Keeps the writers of one file apart, also those of other processes, for as long as it lives.
///
/// It waits for another writer no longer than a moment, and for a dead one not at all. Where it
/// cannot be had, because a writer hangs or the folder takes no lock file, the work goes on without
/// it.
class TravaDeArquivo
{
public:
    /// `esperaMs`: longest wait, in milliseconds.
    explicit TravaDeArquivo(const QString &arquivo, int esperaMs = 1000);

    [[nodiscard]] bool Minha() const { return m_trava.isLocked(); }

private:
    QLockFile m_trava;
};

/// Removes what writers of `arquivo` that were killed have left beside it: new files that never got
/// to their place, named after it with a point and six letters, and the lock file. A living
/// writer's things stay, and so does a name that a person may have given: six letters that are a
/// word.
void LimpaRestos(const QString &arquivo);
