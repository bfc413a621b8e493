#include "ui/toolkit/thin_frame.h"

#include <cmath>
#include <QPainter>

namespace toolkit {

namespace {

/// One axis of the painter's ground: `origem` device pixels from the screen's edge, `escala` to the
/// pixel.
struct Eixo
{
    qreal origem;
    qreal escala;

    /// Where the line at pixel `x` begins, moved so that it begins with a device pixel.
    [[nodiscard]] qreal Inicio(int x) const
    {
        return (std::round(origem + x * escala) - origem) / escala;
    }
    /// Thickness of a line, in pixels: whole device pixels.
    [[nodiscard]] qreal Espessura() const { return std::max(1.0, std::floor(escala)) / escala; }
};

Eixo Horizontal(const QTransform &t)
{
    return {t.dx(), t.m11()};
}

Eixo Vertical(const QTransform &t)
{
    return {t.dy(), t.m22()};
}

} // namespace

QRectF AreaDaMoldura(const QPainter &pintor, QSize tamanho)
{
    const Eixo x = Horizontal(pintor.deviceTransform());
    const Eixo y = Vertical(pintor.deviceTransform());
    return {QPointF(x.Inicio(0), y.Inicio(0)),
            QPointF(x.Inicio(tamanho.width() - 1) + x.Espessura(),
                    y.Inicio(tamanho.height() - 1) + y.Espessura())};
}

void PintaMoldura(QPainter &pintor, QSize tamanho, QColor cor)
{
    const QRectF area = AreaDaMoldura(pintor, tamanho);
    const QSizeF emPe(Horizontal(pintor.deviceTransform()).Espessura(), area.height());
    const QSizeF deitada(area.width(), Vertical(pintor.deviceTransform()).Espessura());
    pintor.fillRect(QRectF(area.topLeft(), deitada), cor);
    pintor.fillRect(QRectF(QPointF(area.left(), area.bottom() - deitada.height()), deitada), cor);
    pintor.fillRect(QRectF(area.topLeft(), emPe), cor);
    pintor.fillRect(QRectF(QPointF(area.right() - emPe.width(), area.top()), emPe), cor);
}

} // namespace toolkit
