#include "core/files/ini_text.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

// A few lines of each kind by hand; the rest is compared with the plain reader and writer.

TEST(TextoIni, ReadsTheFirstKeyOfTheFirstSection)
{
    const QByteArray longo(kMaximoDoValor, 'a');
    const TextoIni texto("k=outside\n\t[ S\t] x]\n \tK\t = \t a b=c ; d \t\nk=second\r"
                         "q=\" v \"\r\nr=''v'\n;s=1\nt=\"v\" x\nu=\"\n\xC9=\xA0v\n[k=v\nw\n = e\n"
                         "nul= a \0b\nlong=\""_ba +
                         longo + "b\"\n[[t]]\nk=1\n[s]\nz=1");
    const QByteArray casos[][3] = {
        {"s", "k", "a b=c ; d"}, {" S\t", "\tQ ", " v "}, {"s", "r", "'v"},
        {"s", ";s", ""},         {"s", "t", "\"v\" x"},   {"s", "u", "\""},
        {"s", "\xC9", "\xA0v"},  {"s", "\xE9", ""},       {"s", "[k", "v"},
        {"s", "w", ""},          {"s", "", "e"},          {"s", "nul", "a "},
        {"s", "long", longo},    {"[t", "k", "1"},        {"s", "z", ""},
        {"", "k", ""},
    };
    for (const auto &[secao, chave, valor] : casos) {
        EXPECT_EQ(texto.Valor(secao, chave), valor) << chave.constData();
    }
}

TEST(TextoIni, ChangesOneLineAndLeavesAllOthersByteForByte)
{
    TextoIni texto("x\n[S] y\n;c\n  Kk = 1\n j = 2 \n;d\n\n\0\xFF\r[t]\n;e"_ba);
    const QByteArray escritas[][3] = {{"s", "kK", "N"},
                                      {"s", "nova", " \"v\" "},
                                      {"T", "a", "b\0c"_ba},
                                      {"u]v", "a=b", "3\r\n[w]\nk=4"}};
    for (const auto &[secao, chave, valor] : escritas) {
        texto.Escreve(secao, chave, valor);
    }
    EXPECT_EQ(texto.Bytes(),
              "x\n[S] y\n;c\nKk=N\r\n j = 2 \n;d\n\n\0\xFF\rnova= \"v\" \r\n[t]\na=b\r\n;e\r\n"
              "[u]v]\r\na=b=3\r\n[w]\nk=4\r\n"_ba);
    EXPECT_EQ(texto.Valor("u", "a") + texto.Valor("w", "k") + texto.Valor("u]v", "a=b"), "b=34");
}
