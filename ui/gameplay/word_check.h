#pragma once

#include "ui/gameplay/play_context.h"
#include "ui/gameplay/selection.h"

#include <functional>

/// Number of solved items from which on the first menu entry gives the game up.
inline constexpr int kItensParaDesistir = 10;

/// Judges a full word: a wrong one is wiped, a right one is locked and its button gives way to a
/// mark, and the last right one ends the game.
class Verificacao
{
public:
    Verificacao(const ContextoJogo &jogo, Selecao &selecao) : d(jogo), m_selecao(selecao) {}

    /// Checks item `i`, 1 to kItens. Empty cells add nothing, so that a word with one counts as
    /// wrong. The item selected behind a right one is checked as well if it has no free cell.
    void VerificaPalavra(int i);
    /// Checks the item that the player has just selected, if it has no free cell. An item found
    /// wrong there stays selected without a cursor: nothing would change by checking it again.
    void ConfereSelecao(Achado achado);
    /// Replaces the button of the solved item `i` by the mark, joined to the marks of its solved
    /// neighbours.
    void SomeNoTab(int i);
    /// Shows "Desistir" over the first menu entry if enough items are solved, else hides it.
    void MostraDesistir();

    /// Takes the time `t` of a finished game, in seconds; True if it reached the ranking.
    std::function<bool(int t)> VerificaRecords;
    /// Told of each judgement on an item, before anything follows from it. May be empty.
    std::function<void(int i, bool certa)> AoJulgar;

private:
    int Julga(int i);
    [[nodiscard]] QString Digitado(const RegistroItem &item) const;
    void Errada(int i);
    int Certa(int i);
    void Fixa(const RegistroItem &item);
    [[nodiscard]] int ProximoItem(int i) const;
    void Termina();

    ContextoJogo d;
    Selecao &m_selecao;
};
