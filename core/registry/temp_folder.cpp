#include "core/registry/temp_folder.h"

#include "core/registry/registry_access.h"
#include <QDir>
#include <QFileInfo>

QString PastaTemporaria(clsRegistryAccess &registro,
                        const std::function<QString(const QString &)> &ambiente)
{
    QString pasta = ambiente(QStringLiteral("TEMP"));
    if (!QFileInfo(pasta).isDir()) {
        pasta = registro.ReadString(kChaveDasPastas.toString(), kValorCache.toString(), QString());
    }
    return pasta.endsWith(QDir::separator()) ? pasta : pasta + QDir::separator();
}
