#pragma once

#include "ui/toolkit/painted_control.h"

namespace toolkit {

/// A straight line, level or upright, one pixel thick. Left and Top are the first point; Width and
/// Height the way to the second.
class Line final : public PaintedControl
{
public:
    explicit Line(const Origem &origem);

    void SetPontos(float x1, float y1, float x2, float y2) { Move(x1, y1, x2 - x1, y2 - y1); }

    [[nodiscard]] bool TemFonte() const override { return false; }
    void Pinta(QPainter &pintor, QSize tamanho) override;
};

} // namespace toolkit
