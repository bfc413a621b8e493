#pragma once

#include "ui/toolkit/control.h"

class QPainter;

namespace toolkit {

/// A control that draws itself. What it leaves unpainted shows what lies below it.
class PaintedControl : public Control
{
public:
    explicit PaintedControl(const Origem &origem);

    /// Draws the control on a ground of `tamanho` pixels.
    virtual void Pinta(QPainter &pintor, QSize tamanho) = 0;
};

} // namespace toolkit
