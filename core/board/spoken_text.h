#pragma once

#include "core/board/board.h"

/// What the board says to a player who cannot see it. Everything that the window tells by place,
/// colour or picture is told here in words.

/// How the letter of a cell came to stand there.
enum class LetraFalada {
    /// Typed, and not yet confirmed by a check.
    Digitada,
    /// Confirmed: solved, or given as help.
    Confirmada,
    /// Shown by giving up; the player did not have it.
    Revelada,
};

enum class ItemFalado { Aberto, Resolvido, Revelado };

/// A clue to be listened to: the blank that it leaves for the word is a word itself.
QString FalaDica(const QString &dica);

/// Name of cell `i` (1 to kCelulas): the items through it with the place in each, and what stands
/// in it. "1 horizontal, letra 2 de 5: vazia". In a crossing the item `selecionado` comes first;
/// it is 0 where none is selected. "" for a cell without a word.
QString FalaCelula(const Tabuleiro &tabuleiro, int i, int selecionado, const QString &texto,
                   LetraFalada letra);

/// The clues of the items through cell `i`, in the order of FalaCelula; in a crossing each with its
/// item. "" for a cell without a word.
QString FalaDicas(const Tabuleiro &tabuleiro, int i, int selecionado);

/// Name of the button or the mark of item `n` (1 to kItens): number, direction, length, state and
/// clue. Only the number where no such item is on the board.
QString FalaItem(const Tabuleiro &tabuleiro, int n, int selecionado, ItemFalado estado);

/// A time as the clock shows it, "hh:mm:ss", in words: "1 hora, 2 minutos e 5 segundos". Leading
/// parts of 0 are left out.
QString FalaTempo(const QString &relogio);

/// The hint bubble: its one or two clues, each behind the direction that the bubble's arrow shows.
/// `legenda`: the bubble's lines, parted by a carriage return. `deitada`, `emPe`: whether the first
/// line has an arrow to the right, or one downwards.
QString FalaBalao(const QString &legenda, bool deitada, bool emPe);

/// The outcome of the check of a word. `resolvidos` counts the solved items, this one included.
QString FalaJulgamento(const QString &palavra, bool certa, int resolvidos);

/// The letter given as help in cell `c`, with its place.
QString FalaLetraDada(const Tabuleiro &tabuleiro, int c, int selecionado);

/// How many of the items are solved.
QString FalaResolvidos(int resolvidos);
