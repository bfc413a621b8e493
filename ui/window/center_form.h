#pragma once

#include "ui/toolkit/form.h"

/// Puts a form in the middle of the screen that the player uses, never partly off it. A screen that
/// is smaller than the form still shows the form's upper left corner, where the title strip begins.
void CentralizaForm(toolkit::Form &form);
