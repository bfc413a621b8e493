#include "core/files/download_file.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

TEST(NomeDeArquivo, IsTheLastPathElementMadeHarmless)
{
    const std::pair<QString, QString> casos[] = {
        {u"a/jogo-1.6.exe"_s, u"jogo-1.6.exe"_s},
        {u"jogo.exe\r\n"_s, u"jogo.exe"_s},
        {u"jogo.exe?v=1/2&x=../y#z"_s, u"jogo.exe"_s},
        {u"vers%C3%A3o%201.exe"_s, u"versão 1.exe"_s},
        {u"versão 1.exe"_s, u"versão 1.exe"_s},
        {u""_s, u"Quadrelo"_s},
        {u"a/"_s, u"Quadrelo"_s},
        {u"a/.."_s, u"Quadrelo"_s},
        {u"../../../etc/jogo.exe"_s, u"jogo.exe"_s},
        {u"%2e%2e%2f%2e%2e%2fetc%2fpasswd"_s, u"_.._etc_passwd"_s},
        {u"..%252f..%252fx"_s, u"%2f..%2fx"_s},
        {u"a\\..\\b.exe"_s, u"a_.._b.exe"_s},
        {u"a%3Ab%2Ac%3Fd%22e%3Cf%3Eg%7Ch.exe"_s, u"a_b_c_d_e_f_g_h.exe"_s},
        {u"a%00b%0Ac%7F.exe"_s, u"a_b_c_.exe"_s},
        {u"foto%E2%80%AEgpj.exe"_s, u"foto_gpj.exe"_s},
        {u".profile"_s, u"profile"_s},
        {u"jogo.exe.%20."_s, u"jogo.exe"_s},
        {u"nul"_s, u"_nul"_s},
        {u"Com1.tar.gz"_s, u"_Com1.tar.gz"_s},
        {u"AUX%20.txt"_s, u"_AUX .txt"_s},
        {u"comet.exe"_s, u"comet.exe"_s}};
    for (const auto &[endereco, nome] : casos) {
        EXPECT_EQ(NomeDeArquivo(u"http://h/"_s + endereco), nome) << qPrintable(endereco);
    }
    EXPECT_EQ(NomeDeArquivo(u"http://h"_s), u"Quadrelo");
}

TEST(NomeDeArquivo, FitsAFileSystemAndKeepsTheExtension)
{
    for (const QString &letra : {u"a"_s, u"ã"_s, u"😀"_s}) {
        const QString nome = NomeDeArquivo(u"http://h/%1.exe"_s.arg(letra.repeated(10'000)));
        EXPECT_LE(nome.toUtf8().size(), 200);
        EXPECT_GT(nome.size(), 80);
        EXPECT_TRUE(nome.endsWith(letra + u".exe"_s)) << qPrintable(nome);
    }
    EXPECT_LE(NomeDeArquivo(u"http://h/a."_s + QString(10'000, u'b')).size(), 200);
}

TEST(GuardaArquivo, NumbersTheNameAndTouchesNothingThatExists)
{
    const PastaDeTeste pasta;
    const QString raiz = pasta.Caminho("");
    pasta.Arquivo("jogo-1.6.exe", "do jogador");
    for (const char *nome : {"jogo-1.6 (2).exe", "jogo-1.6 (3).exe", "LEIAME", "LEIAME (2)"}) {
        const bool jogo = nome[0] == 'j';
        EXPECT_EQ(GuardaArquivo(pasta.Arquivo("x.parte", nome), raiz,
                                jogo ? u"jogo-1.6.exe"_s : u"LEIAME"_s),
                  pasta.Caminho(nome));
        EXPECT_EQ(pasta.Conteudo(pasta.Caminho(nome)), nome);
    }
    EXPECT_EQ(pasta.Conteudo(pasta.Caminho("jogo-1.6.exe")), "do jogador");
    EXPECT_EQ(pasta.Lista().size(), 5);
    EXPECT_EQ(GuardaArquivo(pasta.Caminho("falta"), raiz, u"x"_s), QString());
}
