#pragma once

#include "core/board/numbered_table.h"
#include <QChar>
#include <QString>

/// The board model: a fixed grid of cells, the words that lie on it, and nothing that draws.
///
/// Cells are numbered from 1, row by row; words ("items") from 1 in the order of placing. Entry 0
/// of each table exists but is no part of the game.

inline constexpr int kColunas = 26;
inline constexpr int kLinhas = 22;
inline constexpr int kCelulas = kColunas * kLinhas;
inline constexpr int kItens = 26;

/// One cell of the grid.
struct CelulaQuadrado
{
    /// Numbers of the items through the cell in the order of placing: "", "3" or "3,7".
    QString Itens;
    /// 'H' or 'V' where one word passes, 'M' where a further word lies across it.
    QChar Sentido;
    /// The letter is confirmed: solved, given as help, or shown by giving up.
    bool Fixa = false;
    /// The letter that the solution has in this cell.
    QChar Letra;
};

/// One placed word.
struct RegistroItem
{
    QString Palavra;
    /// 'H' reads to the right, 'V' downwards.
    QChar Sentido;
    /// Cell of the first letter, 1 to kCelulas.
    int Ponto = 0;
    QString Dica;
    bool ItemResolvido = false;
};

/// The board's tables. One object owns them; every room that plays or builds reads and writes
/// directly.
struct Tabuleiro
{
    TabelaDe<CelulaQuadrado, kCelulas> Quadrado;
    TabelaDe<RegistroItem, kItens> ItemPalavra;
    /// True from the moment a word uses the cell until the next wzera. Mirrors Text1(i).Visible.
    TabelaDe<bool, kCelulas> Ocupada{};
    /// Words placed so far, 0 to kItens.
    int QtdItens = 0;
    /// How often the board has been emptied. Code that lets events run finds out by it that the
    /// board it worked on is gone.
    int Partida = 0;
};

/// The items through a cell, parsed: `segundo` is 0 where one word passes, both are 0 where none
/// does.
struct ItensDaCelula
{
    int primeiro = 0;
    int segundo = 0;
};

/// Row of cell `i` (1 to kCelulas), from 0.
constexpr int LinhaDe(int i)
{
    return (i - 1) / kColunas;
}
/// Column of cell `i` (1 to kCelulas), from 0.
constexpr int ColunaDe(int i)
{
    return (i - 1) % kColunas;
}

/// Distance in cells from one letter of a word to the next: 1 for 'H', kColunas for 'V', 0 for
/// anything else.
constexpr int PassoDe(QChar sentido)
{
    return sentido == u'H' ? 1 : sentido == u'V' ? kColunas : 0;
}

/// Cell of letter `k` (from 0) of a placed word.
constexpr int CelulaDaLetra(const RegistroItem &item, int k)
{
    return item.Ponto + PassoDe(item.Sentido) * k;
}

/// Splits the `Itens` text of a cell into its one or two numbers. Of the second number at most
/// three characters are read.
ItensDaCelula LeItens(const QString &itens);

/// The part of wzera that is no display: empties the occupied flags, `Itens` and `Fixa` of all
/// cells and `ItemResolvido` of all items. Leaves letters, words and QtdItens as they are.
void ZeraTabuleiro(Tabuleiro &tabuleiro);

/// Number of items with `ItemResolvido`, 0 to kItens.
int ContaResolvidos(const Tabuleiro &tabuleiro);

/// Lowest item from `desde` (1 to kItens) on that is not solved, or 0 where there is none.
int PrimeiroAberto(const Tabuleiro &tabuleiro, int desde = 1);
