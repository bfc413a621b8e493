#pragma once

#include "ui/records/dialog_context.h"

/// The ranking: five places with time and name. A click anywhere closes it, and so do Enter and
/// Esc.
class FrmHanking
{
public:
    explicit FrmHanking(const ContextoDialogo &contexto);

    /// Shows the ranking and waits until it is closed.
    void ShowModal() { m_form.ShowModal(&d.dona); }

private:
    void Form_Load();
    void LigaFechar();
    void LigaTira();
    bool Form_KeyDown(int tecla);

    ContextoDialogo d;
    toolkit::Form m_form;
    /// The strip has been dragged since it was pressed: letting it go is no click.
    bool m_arrastou = false;
};
