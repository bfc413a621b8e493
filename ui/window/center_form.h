#pragma once

#include "ui/toolkit/form.h"

class QScreen;

/// The screen that the pointer is on, else the first one.
const QScreen *TelaDoJogador();

/// Puts a form in the middle of the screen that the player uses, never partly off it. A screen that
/// is smaller than the form still shows the form's upper left corner, where the title strip begins.
void CentralizaForm(toolkit::Form &form);
