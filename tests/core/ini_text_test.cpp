#include "core/files/ini_text.h"

#include <gtest/gtest.h>

namespace {

/// A literal with all its bytes, NULs too.
template <size_t N>
QByteArray Bytes(const char (&texto)[N])
{
    return {texto, static_cast<qsizetype>(N - 1)};
}

struct Leitura
{
    const char *nome;
    QByteArray texto;
    QByteArray valor;
    QByteArray secao = "s";
    QByteArray chave = "k";
};

void Confere(const std::vector<Leitura> &casos)
{
    for (const auto &caso : casos) {
        EXPECT_EQ(TextoIni(caso.texto).Valor(caso.secao, caso.chave), caso.valor) << caso.nome;
    }
}

struct Gravacao
{
    const char *nome;
    QByteArray antes;
    QByteArray depois;
    QByteArray valor = "N";
    QByteArray secao = "s";
    QByteArray chave = "k";
};

void Confere(const std::vector<Gravacao> &casos)
{
    for (const auto &caso : casos) {
        TextoIni texto(caso.antes);
        texto.Escreve(caso.secao, caso.chave, caso.valor);
        EXPECT_EQ(texto.Bytes(), caso.depois) << caso.nome;
    }
}

} // namespace

TEST(TextoIni, ReadsValuesWithoutBlanksAndOnePairOfQuotes)
{
    Confere(std::vector<Leitura>{
        {"blanks and tabs round all parts", "\t[ s\t]\n \tk\t = \t a b \t", "a b"},
        {"blanks inside quotes", "[s]\nk= \" v \" ", " v "},
        {"single quotes", "[s]\nk=' v '", " v "},
        {"one pair only", "[s]\nk=\"\"v\"\"", "\"v\""},
        {"pair that does not match", "[s]\nk=\"v'", "\"v'"},
        {"opening quote alone", "[s]\nk=\"v", "\"v"},
        {"text behind the quotes", "[s]\nk=\"v\" x", "\"v\" x"},
        {"a quote and no more", "[s]\nk=\"", "\""},
        {"empty quotes", "[s]\nk=\"\"", ""},
        {"more than one =", "[s]\nk==a=b", "=a=b"},
        {"; inside a value", "[s]\nk=a ; b", "a ; b"},
        {"no-break blank", "[s]\nk=\xA0v\xA0", "\xA0v\xA0"},
        {"NUL ends a value", Bytes("[s]\nk= a \0b"), "a "},
        {"NUL parts quotes", Bytes("[s]\nk=\"a\0b\""), "\"a"},
        {"NUL ends names", Bytes("[s\0x]\nk\0y=v"), "v"},
    });
}

TEST(TextoIni, FindsTheFirstKeyOfTheFirstSection)
{
    Confere(std::vector<Leitura>{
        {"letter case", "[S]\nK=v", "v"},
        {"letter case beyond ASCII counts", "[s]\n\xC9=v", "", "s", "\xE9"},
        {"blanks round the names asked for", "[s]\nk=v", "v", " s\t", "\tk "},
        {"second section of the name", "[s]\nj=1\n[S]\nk=2", ""},
        {"second key of the name", "[s]\nk=1\nK=2", "1"},
        {"empty first key", "[s]\nk=\nk=2", ""},
        {"first key without =", "[s]\nk\nk=2", ""},
        {"key of the section behind", "[s]\n[t]\nk=2", ""},
        {"comment", "[s]\n ;k=1\nk=2", "2"},
        {"comments are no keys", "[s]\n ;k=1", "", "s", ";k"},
        {"# opens no comment", "[s]\n#k=1", "1", "s", "#k"},
        {"empty key", "[s]\n = v", "v", "s", ""},
        {"before the first section", "k=v\n[s]", ""},
        {"no section, by its empty name", "k=v", "", ""},
        {"section with an empty name", "k=1\n[ ]\nk=v", "v", ""},
    });
}

TEST(TextoIni, ReadsOddLinesAndHeaders)
{
    Confere(std::vector<Leitura>{
        {"lone LF", "[s]\nk=v\nj=w\n", "v"},
        {"lone CR", "[s]\rk=v\rj=w\r", "v"},
        {"all ends mixed", "[s]\r\r\n\n\rk=v", "v"},
        {"text behind ]", "[s] ; x]\nk=v", "v"},
        {"name ends at the first ]", "[[s]]\nk=v", "v", "[s"},
        {"header without ] is a key", "[t]\nk=1\n[s\nk=2", ""},
        {"and has a value", "[s]\n[k=v", "v", "s", "[k"},
        {"empty text", "", ""},
        {"not text at all", Bytes("\0\xFF[s]\n\0k=v"), ""},
    });
}

TEST(TextoIni, CutsLongValuesAfterTakingTheQuotesOff)
{
    const QByteArray longo(kMaximoDoValor, 'a');
    Confere(std::vector<Leitura>{
        {"the longest", "[s]\nk=" + longo, longo},
        {"one more", "[s]\nk=" + longo + 'b', longo},
        {"the longest in quotes", "[s]\nk=\"" + longo + '"', longo},
        {"more in quotes", "[s]\nk=\"" + longo + "b\"", longo},
        {"a blank where the cut falls", "[s]\nk=" + longo.chopped(1) + " b",
         longo.chopped(1) + ' '},
    });
}

TEST(TextoIni, ChangesOnlyTheLineOfTheKey)
{
    Confere(std::vector<Gravacao>{
        {"key keeps its spelling, not its blanks", "[S]\n  Kk = 1\n j = 2 \n",
         "[S]\nKk=N\r\n j = 2 \n", "N", "s", "kK"},
        {"first of two keys", "[s]\nk=1\nk=2\n", "[s]\nk=N\r\nk=2\n"},
        {"key without =", "[s]\nk\n", "[s]\nk=N\r\n"},
        {"comments, NULs and odd lines stay", Bytes("x\n;c\n[s] x\n\0\n\n k=1\n\xFF\x81\r"),
         Bytes("x\n;c\n[s] x\n\0\n\nk=N\r\n\xFF\x81\r")},
        {"value as given", "[s]\r\nk=1\r\n", "[s]\r\nk= \"v\" \r\n", " \"v\" "},
        {"empty value", "[s]\r\nk=1\r\n", "[s]\r\nk=\r\n", ""},
        {"value up to its NUL", "[s]\r\nk=1\r\n", "[s]\r\nk=a\r\n", Bytes("a\0b")},
        {"missing last line end", "[s]\nk=1\nj=2", "[s]\nk=N\r\nj=2\r\n"},
    });
}

TEST(TextoIni, AddsKeysBehindTheLastKeyAndSectionsAtTheEnd)
{
    Confere(std::vector<Gravacao>{
        {"nothing there", "", "[s]\r\nk=N\r\n"},
        {"behind the last key, before what follows", "[s]\na=1\n;c\nb=2\n;d\n\n[t]\nk=1\n",
         "[s]\na=1\n;c\nb=2\nk=N\r\n;d\n\n[t]\nk=1\n"},
        {"section without a key", "[s]\n;c\n\n[t]\n", "[s]\nk=N\r\n;c\n\n[t]\n"},
        {"first section of the name", "[s]\na=1\n[s]\nk=2\n", "[s]\na=1\nk=N\r\n[s]\nk=2\n"},
        {"header as last line", "[s]", "[s]\r\nk=N\r\n"},
        {"new section", "[t]\na=1\n\n", "[t]\na=1\n\n[s]\r\nk=N\r\n"},
        {"new section behind an open line", "k=1", "k=1\r\n[s]\r\nk=N\r\n"},
        {"names in other letters", "[\xC9]\n", "[\xC9]\n[\xE9]\r\n\xC7=N\r\n", "N", "\xE9", "\xC7"},
    });
}

TEST(TextoIni, CountsWhatWasWrittenAsIfItHadBeenRead)
{
    TextoIni texto;
    texto.Escreve("s", "k", "a\r\n[t]\nj=1");
    EXPECT_EQ(texto.Valor("s", "k"), "a");
    EXPECT_EQ(texto.Valor("t", "j"), "1");
    texto.Escreve("s", "x", "2");
    texto.Escreve("u]v", "a=b", "3");
    EXPECT_EQ(texto.Bytes(), "[s]\r\nk=a\r\nx=2\r\n[t]\nj=1\r\n[u]v]\r\na=b=3\r\n");
    EXPECT_EQ(texto.Valor("u", "a"), "b=3");
    EXPECT_EQ(texto.Valor("u]v", "a=b"), "");
}
