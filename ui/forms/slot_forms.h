#pragma once

#include "ui/forms/control_table.h"

namespace forms {

/// Index of the label "Cancelar" in the control array LbSave; the labels below it are the slots.
inline constexpr int kLbCancelar = 11;

/// Most characters of a saved game's name and of a player's.
inline constexpr int kMaximoNome = 14;

/// The caption of a free slot in each of the two lists.
inline constexpr char16_t kVazio[] = u"Vazio";
inline constexpr char16_t kSalvarAqui[] = u"Salvar aqui";

/// The list from which a saved game is opened.
extern const DefForm kFrmCarregar;
/// The list in which the slot to save into is picked.
extern const DefForm kFrmSalvar;
/// Asks for the name of a game that is saved.
extern const DefForm kFrmSalvar2;

} // namespace forms
