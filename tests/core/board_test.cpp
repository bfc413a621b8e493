#include "core/board/spoken_text.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Tabuleiro, CountsSolvedItemsAndFindsTheFirstOpenOne)
{
    Tabuleiro t;
    for (int n = 1; n <= kItens; ++n) {
        t.ItemPalavra[n].ItemResolvido = n != 3 && n != 26;
    }
    EXPECT_EQ(ContaResolvidos(t), 24);
    EXPECT_EQ(PrimeiroAberto(t), 3);
    EXPECT_EQ(PrimeiroAberto(t, 4), 26);
    t.ItemPalavra[26].ItemResolvido = true;
    EXPECT_EQ(PrimeiroAberto(t, 4), 0);
    for (const auto &[itens, primeiro, segundo] :
         {std::tuple{u""_s, 0, 0}, {u"3"_s, 3, 0}, {u"26,7"_s, 26, 7}}) {
        EXPECT_EQ(LeItens(itens).primeiro, primeiro);
        EXPECT_EQ(LeItens(itens).segundo, segundo);
    }
}

TEST(Fala, SaysInWordsWhatTheWindowShows)
{
    // Item 1 across the first row from cell 2 on, item 2 down through its third letter.
    Tabuleiro t;
    t.QtdItens = 2;
    t.ItemPalavra[1] = {u"PÃO"_s, u'H', 2, u"___ de queijo"_s};
    t.ItemPalavra[2] = {u"OVO"_s, u'V', 4, u"Vem da galinha"_s};
    t.Quadrado[4].Letra = u'O';
    constexpr auto kDigitada = LetraFalada::Digitada;
    const std::pair<QString, const char *> casos[] = {
        {FalaCelula(t, 3, 1, {}, kDigitada), "1 horizontal, letra 2 de 3: vazia"},
        {FalaCelula(t, 2, 1, u"P"_s, kDigitada), "1 horizontal, letra 1 de 3: P"},
        {FalaCelula(t, 56, 0, u"O"_s, LetraFalada::Confirmada),
         "2 vertical, letra 3 de 3: O, confirmada"},
        {FalaCelula(t, 30, 0, u"V"_s, LetraFalada::Revelada),
         "2 vertical, letra 2 de 3: V, revelada"},
        {FalaCelula(t, 4, 1, {}, kDigitada),
         "1 horizontal, letra 3 de 3; 2 vertical, letra 1 de 3: vazia"},
        {FalaCelula(t, 4, 2, {}, kDigitada),
         "2 vertical, letra 1 de 3; 1 horizontal, letra 3 de 3: vazia"},
        {FalaCelula(t, 5, 1, {}, kDigitada), ""},
        {FalaDicas(t, 2, 1), "lacuna de queijo"},
        {FalaDicas(t, 4, 2), "2 vertical: Vem da galinha; 1 horizontal: lacuna de queijo"},
        {FalaDicas(t, 5, 1), ""},
        {FalaItem(t, 2, 1, ItemFalado::Aberto),
         "2 vertical, 3 letras, não resolvida: Vem da galinha"},
        {FalaItem(t, 2, 2, ItemFalado::Aberto),
         "2 vertical, 3 letras, não resolvida, selecionada: Vem da galinha"},
        {FalaItem(t, 1, 1, ItemFalado::Resolvido),
         "1 horizontal, 3 letras, resolvida: lacuna de queijo"},
        {FalaItem(t, 2, 2, ItemFalado::Revelado), "2 vertical, 3 letras, revelada: Vem da galinha"},
        {FalaItem(t, 3, 0, ItemFalado::Aberto), "3"},
        {FalaTempo(u"00:00:00"_s), "0 segundos"},
        {FalaTempo(u"00:01:01"_s), "1 minuto e 1 segundo"},
        {FalaTempo(u"01:12:05"_s), "1 hora, 12 minutos e 5 segundos"},
        {FalaTempo(u"100:00:10"_s), "100 horas, 0 minutos e 10 segundos"},
        {FalaBalao(u"Um __"_s, false, false), "Um lacuna"},
        {FalaBalao(u"Um"_s, true, false), "Horizontal: Um"},
        {FalaBalao(u"Um"_s, false, true), "Vertical: Um"},
        {FalaBalao(u"Um\rDois"_s, true, false), "Horizontal: Um; vertical: Dois"},
        {FalaJulgamento(u"OVO"_s, true, 7), "Palavra certa: OVO. Resolvidas: 7 de 26."},
        {FalaJulgamento(u"OVO"_s, false, 7),
         "Palavra errada. As letras não confirmadas foram apagadas."},
        {FalaLetraDada(t, 4, 2),
         "Letra dada: O. 2 vertical, letra 1 de 3; 1 horizontal, letra 3 de 3."},
    };
    for (const auto &[fala, esperada] : casos) {
        EXPECT_EQ(fala.toStdString(), esperada);
    }
}
