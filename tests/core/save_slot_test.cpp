#include "core/records/save_slot.h"

#include <gtest/gtest.h>

#include "core/files/ini_file.h"
#include "tests/core/test_board.h"
#include "tests/core/test_files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file with a good game in slot 4, of which `linha` ("key=value") was replaced.
QString ArquivoBom(const PastaDeTeste &pasta, const QString &linha = {})
{
    const auto arquivo = pasta.Caminho("save.ini");
    EXPECT_TRUE(SalvaSlot(arquivo, 4, u"bom"_s, TabuleiroDeTeste(), 300.25, u"."_s));
    if (!linha.isEmpty()) {
        WritePrivateProfileStringA(u"jogo4"_s, linha.section(u'=', 0, 0), linha.section(u'=', 1),
                                   arquivo);
    }
    return arquivo;
}

} // namespace

TEST(Slot, IsWrittenInItsOrderLeavesTheOthersAndComesBack)
{
    const PastaDeTeste pasta;
    const auto arquivo = ArquivoBom(pasta);
    const auto quatro = pasta.Conteudo(arquivo);
    EXPECT_TRUE(quatro.startsWith("[jogo4]\r\nNome=bom\r\nPalavra1=\xC1\xC7\xC3O"
                                  "DE\r\nDica1=Dica 1 do jogo 1\r\nPonto1=1\r\nSentido1=H\r\n"
                                  "ItemResolvido1=False\r\nPalavra2="));
    EXPECT_TRUE(quatro.endsWith("Sentido26=V\r\nItemResolvido26=False\r\nTempo=300.25\r\n"));
    const auto lido = LeSlot(arquivo, 4);
    ASSERT_TRUE(std::holds_alternative<JogoSalvo>(lido));
    const auto &jogo = std::get<JogoSalvo>(lido);
    EXPECT_EQ(jogo.tempo, 300.25);
    for (size_t n = 1; n <= kItens; ++n) {
        const auto salvo = TabuleiroDeTeste().ItemPalavra[n];
        const auto &item = jogo.itens[n];
        EXPECT_EQ(item.Palavra + item.Dica + item.Sentido,
                  salvo.Palavra + salvo.Dica + salvo.Sentido);
        EXPECT_EQ(item.Ponto, salvo.Ponto);
        EXPECT_EQ(item.ItemResolvido, salvo.ItemResolvido);
    }
    EXPECT_TRUE(std::holds_alternative<FalhaDoSlot>(LeSlot(arquivo, 5)));
    for (const QString &nome : {u"   "_s, u"Zé"_s}) {
        EXPECT_TRUE(SalvaSlot(arquivo, 10, nome, TabuleiroDeTeste(2), 0.5, u","_s));
    }
    const auto dez = pasta.Conteudo(arquivo);
    EXPECT_TRUE(dez.startsWith(quatro + "[jogo10]\r\nNome=Z\xE9\r\n"));
    EXPECT_TRUE(dez.endsWith("\r\nTempo=0,5\r\n"));
    EXPECT_EQ(dez.count('\n'), 2 * quatro.count('\n')) << "each key once";
    EXPECT_EQ(std::get<JogoSalvo>(LeSlot(arquivo, 10)).tempo, 0.5);
    const auto nomes = NomesDosSlots(arquivo);
    EXPECT_TRUE(nomes.lidos);
    EXPECT_EQ(nomes.nome[4] + nomes.nome[5] + nomes.nome[10], u"bomZé");
}

TEST(Slot, IsRefusedForEachKindOfDamageAndNotForOtherForms)
{
    const std::pair<FalhaDoSlot, QStringList> casos[] = {
        {FalhaDoSlot::Palavra,
         {u"Palavra26="_s, u"Palavra1=ÁÇ\x01O"_s, u"Palavra1=ÁÇÃODEFGHIJKLMNO"_s}},
        // Seven letters from the 21st column, nine letters from the 15th row.
        {FalhaDoSlot::Lugar,
         {u"Ponto20=515"_s, u"Ponto26=370"_s, u"Ponto3="_s, u"Ponto3=0"_s, u"Ponto3=573"_s,
          u"Ponto3=65589"_s, u"Ponto3=53x"_s, u"Sentido3="_s, u"Sentido3=M"_s, u"Sentido3=HV"_s}},
        {FalhaDoSlot::Cruzamento, {u"Palavra22=ÇÇÇÇC"_s, u"Ponto21=54"_s}},
        {FalhaDoSlot::Sobreposicao, {u"Ponto2=1"_s}},
        {FalhaDoSlot::Resolvido, {u"ItemResolvido9="_s, u"ItemResolvido9=2"_s}},
        {FalhaDoSlot::Tempo,
         {u"Tempo="_s, u"Tempo=-1"_s, u"Tempo=nan"_s, u"Tempo=inf"_s, u"Tempo=1e300"_s,
          u"Tempo=1.000,5"_s}},
    };
    const PastaDeTeste pasta;
    for (const auto &[falha, linhas] : casos) {
        for (const QString &linha : linhas) {
            const auto lido = LeSlot(ArquivoBom(pasta, linha), 4);
            const auto *motivo = std::get_if<FalhaDoSlot>(&lido);
            EXPECT_TRUE(motivo && *motivo == falha) << qPrintable(linha);
        }
    }
    // Fifteen letters; seven letters up to cell 572; nine letters down to the last row.
    for (const QString &linha :
         {u"Palavra1=ÁÇÃODEFGHIJKLMN"_s, u"Ponto20=566"_s, u"Ponto26=354"_s, u"Dica1="_s,
          u"Tempo=0"_s, u"ItemResolvido1=TRUE"_s, u"ItemResolvido1=-1"_s, u"ItemResolvido3=0"_s}) {
        const auto lido = LeSlot(ArquivoBom(pasta, linha), 4);
        const auto *jogo = std::get_if<JogoSalvo>(&lido);
        ASSERT_NE(jogo, nullptr) << qPrintable(linha);
        EXPECT_EQ(jogo->itens[1].ItemResolvido, linha.startsWith(u"ItemResolvido1"));
        EXPECT_EQ(jogo->itens[3].ItemResolvido, linha != u"ItemResolvido3=0");
    }
}
