#include "core/files/ini_file.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"

namespace {

QString Le(const QString &arquivo, const QString &chave)
{
    return LeIni(QStringLiteral("s"), chave, arquivo, QStringLiteral("?"));
}

bool Escreve(const QString &arquivo, const QString &chave, const QString &valor)
{
    return WritePrivateProfileStringA(QStringLiteral("s"), chave, valor, arquivo);
}

const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");

} // namespace

TEST(LeIni, GivesTheDefaultForWhatIsMissingOrEmpty)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\na=\nb=  \nc=v\n");
    EXPECT_EQ(Le(arquivo, a), u"?");
    EXPECT_EQ(Le(arquivo, b), u"?");
    EXPECT_EQ(Le(arquivo, QStringLiteral("c")), u"v");
    EXPECT_EQ(Le(arquivo, QStringLiteral("d")), u"?");
    EXPECT_EQ(Le(pasta.Caminho("none.ini"), a), u"?");
    EXPECT_EQ(Le(pasta.Caminho(""), a), u"?") << "a folder";
}

TEST(EscreveIni, PutsTextInTheCodePage)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("João.ini");
    EXPECT_TRUE(WritePrivateProfileStringA(QStringLiteral("Seção"), QStringLiteral("É"),
                                           QStringLiteral("ação € ж"), arquivo));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[Se\xE7\xE3o]\r\n\xC9=a\xE7\xE3o \x80 ?\r\n");
    EXPECT_EQ(LeIni(QStringLiteral("SEçãO"), QStringLiteral("É"), arquivo, {}), u"ação € ?");
}

TEST(EscreveIni, FailsWithoutATraceWhereTheFileCannotBeReplaced)
{
    PastaDeTeste pasta;
    const auto fechado = pasta.Arquivo("fechado.ini", "[s]\r\na=1\r\n");
    QFile(fechado).setPermissions(QFileDevice::ReadOwner);
    QDir(pasta.Caminho("")).mkdir(QStringLiteral("pasta.ini"));
    const auto antes = pasta.Lista();

    EXPECT_FALSE(Escreve(fechado, a, b));
    EXPECT_FALSE(Escreve(pasta.Caminho("pasta.ini"), a, b));
    EXPECT_FALSE(Escreve(pasta.Caminho("falta/x.ini"), a, b));
    EXPECT_EQ(pasta.Lista(), antes);
    EXPECT_EQ(pasta.Conteudo(fechado), "[s]\r\na=1\r\n");
}

TEST(EscreveIni, FailsWithoutATraceInAClosedFolder)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\r\na=1\r\n");
    QFile dir(pasta.Caminho(""));
    dir.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const bool fechada = !QFileInfo(pasta.Caminho("")).isWritable();
    const bool gravou = Escreve(arquivo, a, b);
    dir.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    // A user who may write everywhere writes here too, and leaves as little behind.
    EXPECT_EQ(gravou, !fechada);
    EXPECT_EQ(pasta.Lista(), QStringList{QStringLiteral("x.ini")});
    EXPECT_TRUE(pasta.Conteudo(arquivo).startsWith("[s]\r\na="));
}

TEST(MudaIni, ReadsItsOwnWritesAndCommitsThemTogether)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\r\na=1\r\n");
    const auto s = QStringLiteral("s");
    EXPECT_TRUE(MudaIni(arquivo, [&](LoteIni &lote) {
        lote.Escreve(s, b, lote.Le(s, a));
        lote.Escreve(s, a, QStringLiteral("2"));
        EXPECT_EQ(lote.Le(s, a) + lote.Le(s, b), u"21");
        EXPECT_EQ(pasta.Conteudo(arquivo), "[s]\r\na=1\r\n");
    }));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[s]\r\na=2\r\nb=1\r\n");
    EXPECT_EQ(pasta.Lista(), QStringList{QStringLiteral("x.ini")});
}

TEST(MudaIni, StartsOverWhereTheFileChangedMeanwhile)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\r\na=1\r\n");
    const auto s = QStringLiteral("s");
    int vezes = 0;
    EXPECT_TRUE(MudaIni(arquivo, [&](LoteIni &lote) {
        lote.Escreve(s, b, lote.Le(s, a) + u'!');
        if (++vezes == 1) {
            pasta.Arquivo("x.ini", "[t]\r\nz=9\r\n[S]\r\nA=7\r\nb=8\r\n");
        }
    }));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[t]\r\nz=9\r\n[S]\r\nA=7\r\nb=7!\r\n");
    EXPECT_EQ(vezes, 2);
}
