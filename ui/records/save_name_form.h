#pragma once

#include "core/board/board.h"
#include "ui/records/dialog_context.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/text_box.h"

/// Asks for the name of a game and saves it.
class FrmSalvar2
{
public:
    /// `contexto.dona` is the dialog of the slots, which is hidden when the game is saved. `n`: the
    /// slot, 1 to kSlots.
    FrmSalvar2(const ContextoDialogo &contexto, const Tabuleiro &tabuleiro, int n);

    /// Puts a name into the field, selected, so that typing replaces it.
    void OfereceNome(const QString &nome) { m_text1.SetText(nome); }
    /// Saves only if the slot is free when the time has come: the player has not been asked.
    void PoupaOcupado() { m_poupaOcupado = true; }
    /// Shows the dialog and waits until it is closed.
    void ShowModal() { m_form.ShowModal(&d.dona); }

private:
    void Form_Load();
    void Form_Activate();
    void Command1_Click();
    void SalvarJogo(int n, const QString &NomeJogo);

    ContextoDialogo d;
    const Tabuleiro &m_tabuleiro;
    toolkit::Form m_form;
    toolkit::TextBox &m_text1;
    toolkit::Label &m_label3;
    bool m_poupaOcupado = false;
};
