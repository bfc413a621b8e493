#pragma once

#include <QColor>
#include <QSize>

class QPainter;

namespace toolkit {

/// Draws a frame of one pixel along the inside of a ground of `tamanho` pixels. On a screen whose
/// pixels are not a whole number of device pixels, all its lines are still of one thickness, and
/// the lines that two neighbours share fall on one another.
void PintaMoldura(QPainter &pintor, QSize tamanho, QColor cor);

} // namespace toolkit
