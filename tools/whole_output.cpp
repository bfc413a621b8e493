#include "tools/whole_output.h"

#include <QFileInfo>
#include <QSaveFile>

bool GravaInteiro(const QString &arquivo, const QByteArray &bytes)
{
    if (const QFileInfo info(arquivo); info.exists() && !info.isFile()) {
        return false; // A device or a folder is not to be replaced by a file.
    }
    QSaveFile saida(arquivo);
    // A commit alone overlooks a full disk.
    return saida.open(QIODevice::WriteOnly) && saida.write(bytes) == bytes.size() &&
           saida.flush() && saida.error() == QFileDevice::NoError && saida.commit();
}
