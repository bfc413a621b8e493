#pragma once

#include "core/machine/program_state.h"
#include "ui/toolkit/form.h"

#include <optional>
#include <QRegion>

/// Region of `pic`, in its pixels, without those of exactly the colour `cor`; nothing where it
/// cannot be built.
std::optional<QRegion> RegiaoDaFigura(const QImage &pic, QRgb cor);

/// Gives a form the shape of its background picture, without the key colour. Where no region can be
/// built the window stays a plain rectangle.
void DaForma(toolkit::Form &form, ValoresPrograma &valores);

/// The drag strip's mouse handler: with the left button down the system takes over and moves the
/// window as if its title bar had been grabbed.
void ArrastaForm(toolkit::Form &form, const toolkit::Mouse &mouse);

/// Makes `tira` the drag strip of `form`.
void LigaTira(toolkit::Form &form, toolkit::Control &tira);
