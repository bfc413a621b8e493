#pragma once

#include "ui/gameplay/play_context.h"

/// The bubble with a cell's clues: comes up half a second after the mouse has come to rest on the
/// cell, stays for three seconds, and goes when the mouse leaves the cells.
class BalaoDica
{
public:
    explicit BalaoDica(const ContextoJogo &jogo) : d(jogo) {}

    /// The mouse moves over cell `Index`.
    void Text1_MouseMove(int Index);
    /// The mouse moves over the ground of the form or of the board.
    void ForaDasCelulas();
    void Timer3_Timer();
    void Timer2_Timer();

private:
    [[nodiscard]] QString TextoDe(int Index);
    [[nodiscard]] QString TextoDoCruzamento(const ItensDaCelula &itens);
    void Coloca(int Index);

    ContextoJogo d;
    /// Counts the movements, so that one that let events run finds out that another has come.
    int m_gesto = 0;
};
