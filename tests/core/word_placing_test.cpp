#include "core/builder/word_placing.h"

#include <gtest/gtest.h>

#include "core/builder/build_attempts.h"
#include "core/builder/rescue.h"
#include "support/sample_banks.h"
#include <QStringList>

namespace {

/// A board that notes every call of its display as text, with what the model holds just then.
struct Mesa final : ExibicaoMontagem
{
    void MostraCelula(int i) override
    {
        const CelulaQuadrado &celula = tabuleiro.Quadrado.at(size_t(i));
        linhas << QStringLiteral("cell %1 %2 %3").arg(i).arg(celula.Letra).arg(celula.Itens);
    }
    void MostraSombra(int i) override { linhas << QStringLiteral("shadow %1").arg(i); }
    void MostraNumero(int n) override
    {
        linhas << QStringLiteral("number %1 of %2").arg(n).arg(tabuleiro.QtdItens);
    }
    void MostraAndamento(double fracao) override
    {
        linhas << QStringLiteral("share %1").arg(fracao * kItens);
    }
    void DeixaEventos() override { linhas << QStringLiteral("events"); }

    void Poe(const char16_t *palavra, int ponto, char16_t sentido, bool resolvida = false)
    {
        Carrega_Palavra(
            tabuleiro, *this,
            {QString::fromUtf16(palavra), ponto, sentido, QStringLiteral("dica"), resolvida});
    }
    [[nodiscard]] std::string Celula(int i) const
    {
        const CelulaQuadrado &celula = tabuleiro.Quadrado.at(size_t(i));
        return (QString(celula.Letra) + celula.Sentido + celula.Itens).toStdString() +
               (celula.Fixa ? "*" : "") + (tabuleiro.Ocupada.at(size_t(i)) ? "" : " hidden");
    }

    Tabuleiro tabuleiro;
    QStringList linhas;
};

} // namespace

TEST(WordPlacing, ACellKeepsItsItemsInTheOrderOfPlacing)
{
    Mesa mesa;
    mesa.Poe(u"LONGE", 500, u'H');
    mesa.Poe(u"MAR", 30, u'V');
    mesa.Poe(u"SUL", 510, u'H');
    mesa.Poe(u"IR", 400, u'V');
    mesa.Poe(u"CASA", 55, u'H');
    EXPECT_EQ(mesa.Celula(56), "AM2,5");
    EXPECT_EQ(mesa.Celula(55), "CH5");
    EXPECT_EQ(mesa.Celula(82), "RV2");
    EXPECT_FALSE(mesa.tabuleiro.Ocupada[59]);
    const RegistroItem &item = mesa.tabuleiro.ItemPalavra[5];
    EXPECT_EQ(item.Palavra + item.Sentido + item.Dica, QStringLiteral("CASAHdica"));
    EXPECT_EQ(item.Ponto, 55);
    EXPECT_FALSE(item.ItemResolvido);
}

TEST(WordPlacing, OnlyASolvedWordFixesCellsAndNoneLoosensThem)
{
    Mesa mesa;
    mesa.Poe(u"MAR", 30, u'V', true);
    mesa.Poe(u"CASA", 55, u'H');
    EXPECT_EQ(mesa.Celula(56), "AM1,2*");
    EXPECT_EQ(mesa.Celula(57), "SH2");
    mesa.Poe(u"SOL", 57, u'V', true);
    EXPECT_EQ(mesa.Celula(57), "SM2,3*");
    EXPECT_FALSE(mesa.tabuleiro.ItemPalavra[1].ItemResolvido);
}

TEST(WordPlacing, ShowsEachCellThenTheNumberThenTheShare)
{
    Mesa mesa;
    mesa.Poe(u"IR", 30, u'V');
    EXPECT_EQ(mesa.linhas,
              QStringLiteral("cell 30 I 1|events|shadow 30|events|cell 56 R 1|events|shadow 56|"
                             "events|number 1 of 1|share 1")
                  .split(u'|'));
}

TEST(WordPlacing, RefusesTheTwentySeventhWordAndCountsAWordWithoutDirection)
{
    Mesa mesa;
    mesa.Poe(u"SEM", 200, u'M');
    EXPECT_EQ(mesa.tabuleiro.QtdItens, 1);
    EXPECT_FALSE(mesa.tabuleiro.Ocupada[200]);
    for (int n = 2; n <= 26; ++n) {
        mesa.Poe(u"UM", 1 + 2 * n, u'H');
    }
    EXPECT_EQ(mesa.tabuleiro.QtdItens, 26);
    EXPECT_EQ(mesa.linhas.last(), QStringLiteral("share 26"));
    mesa.linhas.clear();
    mesa.Poe(u"FORA", 300, u'H');
    EXPECT_EQ(mesa.tabuleiro.QtdItens, 26);
    EXPECT_FALSE(mesa.tabuleiro.Ocupada[300]);
    EXPECT_EQ(mesa.linhas, QStringList());
}

namespace {

/// Gives one value first, and 0 from then on.
class AcasoEscrito final : public Acaso
{
public:
    explicit AcasoEscrito(double primeiro) : m_primeiro(primeiro) {}
    double Uniforme() override { return sorteios++ == 0 ? m_primeiro : 0.0; }
    int sorteios = 0;

private:
    double m_primeiro;
};

constexpr double kSobe = 0.48;  // draws 49: the scan goes from cell 1 up
constexpr double kDesce = 0.49; // draws 50: from the last cell down

} // namespace

TEST(Rescue, CrossesTheFirstUsableCellWithStrictRoomOnBothSides)
{
    struct Caso
    {
        const char *nome;
        const char16_t *posta;
        int ponto;
        char16_t sentido;
        double rumo;
        const char *palavra;
        /// Item 2 as it should stand, "" where no word fits.
        const char16_t *segunda;
        int sorteios;
    };
    // Cell 271 lies in row 10, column 10. An across word there leaves 9 clear cells above and 11
    // below, a down word 9 to its left; in the next column 14 cells are clear to its right.
    for (const Caso &caso : {
             Caso{"from the first cell", u"AMA", 271, u'H', kSobe, "AR", u"AR 271V", 2},
             {"from the last cell", u"AMA", 271, u'H', kDesce, "AR", u"AR 273V", 2},
             {"across a down word", u"AMA", 271, u'V', kDesce, "AR", u"AR 323H", 2},
             {"a later cell", u"XAX", 271, u'H', kSobe, "AR", u"AR 272V", 12},
             {"8 above", u"AXX", 271, u'H', kSobe, "ZZZZZZZZA", u"ZZZZZZZZA 63V", 2},
             {"9 above", u"AXX", 271, u'H', kSobe, "ZZZZZZZZZA", u"", 31},
             {"10 below", u"AXX", 271, u'H', kSobe, "AZZZZZZZZZZ", u"AZZZZZZZZZZ 271V", 2},
             {"11 below", u"AXX", 271, u'H', kSobe, "AZZZZZZZZZZZ", u"", 31},
             {"only the first A", u"AXX", 271, u'H', kSobe, "AZZAZZZZZZZZ", u"", 31},
             {"8 to the left", u"AXX", 271, u'V', kSobe, "ZZZZZZZZA", u"ZZZZZZZZA 263H", 2},
             {"9 to the left", u"AXX", 271, u'V', kSobe, "ZZZZZZZZZA", u"", 31},
             {"13 to the right", u"AXX", 272, u'V', kSobe, "AZZZZZZZZZZZZZ", u"AZZZZZZZZZZZZZ 272H",
              2},
             {"14 to the right", u"AXX", 272, u'V', kSobe, "AZZZZZZZZZZZZZZ", u"", 31},
             {"the placed word itself", u"AMA", 271, u'H', kSobe, "AMA", u"", 31},
             {"row 1 takes no down word", u"AAA", 36, u'H', kSobe, "AR", u"", 1},
             {"column 1 takes no across word", u"AAA", 262, u'V', kSobe, "AR", u"", 1},
         }) {
        SCOPED_TRACE(caso.nome);
        Oficina oficina(RegistrosDe({caso.palavra}));
        Carrega_Palavra(oficina.tabuleiro, oficina.nada,
                        {QString::fromUtf16(caso.posta), caso.ponto, caso.sentido, {}});
        AcasoEscrito acaso(caso.rumo);
        Montagem montagem(oficina.Dados(acaso, BuscaUsadas::VarreduraSimples));
        const bool coube = encaixadoidao(montagem, 10);
        const RegistroItem &item = oficina.tabuleiro.ItemPalavra[2];
        EXPECT_EQ(coube ? item.Palavra + u' ' + QString::number(item.Ponto) + item.Sentido
                        : QString(),
                  QString::fromUtf16(caso.segunda));
        EXPECT_EQ(oficina.tabuleiro.QtdItens, coube ? 2 : 1);
        EXPECT_EQ(acaso.sorteios, caso.sorteios);

        // A full board draws nothing.
        oficina.tabuleiro.QtdItens = kItens;
        EXPECT_FALSE(encaixadoidao(montagem, 10));
        EXPECT_EQ(acaso.sorteios, caso.sorteios);
    }
}

TEST(BuildAttempts, ForgetsOldWordsAfterFiftyFailuresAndGivesUpFiftyAfterTheLast)
{
    struct Caso
    {
        int usadas;
        /// Failures until the attempt ends.
        int falhas;
    };
    for (const Caso &caso :
         {Caso{0, 50}, Caso{1, 101}, Caso{26, 101}, Caso{27, 102}, Caso{520, 120}}) {
        SCOPED_TRACE(caso.usadas);
        MemoriaUsadas memoria;
        memoria.PalavrasUsadas[1] = QStringLiteral("FICA");
        memoria.QtdUsadas = caso.usadas;
        TentativasMontagem tentativas;
        int falhas = 1;
        while (tentativas.Falhou(memoria) == TentativasMontagem::Decisao::TentarDeNovo) {
            const int esquecidas = 26 * std::max(0, falhas - 50);
            ASSERT_EQ(memoria.QtdUsadas, std::max(0, caso.usadas - esquecidas)) << falhas;
            ASSERT_LT(++falhas, 1000);
        }
        EXPECT_EQ(falhas, caso.falhas);
        EXPECT_EQ(tentativas.Falhas(), caso.falhas);
        EXPECT_EQ(memoria.QtdUsadas, 0);
        EXPECT_EQ(memoria.PalavrasUsadas[1], QStringLiteral("FICA"));
    }
}
