#pragma once

#include <QImage>
#include <QSize>
#include <span>

class QPainter;

enum class TipoFigura {
    /// 24 bits, corners cut out by the key colour.
    Recortada,
    /// 24 bits, no key colour.
    Opaca,
    /// 32 bits, the ground is left to the form.
    Translucida,
};

/// One picture of the game.
struct Figura
{
    /// File name without the ending.
    QStringView nome;
    /// Pixels at natural size.
    QSize tamanho;
    TipoFigura tipo;
    void (*pinta)(QPainter &);
    /// Largest scale that is kept: 3, or 1 for the icons, which have a picture for each size.
    int escalas = 3;
};

/// All pictures.
std::span<const Figura> Figuras();

/// File name of `figura` at `escala`, as Qt looks for it: "Form1.png", "Form1@2x.png".
QString NomeArquivo(const Figura &figura, int escala);

/// Draws `figura` at `escala` times its natural size (1 to 3).
QImage DesenhaFigura(const Figura &figura, int escala);
