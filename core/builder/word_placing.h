#pragma once

#include "core/board/board.h"

/// What follows a word on its way to the board. The main window shows it; without a window nothing
/// does. Every call comes after the model's own change.
class ExibicaoMontagem
{
public:
    ExibicaoMontagem() = default;
    ExibicaoMontagem(const ExibicaoMontagem &) = delete;
    ExibicaoMontagem &operator=(const ExibicaoMontagem &) = delete;
    virtual ~ExibicaoMontagem() = default;

    /// Cell `i` has got a letter: show its box, with the letter where the cell is `Fixa`, else
    /// empty.
    virtual void MostraCelula(int /*i*/) {}
    /// Show the shadow of cell `i`, if it has none yet.
    virtual void MostraSombra(int /*i*/) {}
    /// Item `n` stands: show its number by its first letter.
    virtual void MostraNumero(int /*n*/) {}
    /// The share of the puzzle that stands, above 0 and up to 1.
    virtual void MostraAndamento(double /*fracao*/) {}
    /// Let pending events run. Called twice for each cell.
    virtual void DeixaEventos() {}
};

/// A word to be placed. `ponto` is the cell of its first letter.
struct PalavraPosta
{
    QString Palavra;
    int ponto = 0;
    QChar wSentido;
    QString Dica;
    /// The word comes out of a saved game whose player had solved it: its cells are shown and
    /// `Fixa`.
    bool resolvida = false;
};

/// Lays one word as item QtdItens + 1: the only way in which a word gets on the board. Tests
/// nothing: the caller knows that the word fits and agrees with what it crosses. Does nothing once
/// kItens words stand.
void Carrega_Palavra(Tabuleiro &tabuleiro, ExibicaoMontagem &exibicao, const PalavraPosta &posta);
