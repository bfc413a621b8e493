#pragma once

#include <QColor>
#include <QRectF>
#include <QSize>

class QPainter;

namespace toolkit {

/// Draws a frame of one pixel along the inside of a ground of `tamanho` pixels. On a screen whose
/// pixels are not a whole number of device pixels, all its lines are still of one thickness, and
/// the lines that two neighbours share fall on one another.
void PintaMoldura(QPainter &pintor, QSize tamanho, QColor cor);

/// What that frame encloses, its lines included. There it can be a part of a pixel smaller than the
/// ground, and what is painted outside would show beside it.
QRectF AreaDaMoldura(const QPainter &pintor, QSize tamanho);

} // namespace toolkit
