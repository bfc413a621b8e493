#include "ui/toolkit/line.h"

#include <QPainter>

namespace toolkit {

Line::Line(const Origem &origem) : PaintedControl(origem)
{
    // However short one of its sides is, the line is there to be seen.
    Widget()->setMinimumSize(1, 1);
}

void Line::Pinta(QPainter &pintor, QSize tamanho)
{
    pintor.fillRect(QRect(QPoint(), tamanho), ForeColor());
}

} // namespace toolkit
