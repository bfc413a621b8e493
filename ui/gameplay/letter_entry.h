#pragma once

#include "ui/gameplay/play_context.h"

#include <functional>

/// The capitals and digits that a cell accepts, in their order.
inline constexpr QStringView kLetrasAceitas =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ1234567890";

/// Typing straight into the board. There is no keyboard handler: everything happens after a cell's
/// text has changed, by the player or by the program.
class EntradaLetras
{
public:
    explicit EntradaLetras(const ContextoJogo &jogo) : d(jogo) {}

    /// The text of cell `Index` has changed. Puts it in capitals, removes what is no accepted
    /// letter (each such write raises this handler again), and moves the cursor to the next free
    /// cell of the selected item; behind the last one the item is checked.
    void Text1_Change(int Index);
    /// Cell `Index` has got the focus: it goes to the cell of the cursor, or off the board.
    void Text1_GotFocus(int Index);

    /// Off while a saved game is laid out: cell writes do not reach Text1_Change.
    void SetAtiva(bool ativa) { m_ativa = ativa; }

    /// Checks item `i`: typing has reached the end of the word.
    std::function<void(int i)> VerificaPalavra;

private:
    bool Corrige(toolkit::TextBox &celula);
    void Anda(int i);

    ContextoJogo d;
    bool m_ativa = true;
};
