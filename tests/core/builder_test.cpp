#include <gtest/gtest.h>

#include "core/builder/build_attempts.h"
#include "core/builder/fill_driver.h"
#include "core/files/codepage.h"
#include "support/sample_banks.h"

// What the comparison with the second builder cannot see: the promise that a seed gives its puzzle
// for ever, what the display is told, the limits.

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

TEST(WordIndex, ABankServesWithOneWordOfFiveLetters)
{
    BancoPerguntas banco;
    CarregaRegistros(banco, {});
    EXPECT_FALSE(IndiceBanco(banco).Serve());
    CarregaRegistros(banco, RegistrosDe({"", "CASA", "  BOI"}));
    EXPECT_FALSE(IndiceBanco(banco).Serve());
    CarregaRegistros(banco, RegistrosDe({"CASA", "\xC1RVOR"}));
    EXPECT_TRUE(IndiceBanco(banco).Serve());
}

TEST(FillDriver, MakesTheSamePuzzlesOfTheSameSeedsForEver)
{
    // What these seeds give is a promise: saved seeds and reports of faults build on it.
    const QByteArray palavras(
        "ABACAXI ABELHA AÇAÍ AÇÚCAR AGULHA ALFACE ALMOÇO AMIGO AMORA ANEL ANTA ARARA AREIA "
        "ARROZ ÁRVORE ASA AVIÃO AZEITE BALÃO BANANA BARCO BICICLETA BODE BOLO BOTÃO BULE CABRA "
        "CADEIRA CAFÉ CAJU CAMELO CANELA CANOA CARRO CASA CAVALO CEBOLA CHÁ CHAPÉU CIDADE "
        "COELHO COLHER CORAÇÃO COZINHA DADO DANÇA DEDO DENTE DOMINGO ELEFANTE ERVA ESCADA "
        "ESPELHO ESTRELA FACA FEIJÃO FESTA FIGO FLAUTA FLOR FOGO FORMIGA GALINHA GARFO GATO "
        "GOIABA GRILO HORTA IGREJA ILHA IOIÔ JACARÉ JANELA JARDIM JOGO JORNAL LAGARTO LARANJA "
        "LEÃO LIMÃO LIVRO LUA MAÇÃ MACACO MALA MANGA MAR MARTELO MEL MESA MILHO MÚSICA NAVIO "
        "NEVE NINHO NOITE NOME ONÇA ONDA OURO OVELHA PADARIA PALHAÇO PANELA PÃO PEIXE PERA "
        "PIANO PIPOCA PORTA PRATO QUEIJO RÁDIO RAINHA REDE RELÓGIO RIO RODA ROSA SABÃO SAL "
        "SAPATO SEMENTE SERRA SINO SOL SOPA TAMBOR TATU TELHADO TERRA TESOURA TIGRE TOMATE "
        "TREM URSO UVA VACA VARANDA VELA VENTO VIOLÃO XÍCARA ZEBRA");
    // Failed builds, then each item with its direction, first cell and word, then all draws.
    const std::vector<std::pair<std::uint64_t, std::string>> jogos{
        {2, "0 H151TERRA V129BANANA V152ESCADA H225PIPOCA H278FESTA V280SEMENTE H435MESA "
            "V70ABACAXI V412CAMELO H69CARRO H541FOGO H171ONDA H357DENTE H120LUA V466FIGO "
            "H486NOITE V171OURO H221MAR V169DOMINGO H322SINO V296ESTRELA H374RÁDIO H451GATO "
            "V428RODA H505VACA V456UVA 1264"},
        {16, "2 V69HORTA H68CHAPÉU H91NINHO H119LARANJA H173ABACAXI V178XÍCARA H226PIPOCA "
             "H251OVELHA H307BARCO V181QUEIJO V65ONDA H140ERVA V88ABELHA H218ARROZ V194AREIA "
             "H297GARFO V275SOL H84ZEBRA V59DENTE H133SAPATO V134AZEITE H263VELA V240CANOA "
             "H341PERA V316FESTA H419TATU 1905"},
    };
    QList<QByteArray> doBanco;
    for (const QString &palavra : QString::fromUtf8(palavras).split(u' ')) {
        doBanco << ParaCodePage(palavra);
    }
    Oficina oficina(RegistrosDe({doBanco.begin(), doBanco.end()}));
    for (const auto &[semente, esperado] : jogos) {
        AcasoMersenne acaso(semente);
        QStringList itens{QString::number(oficina.Monta(acaso))};
        for (size_t n = 1; n <= size_t{kItens}; ++n) {
            const RegistroItem &item = oficina.tabuleiro.ItemPalavra[n];
            itens << item.Sentido + QString::number(item.Ponto) + item.Palavra;
        }
        itens << QString::number(acaso.Sorteios());
        EXPECT_EQ(itens.join(u' ').toStdString(), esperado) << semente;
    }
}
