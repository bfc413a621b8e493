#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"
#include "ui/toolkit/form.h"

/// What the dialogs of saved games and of the ranking work on. All of it must outlive them.
struct ContextoDialogo
{
    ValoresPrograma &valores;
    Ambiente &ambiente;
    /// The form that a dialog is modal on.
    toolkit::Form &dona;
};
