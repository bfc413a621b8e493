#pragma once

#include "ui/toolkit/form.h"

/// The player's hand: events as the window system sends them, so that what lies on top gets the
/// click, a form behind a modal one gets none, and keys go where the focus is.

/// A click on the middle of a control, or of whatever lies on top there.
void ClicaNaJanela(const toolkit::Control &controle);
/// A click on a place of a form, in its pixels.
void ClicaNaJanela(toolkit::Form &form, QPoint lugar);
/// The mouse moves onto the middle of a control.
void PoeMouse(const toolkit::Control &controle);
/// Types a text, character by character.
void Digita(toolkit::Form &form, const QString &texto);
/// Presses and lets go a key.
void Tecla(toolkit::Form &form, Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier);
