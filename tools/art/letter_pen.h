#pragma once

#include <QPainterPath>
#include <QPointF>

/// The pen that draws one letter. y grows downwards and the baseline is 0; all lengths are pixels.

/// The middle line of a stroke, built piece by piece.
class Linha
{
public:
    Linha(double x, double y) { m_caminho.moveTo(x, y); }
    /// A straight piece.
    Linha &Ate(double x, double y);
    /// A quarter of an ellipse that leaves upright and arrives level.
    Linha &Ergue(double x, double y);
    /// A quarter of an ellipse that leaves level and arrives upright.
    Linha &Deita(double x, double y);
    /// A free curve with two handles.
    Linha &Curva(QPointF a, QPointF b, QPointF fim);

    [[nodiscard]] const QPainterPath &Caminho() const { return m_caminho; }

private:
    QPainterPath m_caminho;
};

/// Collects the strokes of one letter in a box from 0 to R and from T (or X) to the baseline.
class Pena
{
public:
    /// `largura` is the letter's box, `altura` the capitals' height, `peso` the width of upright
    /// strokes.
    Pena(double largura, double altura, double peso, bool grade);

    /// Strokes `linha` with the pen; the ends are cut square.
    void Risca(const Linha &linha);
    /// A closed ring with these middle lines.
    void Elipse(double x, double y, double rx, double ry);
    /// A piece of the ring that fills the box between the levels `topo` and `pe`: from `inicio`
    /// degrees (0 is right, counted against the clock) over `extensao` degrees.
    void Arco(double topo, double pe, double inicio, double extensao);
    /// A slope with level ends; the points lie on its left edge.
    void Inclina(double x1, double y1, double x2, double y2);
    /// Level width of a slope that goes `dx` aside on `dy` of height.
    [[nodiscard]] double Corte(double dx, double dy) const;

    /// Outline of all strokes together.
    [[nodiscard]] QPainterPath Contorno() const;

    // Names as short as the marks on a drawing. Capitals are edges of the box, small letters the
    // middle lines of strokes along them; those with an o go a little beyond, as round letters
    // must.
    double R, T, X;
    double peso;
    double l, r, c;
    double t, x, b, d;
    double to, xo, bo;

private:
    /// Adds a piece given in the enlarged units of m_contorno.
    void Junta(const QPainterPath &peca);

    double m_nivel;
    QPainterPath m_contorno;
};
