#pragma once

#include "ui/records/slot_list.h"

/// The dialog from which a saved game is opened.
class FrmCarregar
{
public:
    /// `carregaJogo` opens slot `n`, 1 to kSlots; it is called when the dialog has gone, with sound
    /// off.
    FrmCarregar(const ContextoDialogo &contexto, std::function<void(int n)> carregaJogo);

    /// Shows the dialog and waits until it is closed and the chosen game, if any, is open.
    void ShowModal() { m_lista.ShowModal(); }

private:
    void LbSave_Click(int Index);

    ContextoDialogo d;
    std::function<void(int n)> CarregaJogo;
    ListaSlots m_lista;
};
