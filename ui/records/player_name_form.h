#pragma once

#include "ui/records/dialog_context.h"
#include "ui/toolkit/text_box.h"

/// Asks for the name of a player whose time reaches the ranking. It cannot be refused: every way of
/// closing it gives a name.
class FrmSeuNome
{
public:
    explicit FrmSeuNome(const ContextoDialogo &contexto);

    /// Shows the dialog and waits until it is closed.
    void ShowModal() { m_form.ShowModal(&d.dona); }
    /// The name once the dialog is closed, without blanks round it; "Sem Nome" where the player
    /// gave none.
    [[nodiscard]] const QString &NomeJogador() const { return m_nomeJogador; }

private:
    void Form_Load();
    void Form_Unload();

    ContextoDialogo d;
    toolkit::Form m_form;
    toolkit::TextBox &m_text1;
    QString m_nomeJogador;
};
