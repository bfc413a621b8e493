#include <gtest/gtest.h>

#include "core/builder/build_attempts.h"
#include "core/builder/fill_driver.h"
#include "support/sample_banks.h"

using namespace Qt::Literals::StringLiterals;

// What the comparison with the second builder cannot see: the promise that a seed gives its puzzle
// for ever, what the display is told, the limits.

namespace {

/// A board that notes every call of its display as text, with what the model holds just then.
struct Mesa final : ExibicaoMontagem
{
    void MostraCelula(int i) override
    {
        const CelulaQuadrado &c = tabuleiro.Quadrado[i];
        linhas << u"%1%2%3%4"_s.arg(i).arg(c.Letra).arg(c.Itens, c.Fixa ? u"*"_s : QString());
    }
    void MostraSombra(int i) override { linhas << u"shadow %1"_s.arg(i); }
    void MostraNumero(int n) override { linhas << u"%1 of %2"_s.arg(n).arg(tabuleiro.QtdItens); }
    void MostraAndamento(double fracao) override { linhas << u"share %1"_s.arg(fracao * kItens); }
    void DeixaEventos() override { linhas << u"events"_s; }

    std::string Poe(const QString &palavra, int ponto, char16_t sentido, bool resolvida = false)
    {
        linhas.clear();
        Carrega_Palavra(tabuleiro, *this, {palavra, ponto, sentido, u"dica"_s, resolvida});
        return linhas.join(u'|').toStdString();
    }

    Tabuleiro tabuleiro;
    QStringList linhas;
};

} // namespace

TEST(WordPlacing, ShowsEachCellThenTheNumberThenTheShareAndRefusesTheTwentySeventhWord)
{
    Mesa mesa;
    EXPECT_EQ(mesa.Poe(u"IR"_s, 30, u'V'), "30I1|events|shadow 30|events|56R1|events|shadow 56|"
                                           "events|1 of 1|share 1");
    // A solved word fixes cells, and none loosens them.
    EXPECT_TRUE(mesa.Poe(u"RIM"_s, 56, u'H', true).starts_with("56R1,2*|"));
    EXPECT_NE(mesa.Poe(u"MAL"_s, 58, u'V').find("58M2,3*|"), std::string::npos);
    EXPECT_FALSE(mesa.tabuleiro.ItemPalavra[2].ItemResolvido);
    EXPECT_EQ(mesa.Poe(u"SEM DIREÇÃO"_s, 200, u'M'), "4 of 4|share 4");
    EXPECT_FALSE(mesa.tabuleiro.Ocupada[200]);
    for (int n = 5; n <= 26; ++n) {
        EXPECT_TRUE(mesa.Poe(u"UM"_s, 400 + 3 * n, u'H')
                        .ends_with(" of " + std::to_string(n) + "|share " + std::to_string(n)));
    }
    EXPECT_EQ(mesa.Poe(u"FORA"_s, 300, u'H'), "");
    EXPECT_EQ(mesa.tabuleiro.QtdItens, 26);
}

TEST(BuildAttempts, ForgetsOldWordsAfterFiftyFailuresAndGivesUpFiftyAfterTheLast)
{
    // Words in the memory, and failures until the attempt ends.
    for (const auto &[usadas, fim] :
         {std::pair{0, 50}, {1, 101}, {26, 101}, {27, 102}, {520, 120}}) {
        SCOPED_TRACE(usadas);
        MemoriaUsadas memoria;
        memoria.QtdUsadas = usadas;
        TentativasMontagem tentativas;
        int falhas = 1;
        while (tentativas.Falhou(memoria) == TentativasMontagem::Decisao::TentarDeNovo) {
            const int esquecidas = 26 * std::max(0, falhas - 50);
            ASSERT_EQ(memoria.QtdUsadas, std::max(0, usadas - esquecidas)) << falhas;
            ASSERT_LT(++falhas, 1000);
        }
        EXPECT_EQ(falhas, fim);
        EXPECT_EQ(tentativas.Falhas(), fim);
    }
}

TEST(WordIndex, ABankServesWithOneWordOfFiveLetters)
{
    for (const char *palavra : {"", "CASA", "  BOI", "\xC1RVO", "\xC1RVOR"}) {
        BancoPerguntas banco;
        CarregaRegistros(banco, RegistrosDe({"CAJU", palavra}));
        EXPECT_EQ(IndiceBanco(banco).Serve(), strlen(palavra) == 5 && palavra[0] != ' ');
    }
}

TEST(FillDriver, MakesTheSamePuzzlesOfTheSameSeedsForEver)
{
    // What these seeds give is a promise: saved seeds and reports of faults build on it.
    // Failed builds, then each item with its direction, first cell and word, then all draws.
    const std::pair<std::uint64_t, const char *> jogos[] = {
        {8, "0 H166GICERA V145LAAMETOT H326ATOER V226TATERUR V89CACIVINETO H374CANIMONIR "
            "V379OTOPID H507TODAMEMA H85SOMIC V433LAUME V85SASEDIEPE V436LERA H159APOPED "
            "V455JOTI V133RACER V57ARELO V117OLENORE H213APIT V213ADIFA H225OTACID H461MEDAT "
            "H55OZA V151BUCI V361VELITE H384MUME H176RUNO 697"},
        {18, "1 V11LODORA H8EPUL H140PABARETOMONI H61CEDADOL V73BUCI V117PAGOSITA H298TALA "
             "V275PANI V121MOSAL H343EDEROMOTEGI V350TEMO H97EDUMUMA H428OALO V431OISA "
             "H508SANI V348MELOZ V103ATOER H190DUSATOSO V138NEDOBES V101UJETIIMI V149ONODATAM "
             "H134MALON V109NAPEREGA H422ARELO V398DERODI H527SIPA 1002"}};
    Oficina oficina(RegistrosDe(PalavrasDeSilabas(200, 1)));
    for (const auto &[semente, esperado] : jogos) {
        AcasoMersenne acaso(semente);
        QStringList itens{QString::number(oficina.Monta(acaso))};
        for (int n = 1; n <= kItens; ++n) {
            const RegistroItem &item = oficina.tabuleiro.ItemPalavra[n];
            itens << item.Sentido + QString::number(item.Ponto) + item.Palavra;
        }
        itens << QString::number(acaso.Sorteios());
        EXPECT_EQ(itens.join(u' ').toStdString(), esperado);
    }
}
