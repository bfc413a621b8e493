#include "core/bank/used_words.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Tabuleiro Jogo(int numero, int itens = kItens)
{
    Tabuleiro tabuleiro;
    tabuleiro.QtdItens = itens;
    for (int n = 1; n <= kItens; ++n) {
        tabuleiro.ItemPalavra[n].Palavra = u"J%1I%2"_s.arg(numero).arg(n);
    }
    return tabuleiro;
}

} // namespace

TEST(Usadas, RememberTwentyGamesNewestFirstInTheFileAndWithoutOne)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("jf.dat");
    MemoriaUsadas memoria;
    LeUsadas(memoria, arquivo);
    EXPECT_EQ(memoria.QtdUsadas, 0);
    MemoriaUsadas semArquivo;
    for (int jogo = 1; jogo <= 22; ++jogo) {
        const int itens = jogo == 22 ? 3 : kItens; // all shift by 26, whatever the board holds
        GravaUsadas(memoria, arquivo, Jogo(jogo, itens));
        EmpurraUsadas(semArquivo, Jogo(jogo, itens));
        EXPECT_EQ(memoria.QtdUsadas, jogo == 22 ? 497 : qMin(jogo, 20) * kItens);
        EXPECT_EQ(memoria.PalavrasUsadas, semArquivo.PalavrasUsadas);
        EXPECT_EQ(memoria.QtdUsadas, semArquivo.QtdUsadas);
    }
    const std::pair<int, QString> palavras[] = {
        {0, {}}, {3, u"J22I3"_s}, {4, {}}, {27, u"J21I1"_s}, {520, u"J3I26"_s}};
    for (const auto &[k, palavra] : palavras) {
        EXPECT_EQ(memoria.PalavrasUsadas[k], palavra) << k;
    }
    // Words that the builder had forgotten come back.
    semArquivo.QtdUsadas -= kItens;
    EmpurraUsadas(semArquivo, Jogo(23));
    EXPECT_EQ(semArquivo.QtdUsadas, 497);
    const auto linhas = pasta.Conteudo(arquivo).split('\n');
    EXPECT_EQ(linhas.size(), 1 + kUsadas + 1);
    EXPECT_EQ(linhas[0] + linhas[1] + linhas[kUsadas], "[Indice]\rPalavra520=J3I26\rPalavra26=\r");
}

TEST(Usadas, KeepGapsAndAFileThatCannotBeWritten)
{
    const PastaDeTeste pasta;
    const auto arquivo =
        pasta.Arquivo("jf.dat", "[INDICE]\nPalavra2= B \npalavra520=Z\nPalavra1=\n");
    QFile(arquivo).setPermissions(QFileDevice::ReadOwner);
    MemoriaUsadas memoria;
    GravaUsadas(memoria, arquivo, Jogo(1));
    EXPECT_EQ(memoria.QtdUsadas, 2);
    EXPECT_EQ(memoria.PalavrasUsadas[2] + memoria.PalavrasUsadas[520], u"BZ");
}
