#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A temporary folder and short ways to its files.
class PastaDeTeste
{
public:
    [[nodiscard]] QString Caminho(const char *nome) const
    {
        return m_pasta.filePath(QString::fromUtf8(nome));
    }

    /// Makes a file of these bytes, instead of one that is there, and gives its path.
    QString Arquivo(const char *nome, const QByteArray &conteudo) const
    {
        QFile arquivo(Caminho(nome));
        arquivo.remove();
        if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(conteudo) != conteudo.size()) {
            qFatal("cannot make %s", nome);
        }
        return arquivo.fileName();
    }

    static QByteArray Conteudo(const QString &caminho)
    {
        QFile arquivo(caminho);
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("(missing)");
    }

    /// Names of all that lies in the folder.
    [[nodiscard]] QStringList Lista() const
    {
        return QDir(m_pasta.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

private:
    QTemporaryDir m_pasta;
};
