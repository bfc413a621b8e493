#include "tools/art/letter_pen.h"

#include <cmath>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <QTransform>

namespace {

/// Handle length of a quarter; a little above the circle's, which squares the bows slightly.
constexpr double kQuarto = 0.565;
/// Small letters, descenders and level strokes, as shares of the capitals' height and of the
/// weight.
constexpr double kAlturaMinuscula = 0.73;
constexpr double kDescida = 0.27;
constexpr double kPesoNivel = 0.86;
constexpr double kExcesso = 0.012;
/// Outlines are worked out this much larger, so that their curves are smooth at every scale.
constexpr double kLupa = 64;

} // namespace

Linha &Linha::Ate(double x, double y)
{
    m_caminho.lineTo(x, y);
    return *this;
}

Linha &Linha::Ergue(double x, double y)
{
    const QPointF de = m_caminho.currentPosition();
    m_caminho.cubicTo(de.x(), de.y() + (y - de.y()) * kQuarto, x - (x - de.x()) * kQuarto, y, x, y);
    return *this;
}

Linha &Linha::Deita(double x, double y)
{
    const QPointF de = m_caminho.currentPosition();
    m_caminho.cubicTo(de.x() + (x - de.x()) * kQuarto, de.y(), x, y - (y - de.y()) * kQuarto, x, y);
    return *this;
}

Linha &Linha::Curva(QPointF a, QPointF b, QPointF fim)
{
    m_caminho.cubicTo(a, b, fim);
    return *this;
}

Pena::Pena(double largura, double altura, double pesoHaste, bool grade)
    : R(largura),
      T(-altura),
      X(-altura * kAlturaMinuscula),
      peso(pesoHaste),
      m_nivel(pesoHaste * kPesoNivel)
{
    if (grade) {
        X = std::round(X);
    }
    const double excesso = grade ? 0 : altura * kExcesso;
    l = peso / 2;
    r = R - peso / 2;
    c = R / 2;
    t = T + m_nivel / 2;
    x = X + m_nivel / 2;
    b = -m_nivel / 2;
    d = (grade ? std::round(altura * kDescida) : altura * kDescida) - m_nivel / 2;
    to = t - excesso;
    xo = x - excesso;
    bo = b + excesso;
}

void Pena::Risca(const Linha &linha)
{
    // The pen is an ellipse: level strokes come out thinner than upright ones.
    const double aspecto = peso / m_nivel;
    QPainterPathStroker riscador;
    riscador.setWidth(m_nivel * kLupa);
    riscador.setCapStyle(Qt::FlatCap);
    riscador.setJoinStyle(Qt::MiterJoin);
    const QTransform ida = QTransform::fromScale(kLupa / aspecto, kLupa);
    const QPainterPath risco = riscador.createStroke(ida.map(linha.Caminho()));
    Junta(QTransform::fromScale(aspecto, 1).map(risco));
}

void Pena::Elipse(double x0, double y0, double rx, double ry)
{
    Linha linha(x0 - rx, y0);
    linha.Ergue(x0, y0 - ry).Deita(x0 + rx, y0).Ergue(x0, y0 + ry).Deita(x0 - rx, y0);
    // A short overlap closes the ring without a seam.
    linha.Ergue(x0, y0 - ry);
    Risca(linha);
}

void Pena::Arco(double topo, double pe, double inicio, double extensao)
{
    const QRectF caixa(l, topo, r - l, pe - topo);
    QPainterPath arco;
    arco.arcMoveTo(caixa, inicio);
    arco.arcTo(caixa, inicio, extensao);
    Linha linha(arco.elementAt(0).x, arco.elementAt(0).y);
    for (int k = 1; k + 2 < arco.elementCount(); k += 3) {
        linha.Curva(arco.elementAt(k), arco.elementAt(k + 1), arco.elementAt(k + 2));
    }
    Risca(linha);
}

void Pena::Inclina(double x1, double y1, double x2, double y2)
{
    const double corte = Corte(x2 - x1, y2 - y1);
    QPainterPath peca;
    peca.addPolygon(QPolygonF{{x1, y1}, {x1 + corte, y1}, {x2 + corte, y2}, {x2, y2}});
    peca.closeSubpath();
    Junta(QTransform::fromScale(kLupa, kLupa).map(peca));
}

QPainterPath Pena::Contorno() const
{
    return QTransform::fromScale(1 / kLupa, 1 / kLupa).map(m_contorno);
}

double Pena::Corte(double dx, double dy) const
{
    return peso * 0.96 * std::hypot(dx, dy) / std::abs(dy);
}

void Pena::Junta(const QPainterPath &peca)
{
    QPainterPath limpa = peca;
    limpa.setFillRule(Qt::WindingFill);
    m_contorno = m_contorno.isEmpty() ? limpa.simplified() : m_contorno.united(limpa.simplified());
    m_contorno.setFillRule(Qt::WindingFill);
}
