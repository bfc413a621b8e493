#include "core/bank/used_words.h"

#include <gtest/gtest.h>

#include "core/files/ini_file.h"
#include "tests/core/test_files.h"

namespace {

Tabuleiro Jogo(int numero, int itens = kItens)
{
    Tabuleiro tabuleiro;
    tabuleiro.QtdItens = itens;
    for (int n = 1; n <= kItens; ++n) {
        tabuleiro.ItemPalavra[static_cast<size_t>(n)].Palavra =
            QStringLiteral("J%1I%2").arg(numero).arg(n);
    }
    return tabuleiro;
}

void EsperaIguais(const MemoriaUsadas &uma, const MemoriaUsadas &outra)
{
    EXPECT_EQ(uma.PalavrasUsadas, outra.PalavrasUsadas);
    EXPECT_EQ(uma.QtdUsadas, outra.QtdUsadas);
}

} // namespace

TEST(Usadas, RememberTwentyGamesNewestFirst)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("jf.dat");
    MemoriaUsadas memoria;
    LeUsadas(memoria, arquivo);
    EXPECT_EQ(memoria.QtdUsadas, 0);

    MemoriaUsadas semArquivo;
    for (int jogo = 1; jogo <= 21; ++jogo) {
        GravaUsadas(memoria, arquivo, Jogo(jogo));
        EmpurraUsadas(semArquivo, Jogo(jogo));
        EXPECT_EQ(memoria.QtdUsadas, qMin(jogo, 20) * kItens);
        EsperaIguais(memoria, semArquivo);
    }
    EXPECT_EQ(memoria.PalavrasUsadas[0], QString());
    EXPECT_EQ(memoria.PalavrasUsadas[1], u"J21I1");
    EXPECT_EQ(memoria.PalavrasUsadas[27], u"J20I1");
    EXPECT_EQ(memoria.PalavrasUsadas[520], u"J2I26");
}

TEST(Usadas, WriteAllKeysAtTheFirstPush)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("jf.dat");
    MemoriaUsadas memoria;
    GravaUsadas(memoria, arquivo, Jogo(1));
    const auto linhas = pasta.Conteudo(arquivo).split('\n');
    EXPECT_EQ(linhas.size(), 1 + kUsadas + 1);
    EXPECT_EQ(linhas[0], "[Indice]\r");
    EXPECT_EQ(linhas[1], "Palavra520=\r");
    EXPECT_EQ(linhas[kUsadas], "Palavra26=J1I26\r");
}

TEST(Usadas, ShiftByTwentySixWhateverTheBoardHolds)
{
    PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("jf.dat");
    MemoriaUsadas memoria;
    GravaUsadas(memoria, arquivo, Jogo(1));
    auto semArquivo = memoria;
    GravaUsadas(memoria, arquivo, Jogo(2, 3));
    EmpurraUsadas(semArquivo, Jogo(2, 3));
    EsperaIguais(memoria, semArquivo);
    EXPECT_EQ(memoria.QtdUsadas, 3 + kItens);
    EXPECT_EQ(memoria.PalavrasUsadas[3], u"J2I3");
    EXPECT_EQ(memoria.PalavrasUsadas[4], QString());
    EXPECT_EQ(memoria.PalavrasUsadas[27], u"J1I1");
}

TEST(Usadas, BringBackWordsThatTheBuilderHadForgotten)
{
    MemoriaUsadas memoria;
    EmpurraUsadas(memoria, Jogo(1));
    EmpurraUsadas(memoria, Jogo(2));
    memoria.QtdUsadas -= kItens;
    EmpurraUsadas(memoria, Jogo(3));
    EXPECT_EQ(memoria.QtdUsadas, 3 * kItens);
    EXPECT_EQ(memoria.PalavrasUsadas[53], u"J1I1");
}

TEST(Usadas, KeepGapsAndAFileThatCannotBeWritten)
{
    PastaDeTeste pasta;
    const auto arquivo =
        pasta.Arquivo("jf.dat", "[INDICE]\nPalavra2= B \npalavra520=Z\nPalavra1=\n");
    QFile(arquivo).setPermissions(QFileDevice::ReadOwner);
    MemoriaUsadas memoria;
    GravaUsadas(memoria, arquivo, Jogo(1));
    EXPECT_EQ(memoria.QtdUsadas, 2);
    EXPECT_EQ(memoria.PalavrasUsadas[1], QString());
    EXPECT_EQ(memoria.PalavrasUsadas[2], u"B");
    EXPECT_EQ(memoria.PalavrasUsadas[520], u"Z");
}
