#include "core/registry/temp_folder.h"

#include <gtest/gtest.h>

#include "core/registry/registry_access.h"
#include "core/registry/registry_store_portable.h"
#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

TEST(PastaTemporaria, TakesTheVariableIfItIsADirectoryElseTheRegistrysCache)
{
    const PastaDeTeste pasta;
    const QString existente = QDir::toNativeSeparators(QDir::cleanPath(pasta.Caminho("")));
    const QString cache = u"C:\\Usuários\\João\\Cache"_s;
    const QString barra = QDir::separator();
    RegistroPortatil armazem;
    clsRegistryAccess registro(armazem);
    const auto com = [&](const QString &temp) {
        return PastaTemporaria(
            registro, [&](const QString &nome) { return nome == u"TEMP" ? temp : u"outra"_s; });
    };
    EXPECT_EQ(com({}), barra); // neither is there
    registro.WriteString(kChaveDasPastas.toString(), kValorCache.toString(), cache);
    EXPECT_EQ(com(existente), existente + barra);
    EXPECT_EQ(com(existente + barra), existente + barra);
    EXPECT_EQ(com(pasta.Arquivo("arquivo", {})), cache + barra);
    EXPECT_EQ(com(existente + u"-falta"_s), cache + barra);
}
