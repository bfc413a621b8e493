#pragma once

#include <QByteArray>
#include <QPainter>

/// The game's icon: the mark on a blue tile.

/// Paints the icon into a square of side `lado` at (0,0).
void PintaIcone(QPainter &p, double lado);

/// The icon as a vector drawing (SVG).
QByteArray IconeVetorial();

/// The icon file of the main window: 16, 32 and 48 pixels square, each in 8 and in 32 bits a pixel.
QByteArray ArquivoIcone();
