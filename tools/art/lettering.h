#pragma once

#include <QPainterPath>
#include <QStringView>

/// The game's own lettering: a geometric sans of even weight, drawn from outlines defined here, so
/// that no picture depends on a font of the machine that draws it.

/// How a text is set. Lengths are pixels of the picture at its natural size.
struct EstiloLetra
{
    /// Height of the capitals.
    double altura = 10;
    /// Width of the upright strokes; level strokes are a little thinner.
    double peso = 2;
    /// Added between letters.
    double espaco = 0;
    /// Fits widths, heights and positions to whole pixels; for words smaller than about 15 pixels.
    bool grade = false;
};

/// Outline of `texto`, its baseline at y = 0 and its first letter beginning at x = 0. Every
/// character must be a blank or one of the letters that the pictures use.
QPainterPath CaminhoTexto(QStringView texto, const EstiloLetra &estilo);
