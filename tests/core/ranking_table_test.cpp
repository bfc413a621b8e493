#include "core/records/ranking_table.h"

#include <gtest/gtest.h>

#include "core/files/ini_file.h"
#include "tests/core/test_files.h"

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
    PastaDeTeste pasta;
    const auto cheio = Cheio(pasta);
    const auto vazio = pasta.Caminho("none.dat");
    const auto torto = pasta.Arquivo("torto.dat", "[Ranking1]\nTempo=x\n[Ranking2]\nTempo=12s9\n"
                                                  "[Ranking3]\nTempo=99999999999999999999\n");
    struct Caso
    {
        QString arquivo;
        int t, lugar;
    };
    for (const auto &[arquivo, t, lugar] :
         {Caso{cheio, 0, 1}, Caso{cheio, 100, 2}, Caso{cheio, 250, 3}, Caso{cheio, 499, 5},
          Caso{cheio, 500, 0}, Caso{vazio, 999998, 1}, Caso{vazio, 999999, 0}, Caso{torto, 11, 2},
          Caso{torto, 12, 3}}) {
        EXPECT_EQ(ProcuraLugar(arquivo, t), lugar) << arquivo.toStdString() << ' ' << t;
    }
}

TEST(Ranking, MovesTheLowerPlacesDown)
{
    PastaDeTeste pasta;
    const auto arquivo = Cheio(pasta);
    EXPECT_TRUE(GravaLugar(arquivo, 3, QStringLiteral("Zé"), 250));
    EXPECT_EQ(Tabela(arquivo), u"A 00:01:40;B 00:03:20;Zé 00:04:10;C 00:05:00;D 00:06:40;");
    EXPECT_TRUE(GravaLugar(arquivo, 5, QStringLiteral("Y"), 399));
    EXPECT_EQ(Tabela(arquivo), u"A 00:01:40;B 00:03:20;Zé 00:04:10;C 00:05:00;Y 00:06:39;");
}

TEST(Ranking, EntersBelowBetterTimesThatWereNotSeen)
{
    PastaDeTeste pasta;
    const auto arquivo = Cheio(pasta);
    EXPECT_TRUE(GravaLugar(arquivo, 1, QStringLiteral("Zé"), 450));
    EXPECT_FALSE(GravaLugar(arquivo, 1, QStringLiteral("Y"), 451));
    EXPECT_EQ(Tabela(arquivo), u"A 00:01:40;B 00:03:20;C 00:05:00;D 00:06:40;Zé 00:07:30;");
}

TEST(Ranking, PadsTheNewNameAndWritesEmptyPlaces)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("Ranking.dat");
    EXPECT_TRUE(GravaLugar(arquivo, 4, QStringLiteral("Maria"), 61));
    EXPECT_TRUE(GravaLugar(arquivo, 4, QStringLiteral("quinze letras ."), 60));
    EXPECT_EQ(pasta.Conteudo(arquivo), "[Ranking5]\r\nNome=Maria\r\nTempo=61\r\n"
                                       "[Ranking4]\r\nNome=quinze letras \r\nTempo=60\r\n");
    EXPECT_TRUE(GravaLugar(arquivo, 1, QStringLiteral("Ana"), 59));
    EXPECT_TRUE(
        pasta.Conteudo(arquivo).endsWith("[Ranking3]\r\nNome=\r\nTempo=\r\n"
                                         "[Ranking2]\r\nNome=\r\nTempo=\r\n"
                                         "[Ranking1]\r\nNome=Ana           \r\nTempo=59\r\n"));
    EXPECT_EQ(Tabela(arquivo), u"Ana 00:00:59;. .;. .;. .;quinze letras 00:01:00;");
}

TEST(Ranking, ShowsTimesOfAnyLengthAndADotForNone)
{
    PastaDeTeste pasta;
    EXPECT_EQ(Tabela(pasta.Arquivo("r.dat", "[Ranking1]\nNome=A\nTempo=2147483647\n"
                                            "[Ranking2]\nNome=B\nTempo=2147483648\n"
                                            "[Ranking3]\nNome=C\n[Ranking4]\nNome=D\nTempo=-1\n"
                                            "[Ranking5]\nTempo=5\n")),
              u"A 596523:14:07;B .;C .;D .;. .;");
}
