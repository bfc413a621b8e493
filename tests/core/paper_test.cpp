#include "tools/paper/formats.h"

#include <gtest/gtest.h>

#include "core/builder/word_placing.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

namespace {

/// Two words begin in one cell, and two lie side by side without a word in common.
Folha FolhaDeTeste()
{
    Tabuleiro tabuleiro;
    ExibicaoMontagem nada;
    const int canto = 3 * kColunas + 5;
    for (const PalavraPosta &posta :
         {PalavraPosta{QStringLiteral("CASA"), canto, u'V', QStringLiteral("<b>&\" é 1"), false},
          {QStringLiteral("COR"), canto, u'H', QStringLiteral("Azul\tou \x1B[2J%1"), false},
          {QStringLiteral("ÃMO"), canto + kColunas, u'H', QStringLiteral("Não sou"), false}}) {
        Carrega_Palavra(tabuleiro, nada, posta);
    }
    return FazFolha(tabuleiro);
}

const OrigemFolha kOrigem{
    QStringLiteral("A & <B> %2"), QStringLiteral("João%1.tes"), 60, 18446744073709551615u, 3, true};

} // namespace

TEST(Paper, ATextHasTheNumbersWhereTheWindowHasThemAndDoubleLinesBetweenStrangers)
{
    const QString texto = QString::fromUtf8(TextoDaFolha(FolhaDeTeste(), kOrigem, true));
    const QString grade = QStringLiteral("A & <B> %2\n\n"
                                         "  ┌1─┬──┬──┐\n"
                                         " 2│C │O │R │\n"
                                         "  ├──┼══┼══┤\n"
                                         " 3│Ã │M │O │\n"
                                         "  ├──┼──┴──┘\n"
                                         "  │S │\n"
                                         "  ├──┤\n"
                                         "  │A │\n"
                                         "  └──┘\n"
                                         "\n"
                                         "Horizontais\n"
                                         " 2. Azul ou  [2J%1\n"
                                         " 3. Não sou\n"
                                         "\n"
                                         "Verticais\n"
                                         " 1. <b>&\" é 1\n"
                                         "\n");
    EXPECT_TRUE(texto.startsWith(grade)) << texto.toStdString();
    EXPECT_TRUE(texto.contains(
        u"banco João%1.tes (60 palavras) · semente 18446744073709551615 · jogo 3 com memória"));
    const QString vazia = QString::fromUtf8(TextoDaFolha(FolhaDeTeste(), kOrigem, false));
    EXPECT_TRUE(vazia.contains(u" 2│  │  │  │\n")) << vazia.toStdString();
}

TEST(Paper, APageShowsEverythingAsItStandsAndLoadsNothing)
{
    const Folha folha = FolhaDeTeste();
    const QByteArray pagina = HtmlInicio(kOrigem.titulo) + HtmlFolha(folha, kOrigem) +
                              HtmlSolucao(folha, kOrigem) + HtmlFim();
    QByteArray xml = pagina;
    xml.replace("<meta charset=\"utf-8\">", "");
    QXmlStreamReader leitor(xml);
    QStringList textos;
    int secoes = 0;
    while (!leitor.atEnd()) {
        leitor.readNext();
        secoes += leitor.isStartElement() && leitor.name() == u"section" ? 1 : 0;
        for (const char16_t *nome : {u"src", u"href", u"onload"}) {
            EXPECT_FALSE(leitor.attributes().hasAttribute(QString::fromUtf16(nome)));
        }
        EXPECT_FALSE(leitor.isStartElement() && leitor.name() == u"script");
        if (leitor.isCharacters() && !leitor.isWhitespace()) {
            textos << leitor.text().toString();
        }
    }
    EXPECT_FALSE(leitor.hasError()) << leitor.errorString().toStdString();
    EXPECT_EQ(secoes, 2);
    for (const char *texto : {"A & <B> %2", "Nome:", "Data:", "1/2", "<b>&\" é 1", "Azul ou  [2J%1",
                              "Solução: A & <B> %2", "Ã"}) {
        EXPECT_TRUE(textos.contains(QString::fromUtf8(texto))) << texto;
    }
    EXPECT_FALSE(pagina.contains("url("));
    // The sheet itself must not give the letters away.
    EXPECT_FALSE(HtmlFolha(folha, kOrigem).contains(">C</text>"));
    // The bar between the two words that touch: two cells long, one cell below the top.
    EXPECT_TRUE(pagina.contains("d=\"M20 20h20M40 20h20\"")) << pagina.toStdString();
}

TEST(Paper, AnIpuzReadsBackAsThePuzzle)
{
    const QByteArray linha = IpuzDaFolha(FolhaDeTeste(), kOrigem);
    EXPECT_EQ(linha.count('\n'), 1);
    const QJsonObject jogo = QJsonDocument::fromJson(linha).object();
    const auto parte = [&](const char *nome) {
        const QJsonValue valor = jogo[QString::fromUtf8(nome)];
        return QJsonDocument(QJsonArray{valor}).toJson(QJsonDocument::Compact).toStdString();
    };
    EXPECT_EQ(parte("version"), R"(["http://ipuz.org/v2"])");
    EXPECT_EQ(parte("kind"), R"([["http://ipuz.org/crossword#1"]])");
    EXPECT_EQ(parte("dimensions"), R"([{"height":4,"width":3}])");
    EXPECT_EQ(parte("title"), R"(["A & <B> %2"])");
    EXPECT_EQ(parte("solution"), R"([[["C","O","R"],["Ã","M","O"],["S","#","#"],["A","#","#"]]])");
    EXPECT_EQ(parte("puzzle"),
              R"([[["1/2",{"cell":0,"style":{"barred":"B"}},{"cell":0,"style":{"barred":"B"}}],)"
              R"([3,0,0],[0,"#","#"],[0,"#","#"]]])");
    EXPECT_EQ(
        parte("clues"),
        R"([{"Across":[[2,"Azul\tou \u001b[2J%1"],[3,"Não sou"]],"Down":[[1,"<b>&\" é 1"]]}])");
}
