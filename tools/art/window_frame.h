#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

/// The frame that all shaped windows share: title strip, thin border, round corners.

/// Height of the title strip.
inline constexpr int kAlturaFaixa = 31;
/// Width of the border beside and below the body.
inline constexpr int kLarguraMoldura = 3;

/// Paints body, border and strip over the whole of a window of `tamanho` pixels, corners still
/// square.
void PintaMoldura(QPainter &p, QSize tamanho, QRgb corpo);

/// Rounds the corners of a finished drawing: a line in the border's colour follows them, and the
/// pixels outside get the key colour. `imagem` is `escala` times its natural size.
///
/// At scale 1 the outside is the fixed pattern of 36 pixels. At larger scales it is a smooth bow
/// that lies within that pattern, so that a window cut to the pattern never shows the key colour.
QImage RecortaCantos(const QImage &imagem, int escala);
