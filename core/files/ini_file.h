#pragma once

#include "core/files/ini_text.h"
#include <functional>
#include <optional>
#include <QString>

/// Reading and writing of stored files, all of them INI files in the code page. What counts as a
/// section, a key and a value, and what a write changes, TextoIni says.
///
/// A write puts a whole new file in the old one's place, flushed to the disk, or changes nothing
/// and leaves nothing behind. It creates the file, but no directory. It fails where the directory
/// is missing or closed, the disk full, the file read-only, unreadable, larger than
/// kMaximoDoArquivo or not a file at all.
///
/// `arquivo` is always a full path.

/// The text of a key, at most kMaximoDoValor characters; `padrao` where that text is empty or the
/// file, the section or the key is missing.
QString LeIni(const QString &secao, const QString &chave, const QString &arquivo,
              const QString &padrao);

/// Writes one key. The result says whether the file now holds it; the program does not care.
bool WritePrivateProfileStringA(const QString &secao, const QString &chave, const QString &valor,
                                const QString &arquivo);

/// The text of one file, read once for many questions.
class LoteIni
{
public:
    explicit LoteIni(const QString &arquivo);

    /// False where something is there that cannot be read. It has no keys then, but is not empty.
    [[nodiscard]] bool Legivel() const { return m_base.has_value(); }

    /// As LeIni does.
    [[nodiscard]] QString Le(const QString &secao, const QString &chave,
                             const QString &padrao = {}) const;

    /// Notes a write, which Le sees from now on. It reaches the file inside MudaIni only.
    void Escreve(const QString &secao, const QString &chave, const QString &valor);

private:
    friend bool MudaIni(const QString &arquivo, const std::function<void(LoteIni &)> &muda);

    /// The file's bytes that m_texto began with.
    std::optional<QByteArray> m_base;
    TextoIni m_texto;
    bool m_mudou = false;
};

/// Many reads and writes of one file in a row, for the price of one: `muda` is given what the disk
/// holds, and all that it writes reaches the file together or not at all. No other game writes
/// meanwhile; where one does all the same, `muda` is called again with what is there then. True if
/// the file holds the writes now, or if there were none to make.
bool MudaIni(const QString &arquivo, const std::function<void(LoteIni &)> &muda);
