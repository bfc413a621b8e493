#pragma once

#include "ui/gameplay/play_context.h"

/// What a selection found: nothing to select, a free cell for the cursor, or an item without one,
/// all of whose letters stand already. Nothing typed can ever raise the check of such an item.
enum class Achado { Nada, Cursor, NenhumaLivre };

/// The selection of one item: its button is marked, its free cells are tinted, its clue is shown
/// and the cursor stands in its first free cell.
class Selecao
{
public:
    explicit Selecao(const ContextoJogo &jogo) : d(jogo) {}

    /// Selects item `Index` (1 to kItens; 0 only sounds) and wipes what was typed into the item
    /// that is left, also if that is the same one. A solved item is not selected; after giving up
    /// only the clue is shown.
    Achado Lbt_Click(int Index);
    /// A click of the player on the button of item `Index`: nothing while a board is built or
    /// loaded.
    Achado CliqueNoBotao(int Index);
    /// A press of any mouse button on cell `Index`: selects an open item through it. Crossing cells
    /// of two open items alternate between them.
    Achado Text1_MouseDown(int Index);
    /// The second press of a double click counts as one more press.
    Achado Text1_DblClick(int Index) { return Text1_MouseDown(Index); }

private:
    void Desmarca(int item);
    int Marca(int item);
    int Escolhe(const ItensDaCelula &itens);

    ContextoJogo d;
    /// Belongs to the program and not to a cell: clicks on different crossings share one
    /// alternation.
    bool m_alternaSentido = false;
};
