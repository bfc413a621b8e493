#pragma once

#include "ui/records/dialog_context.h"

/// Enters a finished game of `t` seconds in the ranking if its time reaches it: asks for the
/// player's name and shows the ranking, and waits for both. True if the time got a place; otherwise
/// nothing is shown.
bool VerificaRecords(const ContextoDialogo &contexto, int t);
