#include "core/files/download_file.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"
#include <array>

TEST(NomeDeArquivo, IsTheLastPathElementMadeHarmless)
{
    struct Caso
    {
        const char *nome;
        const char16_t *endereco;
        const char16_t *arquivo;
    };
    const std::array casos = {
        Caso{"plain", u"http://h/a/jogo-1.6.exe", u"jogo-1.6.exe"},
        Caso{"line end of the reply", u"http://h/jogo.exe\r\n", u"jogo.exe"},
        Caso{"query and fragment", u"http://h/jogo.exe?v=1/2&x=../y#z", u"jogo.exe"},
        Caso{"packed letters", u"http://h/vers%C3%A3o%201.exe", u"versão 1.exe"},
        Caso{"letters as they are", u"http://h/versão 1.exe", u"versão 1.exe"},
        Caso{"no path", u"http://h", u"Quadrelo"},
        Caso{"no name", u"http://h/a/", u"Quadrelo"},
        Caso{"parent folder", u"http://h/a/..", u"Quadrelo"},
        Caso{"climbing", u"http://h/../../../etc/jogo.exe", u"jogo.exe"},
        Caso{"packed climbing", u"http://h/%2e%2e%2f%2e%2e%2fetc%2fpasswd", u"_.._etc_passwd"},
        Caso{"packed twice", u"http://h/..%252f..%252fx", u"%2f..%2fx"},
        Caso{"backslashes", u"http://h/a\\..\\b.exe", u"a_.._b.exe"},
        Caso{"reserved", u"http://h/a%3Ab%2Ac%3Fd%22e%3Cf%3Eg%7Ch.exe", u"a_b_c_d_e_f_g_h.exe"},
        Caso{"controls", u"http://h/a%00b%0Ac%7F.exe", u"a_b_c_.exe"},
        Caso{"direction of the text", u"http://h/foto%E2%80%AEgpj.exe", u"foto_gpj.exe"},
        Caso{"hidden", u"http://h/.profile", u"profile"},
        Caso{"dots and blanks at the end", u"http://h/jogo.exe.%20.", u"jogo.exe"},
        Caso{"device", u"http://h/nul", u"_nul"},
        Caso{"device with extension", u"http://h/Com1.tar.gz", u"_Com1.tar.gz"},
        Caso{"device with a blank", u"http://h/AUX%20.txt", u"_AUX .txt"},
        Caso{"no device", u"http://h/comet.exe", u"comet.exe"},
    };
    for (const Caso &caso : casos) {
        EXPECT_EQ(NomeDeArquivo(QString::fromUtf16(caso.endereco)),
                  QString::fromUtf16(caso.arquivo))
            << caso.nome;
    }
}

TEST(NomeDeArquivo, FitsAFileSystemAndKeepsTheExtension)
{
    for (const QString &letra : {QStringLiteral("a"), QStringLiteral("ã"), QStringLiteral("😀")}) {
        const QString nome =
            NomeDeArquivo(QStringLiteral("http://h/%1.exe").arg(letra.repeated(10'000)));
        EXPECT_LE(nome.toUtf8().size(), 200);
        EXPECT_GT(nome.size(), 80);
        EXPECT_TRUE(nome.endsWith(letra + QStringLiteral(".exe"))) << qPrintable(nome);
    }
    EXPECT_LE(NomeDeArquivo(QStringLiteral("http://h/a.") + QString(10'000, u'b')).size(), 200);
}

TEST(GuardaArquivo, NumbersTheNameAndTouchesNothingThatExists)
{
    const PastaDeTeste pasta;
    const QString raiz = pasta.Caminho("");
    pasta.Arquivo("jogo-1.6.exe", "do jogador");
    for (const char *nome : {"jogo-1.6 (2).exe", "jogo-1.6 (3).exe", "LEIAME", "LEIAME (2)"}) {
        const bool jogo = nome[0] == 'j';
        EXPECT_EQ(GuardaArquivo(pasta.Arquivo("x.parte", nome), raiz,
                                jogo ? QStringLiteral("jogo-1.6.exe") : QStringLiteral("LEIAME")),
                  pasta.Caminho(nome));
        EXPECT_EQ(pasta.Conteudo(pasta.Caminho(nome)), nome);
    }
    EXPECT_EQ(pasta.Conteudo(pasta.Caminho("jogo-1.6.exe")), "do jogador");
    EXPECT_EQ(pasta.Lista().size(), 5);
    EXPECT_EQ(GuardaArquivo(pasta.Caminho("falta"), raiz, QStringLiteral("x")), QString());
}
