#pragma once

#include "core/board/board.h"
#include "ui/records/slot_list.h"

/// The dialog in which the slot to save into is picked. The naming and the saving are FrmSalvar2's.
class FrmSalvar
{
public:
    /// `tabuleiro`: the game to be saved.
    FrmSalvar(const ContextoDialogo &contexto, const Tabuleiro &tabuleiro);

    /// Shows the dialog and waits until it is closed and the game, if the player wanted so, saved.
    void ShowModal() { m_lista.ShowModal(); }

private:
    void LbSave_Click(int Index);
    [[nodiscard]] bool PodeSobregravar(int n) const;
    void PedeNome(int n);

    ContextoDialogo d;
    const Tabuleiro &m_tabuleiro;
    ListaSlots m_lista;
};
