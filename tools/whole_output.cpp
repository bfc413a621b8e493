#include "tools/whole_output.h"

#include <QSaveFile>

bool GravaInteiro(const QString &arquivo, const QByteArray &bytes)
{
    QSaveFile saida(arquivo);
    // A commit alone overlooks a full disk.
    return saida.open(QIODevice::WriteOnly) && saida.write(bytes) == bytes.size() &&
           saida.flush() && saida.error() == QFileDevice::NoError && saida.commit();
}
