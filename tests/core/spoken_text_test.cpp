#include "core/board/spoken_text.h"
#include "tests/core/test_board.h"

#include <gtest/gtest.h>

namespace {

/// Item 1 across the first row from cell 2 on, item 2 down through its third letter.
Tabuleiro Cruz()
{
    Tabuleiro tabuleiro;
    tabuleiro.QtdItens = 2;
    tabuleiro.ItemPalavra[1] = {QStringLiteral("PÃO"), u'H', 2, QStringLiteral("___ de queijo")};
    tabuleiro.ItemPalavra[2] = {QStringLiteral("OVO"), u'V', 4, QStringLiteral("Vem da galinha")};
    tabuleiro.Quadrado[4].Letra = u'O';
    return tabuleiro;
}

std::string Texto(const QString &texto)
{
    return texto.toStdString();
}

} // namespace

TEST(Fala, NamesACellByPlaceAndLetter)
{
    struct Caso
    {
        const char *nome;
        int celula;
        int selecionado;
        QString texto;
        LetraFalada letra;
        const char *fala;
    };
    const Caso casos[] = {
        {"empty", 3, 1, {}, LetraFalada::Digitada, "1 horizontal, letra 2 de 3: vazia"},
        {"typed", 2, 1, QStringLiteral("P"), LetraFalada::Digitada,
         "1 horizontal, letra 1 de 3: P"},
        {"solved", 56, 0, QStringLiteral("O"), LetraFalada::Confirmada,
         "2 vertical, letra 3 de 3: O, confirmada"},
        {"given up", 30, 0, QStringLiteral("V"), LetraFalada::Revelada,
         "2 vertical, letra 2 de 3: V, revelada"},
        {"crossing, in the order of placing",
         4,
         1,
         {},
         LetraFalada::Digitada,
         "1 horizontal, letra 3 de 3; 2 vertical, letra 1 de 3: vazia"},
        {"crossing, the selected item first",
         4,
         2,
         {},
         LetraFalada::Digitada,
         "2 vertical, letra 1 de 3; 1 horizontal, letra 3 de 3: vazia"},
        {"an empty cell is not confirmed",
         3,
         1,
         {},
         LetraFalada::Confirmada,
         "1 horizontal, letra 2 de 3: vazia"},
        {"no word", 5, 1, {}, LetraFalada::Digitada, ""},
    };
    for (const Caso &caso : casos) {
        EXPECT_EQ(Texto(FalaCelula(Cruz(), caso.celula, caso.selecionado, caso.texto, caso.letra)),
                  caso.fala)
            << caso.nome;
    }
}

TEST(Fala, GivesTheCluesOfACell)
{
    EXPECT_EQ(Texto(FalaDicas(Cruz(), 2, 1)), "lacuna de queijo");
    EXPECT_EQ(Texto(FalaDicas(Cruz(), 4, 2)),
              "2 vertical: Vem da galinha; 1 horizontal: lacuna de queijo");
    EXPECT_EQ(Texto(FalaDicas(Cruz(), 5, 1)), "");
}

TEST(Fala, NamesAnItemByAllThatItsButtonStandsFor)
{
    Tabuleiro tabuleiro = Cruz();
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 2, 1, ItemFalado::Aberto)),
              "2 vertical, 3 letras, não resolvida: Vem da galinha");
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 2, 2, ItemFalado::Aberto)),
              "2 vertical, 3 letras, não resolvida, selecionada: Vem da galinha");
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 2, 2, ItemFalado::Resolvido)),
              "2 vertical, 3 letras, resolvida: Vem da galinha");
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 2, 2, ItemFalado::Revelado)),
              "2 vertical, 3 letras, revelada: Vem da galinha");
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 3, 0, ItemFalado::Aberto)), "3") << "not on the board";
    tabuleiro.ItemPalavra[2].Palavra = QStringLiteral("A");
    EXPECT_EQ(Texto(FalaItem(tabuleiro, 2, 0, ItemFalado::Aberto)),
              "2 vertical, 1 letra, não resolvida: Vem da galinha");
}

TEST(Fala, FindsEveryCellOfAWholeBoard)
{
    const Tabuleiro tabuleiro = TabuleiroDeTeste();
    for (int n = 1; n <= kItens; ++n) {
        const RegistroItem &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        for (int k = 0; k < item.Palavra.size(); ++k) {
            const QString fala =
                FalaCelula(tabuleiro, CelulaDaLetra(item, k), n, {}, LetraFalada::Digitada);
            EXPECT_TRUE(fala.startsWith(QStringLiteral("%1 %2, letra %3 de %4")
                                            .arg(n)
                                            .arg(n <= 20 ? u"horizontal" : u"vertical")
                                            .arg(k + 1)
                                            .arg(item.Palavra.size())))
                << Texto(fala);
        }
    }
}

TEST(Fala, SaysTimesInWords)
{
    const std::pair<QString, const char *> casos[] = {
        {QStringLiteral("00:00:00"), "0 segundos"},
        {QStringLiteral("00:00:01"), "1 segundo"},
        {QStringLiteral("00:12:05"), "12 minutos e 5 segundos"},
        {QStringLiteral("01:01:01"), "1 hora, 1 minuto e 1 segundo"},
        {QStringLiteral("02:00:00"), "2 horas, 0 minutos e 0 segundos"},
        {QStringLiteral("100:00:10"), "100 horas, 0 minutos e 10 segundos"},
    };
    for (const auto &[relogio, fala] : casos) {
        EXPECT_EQ(Texto(FalaTempo(relogio)), fala);
    }
}

TEST(Fala, SaysOfABubbleWhatItsArrowsShow)
{
    EXPECT_EQ(Texto(FalaBalao(QStringLiteral("Um __"), false, false)), "Um lacuna");
    EXPECT_EQ(Texto(FalaBalao(QStringLiteral("Um"), true, false)), "Horizontal: Um");
    EXPECT_EQ(Texto(FalaBalao(QStringLiteral("Um"), false, true)), "Vertical: Um");
    EXPECT_EQ(Texto(FalaBalao(QStringLiteral("Um\rDois"), true, false)),
              "Horizontal: Um; vertical: Dois");
}
