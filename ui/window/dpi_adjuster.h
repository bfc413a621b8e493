#pragma once

#include "ui/toolkit/form.h"

/// Fits a form to its background picture on a screen that does not run at 96 DPI: a form is
/// designed in twips, its look rests on a bitmap of a fixed number of pixels. To be called last in
/// a form's load; a form whose picture fits stays as it is.
void AjustarDpi(toolkit::Form &form);

/// Applies the factors `ajusteW` and `ajusteH` to all controls of a form. At 0 a factor is 96
/// divided by `appliedDpi`.
void AjustarObjetos(toolkit::Form &form, int appliedDpi, float ajusteW = 0, float ajusteH = 0);
