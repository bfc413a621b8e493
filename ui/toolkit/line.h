#pragma once

#include "ui/toolkit/painted_control.h"

namespace toolkit {

/// A straight line from (X1,Y1) to (X2,Y2), level or upright, one pixel thick. Left and Top are the
/// first point; Width and Height the way to the second.
class Line final : public PaintedControl
{
public:
    explicit Line(const Origem &origem);

    [[nodiscard]] float X1() const { return Left(); }
    [[nodiscard]] float Y1() const { return Top(); }
    [[nodiscard]] float X2() const { return Left() + Width(); }
    [[nodiscard]] float Y2() const { return Top() + Height(); }
    void SetPontos(float x1, float y1, float x2, float y2) { Move(x1, y1, x2 - x1, y2 - y1); }

    [[nodiscard]] bool TemFonte() const override { return false; }
    void Pinta(QPainter &pintor, QSize tamanho) override;
};

} // namespace toolkit
