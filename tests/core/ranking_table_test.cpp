#include "core/records/ranking_table.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file with times 100, 200, 300, 400, 500 and names A to E.
QString Cheio(const PastaDeTeste &pasta)
{
    const auto arquivo = pasta.Caminho("Ranking.dat");
    for (int p = 1; p <= kLugares; ++p) {
        GravaLugar(arquivo, p, QString(QChar(u'@' + p)), 100 * p);
    }
    return arquivo;
}

QString Tabela(const QString &arquivo)
{
    QString tabela;
    for (const auto &linha : LeRanking(arquivo)) {
        tabela += linha.Nome + u' ' + linha.Tempo + u';';
    }
    return tabela.sliced(2);
}

} // namespace

TEST(Ranking, FindsThePlaceAboveTheFirstLongerTime)
{
    const PastaDeTeste pasta;
    const auto cheio = Cheio(pasta);
    const auto vazio = pasta.Caminho("none.dat");
    const auto torto = pasta.Arquivo("torto.dat", "[Ranking1]\nTempo=x\n[Ranking2]\nTempo=12s9\n"
                                                  "[Ranking3]\nTempo=99999999999999999999\n");
    for (const auto &[arquivo, t, lugar] : {std::tuple{cheio, 0, 1},
                                            {cheio, 100, 2},
                                            {cheio, 250, 3},
                                            {cheio, 499, 5},
                                            {cheio, 500, 0},
                                            {vazio, 999998, 1},
                                            {vazio, 999999, 0},
                                            {torto, 11, 2},
                                            {torto, 12, 3}}) {
        EXPECT_EQ(ProcuraLugar(arquivo, t), lugar) << qPrintable(arquivo) << ' ' << t;
    }
}

TEST(Ranking, MovesTheLowerPlacesDownBelowBetterTimesThatWereNotSeen)
{
    const PastaDeTeste pasta;
    const auto arquivo = Cheio(pasta);
    EXPECT_TRUE(GravaLugar(arquivo, 3, u"Zé"_s, 250));
    EXPECT_TRUE(GravaLugar(arquivo, 5, u"Y"_s, 399));
    EXPECT_EQ(Tabela(arquivo), u"A 00:01:40;B 00:03:20;Zé 00:04:10;C 00:05:00;Y 00:06:39;");
    EXPECT_TRUE(GravaLugar(arquivo, 1, u"X"_s, 398));
    EXPECT_FALSE(GravaLugar(arquivo, 1, u"W"_s, 398));
    EXPECT_EQ(Tabela(arquivo), u"A 00:01:40;B 00:03:20;Zé 00:04:10;C 00:05:00;X 00:06:38;");
}

TEST(Ranking, PadsTheNewNameAndWritesEmptyPlaces)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("Ranking.dat");
    EXPECT_TRUE(GravaLugar(arquivo, 4, u"Maria"_s, 61));
    EXPECT_TRUE(GravaLugar(arquivo, 4, u"quinze letras ."_s, 60));
    EXPECT_TRUE(GravaLugar(arquivo, 1, u"Ana"_s, 59));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[Ranking5]\r\nNome=quinze letras\r\nTempo=60\r\n"
                                       "[Ranking4]\r\nNome=\r\nTempo=\r\n"
                                       "[Ranking3]\r\nNome=\r\nTempo=\r\n"
                                       "[Ranking2]\r\nNome=\r\nTempo=\r\n"
                                       "[Ranking1]\r\nNome=Ana           \r\nTempo=59\r\n");
    EXPECT_EQ(Tabela(arquivo), u"Ana 00:00:59;. .;. .;. .;quinze letras 00:01:00;");
    // Times of any length, and a dot for none.
    EXPECT_EQ(Tabela(pasta.Arquivo("r.dat", "[Ranking1]\nNome=A\nTempo=2147483647\n"
                                            "[Ranking2]\nNome=B\nTempo=2147483648\n"
                                            "[Ranking3]\nNome=C\n[Ranking4]\nNome=D\nTempo=-1\n"
                                            "[Ranking5]\nTempo=5\n")),
              u"A 596523:14:07;B .;C .;D .;. .;");
}
