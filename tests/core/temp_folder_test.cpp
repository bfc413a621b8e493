#include "core/registry/temp_folder.h"

#include <gtest/gtest.h>

#include "core/registry/registry_access.h"
#include "core/registry/registry_store_portable.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

TEST(PastaTemporaria, TakesTheVariableIfItIsADirectoryElseTheRegistrysCache)
{
    const QTemporaryDir pasta;
    const QString existente = QDir::toNativeSeparators(pasta.path());
    const QString arquivo = pasta.filePath(QStringLiteral("arquivo"));
    ASSERT_TRUE(QFile(arquivo).open(QIODevice::WriteOnly));
    const QString cache = QStringLiteral("C:\\Usuários\\João\\Cache");
    const QString barra = QDir::separator();

    const auto armazem = std::make_unique<RegistroPortatil>();
    clsRegistryAccess registro(*armazem);
    const auto com = [&](const QString &temp) {
        return PastaTemporaria(registro, [&](const QString &nome) {
            return nome == u"TEMP" ? temp : QStringLiteral("outra variável");
        });
    };
    EXPECT_EQ(com(QString()), barra); // neither is there
    ASSERT_NE(registro.WriteString(kChaveDasPastas.toString(), kValorCache.toString(), cache), 0);
    EXPECT_EQ(com(existente), existente + barra);
    EXPECT_EQ(com(existente + barra), existente + barra);
    EXPECT_EQ(com(QString()), cache + barra);
    EXPECT_EQ(com(arquivo), cache + barra);
    EXPECT_EQ(com(existente + QStringLiteral("-falta")), cache + barra);
}
