#include "core/files/ini_file.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool Escreve(const QString &arquivo, const QString &valor)
{
    return WritePrivateProfileStringA(u"s"_s, u"a"_s, valor, arquivo);
}

} // namespace

TEST(LeIni, GivesTheDefaultForWhatIsMissingOrEmpty)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\na=\nb=  \nc=v\n");
    for (const QChar chave : u"abcd"_s) {
        EXPECT_EQ(LeIni(u"s"_s, chave, arquivo, u"?"_s), chave == u'c' ? u"v"_s : u"?"_s);
        EXPECT_EQ(LeIni(u"s"_s, chave, pasta.Caminho("none.ini"), u"?"_s), u"?");
    }
    EXPECT_EQ(LeIni(u"s"_s, u"a"_s, pasta.Caminho(""), u"?"_s), u"?") << "a folder";
}

TEST(EscreveIni, PutsTextInTheCodePage)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("João.ini");
    EXPECT_TRUE(WritePrivateProfileStringA(u"Seção"_s, u"É"_s, u"ação € ж"_s, arquivo));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[Se\xE7\xE3o]\r\n\xC9=a\xE7\xE3o \x80 ?\r\n");
    EXPECT_EQ(LeIni(u"SEçãO"_s, u"É"_s, arquivo, {}), u"ação € ?");
}

TEST(EscreveIni, FailsWithoutATraceWhereTheFileCannotBeReplaced)
{
    const PastaDeTeste pasta;
    const auto fechado = pasta.Arquivo("fechado.ini", "[s]\r\na=1\r\n");
    QFile(fechado).setPermissions(QFileDevice::ReadOwner);
    QDir(pasta.Caminho("")).mkdir(u"pasta.ini"_s);
    const auto antes = pasta.Lista();
    EXPECT_FALSE(Escreve(fechado, u"b"_s));
    EXPECT_FALSE(Escreve(pasta.Caminho("pasta.ini"), u"b"_s));
    EXPECT_FALSE(Escreve(pasta.Caminho("falta/x.ini"), u"b"_s));
    EXPECT_EQ(pasta.Conteudo(fechado), "[s]\r\na=1\r\n");
    EXPECT_EQ(pasta.Lista(), antes);

    QFile::remove(fechado);
    const auto aberto = pasta.Arquivo("aberto.ini", "[s]\r\na=1\r\n");
    QFile dir(pasta.Caminho(""));
    dir.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const bool fechada = !QFileInfo(pasta.Caminho("")).isWritable();
    const bool gravou = Escreve(aberto, u"b"_s);
    dir.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    // A user who may write everywhere writes here too, and leaves as little behind.
    EXPECT_EQ(gravou, !fechada);
    EXPECT_EQ(pasta.Lista().size(), 2);
}

TEST(MudaIni, CommitsItsWritesTogetherAndStartsOverWhereTheFileChangedMeanwhile)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Arquivo("x.ini", "[s]\r\na=1\r\n");
    int vezes = 0;
    EXPECT_TRUE(MudaIni(arquivo, [&](LoteIni &lote) {
        lote.Escreve(u"s"_s, u"b"_s, lote.Le(u"s"_s, u"a"_s) + u'!');
        lote.Escreve(u"s"_s, u"a"_s, u"2"_s);
        EXPECT_EQ(lote.Le(u"s"_s, u"a"_s), u"2");
        EXPECT_FALSE(pasta.Conteudo(arquivo).contains('2'));
        if (++vezes == 1) {
            pasta.Arquivo("x.ini", "[t]\r\nz=9\r\n[S]\r\nA=7\r\nb=8\r\n");
        }
    }));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[t]\r\nz=9\r\n[S]\r\nA=2\r\nb=7!\r\n");
    EXPECT_EQ(vezes, 2);
    // A writer that never rests: in the end the change is given up.
    EXPECT_FALSE(MudaIni(arquivo, [&](LoteIni &lote) {
        lote.Escreve(u"s"_s, u"b"_s, u"1"_s);
        if (++vezes < 100) pasta.Arquivo("x.ini", QByteArray::number(vezes));
    }));
    EXPECT_EQ(pasta.Lista(), QStringList{u"x.ini"_s});
}
