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

} // namespace

void PintaMoldura(QPainter &pintor, QSize tamanho, QColor cor)
{
    const QTransform t = pintor.deviceTransform();
    const Eixo x{t.dx(), t.m11()};
    const Eixo y{t.dy(), t.m22()};
    const qreal esquerda = x.Inicio(0);
    const qreal topo = y.Inicio(0);
    const qreal direita = x.Inicio(tamanho.width() - 1);
    const qreal base = y.Inicio(tamanho.height() - 1);
    const qreal largura = direita + x.Espessura() - esquerda;
    const qreal altura = base + y.Espessura() - topo;
    pintor.fillRect(QRectF(esquerda, topo, largura, y.Espessura()), cor);
    pintor.fillRect(QRectF(esquerda, base, largura, y.Espessura()), cor);
    pintor.fillRect(QRectF(esquerda, topo, x.Espessura(), altura), cor);
    pintor.fillRect(QRectF(direita, topo, x.Espessura(), altura), cor);
}

} // namespace toolkit
