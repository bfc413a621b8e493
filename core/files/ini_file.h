#pragma once

#include "core/files/ini_text.h"
#include <QString>
#include <vector>

/// Reading and writing of stored files, all of them INI files in the code page. What counts as a
/// section, a key and a value, and what a write changes, TextoIni says.
///
/// A write puts a whole new file in the old one's place, flushed to the disk, or changes nothing
/// and leaves nothing behind. It creates the file, but no directory. It fails where the directory
/// is missing or closed, the disk full, the file read-only, unreadable or not a file at all.
///
/// `arquivo` is always a full path.

/// The text of a key, at most kMaximoDoValor characters; `padrao` where that text is empty or the
/// file, the section or the key is missing.
QString LeIni(const QString &secao, const QString &chave, const QString &arquivo,
              const QString &padrao);

/// Writes one key. The result says whether the file now holds it; the program does not care.
bool WritePrivateProfileStringA(const QString &secao, const QString &chave, const QString &valor,
                                const QString &arquivo);

/// Many reads and writes of one file in a row, for the price of one: the file is read once, when
/// the batch is made, and all writes reach the disk together. Reads see the batch's earlier writes.
class LoteIni
{
public:
    explicit LoteIni(const QString &arquivo);

    /// As LeIni does.
    [[nodiscard]] QString Le(const QString &secao, const QString &chave,
                             const QString &padrao = {}) const;

    /// Notes a write. The file changes with Grava only.
    void Escreve(const QString &secao, const QString &chave, const QString &valor);

    /// Writes the file: all noted writes or none. Where the file on disk has changed since the
    /// batch read it, the writes are made in its new text. True if it holds them now, or if there
    /// were none to make.
    bool Grava();

private:
    struct Escrita
    {
        QByteArray secao, chave, valor;
    };

    void RefazSobre(const QByteArray &bytes);

    QString m_arquivo;
    /// The file's bytes that m_texto began with.
    QByteArray m_base;
    TextoIni m_texto;
    std::vector<Escrita> m_escritas;
};
