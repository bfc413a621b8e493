#pragma once

#include "ui/forms/control_table.h"
#include "ui/records/dialog_context.h"

#include <functional>

/// The list of the ten slots as the load and the save dialog show it: one label for each slot with
/// the saved game's name, and "Cancelar" below them.
class ListaSlots
{
public:
    /// `def`: one of the two lists. `vazio`: its caption for a free slot.
    ListaSlots(const ContextoDialogo &contexto, const forms::DefForm &def, QString vazio);

    /// Shows the list and waits until it is closed.
    void ShowModal() { m_form.ShowModal(&d.dona); }
    void Unload() { m_form.Unload(); }
    [[nodiscard]] toolkit::Form &Janela() { return m_form; }

    /// What the label of slot `n`, 1 to kSlots, says.
    [[nodiscard]] const QString &Legenda(int n) const;
    /// Whether slot `n` counts as free. The caption alone decides, so a game that is named like a
    /// free slot counts as one.
    [[nodiscard]] bool Livre(int n) const { return Legenda(n) == m_vazio; }
    /// Whether the file could be read. Where it could not, every slot looks free.
    [[nodiscard]] bool Lida() const { return m_lida; }

    /// A click on label `Index`: a slot, or kLbCancelar.
    std::function<void(int Index)> LbSave_Click;

private:
    void Form_Load();
    void LbSave_MouseMove(int Index);

    ContextoDialogo d;
    QString m_vazio;
    toolkit::Form m_form;
    /// Label last under the mouse, 0 before the first. It stays coloured until another one is.
    int m_sobLbSave = 0;
    bool m_lida = true;
};
