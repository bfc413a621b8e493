#include "tools/art/shapes.h"

#include "tools/art/palette.h"
#include <cmath>
#include <QLinearGradient>
#include <QPainterPathStroker>
#include <QTransform>

QPainterPath CaminhoRedondo(const QRectF &area, double raio)
{
    QPainterPath caminho;
    caminho.addRoundedRect(area, raio, raio);
    return caminho;
}

void Retangulo(QPainter &p, const QRectF &area, double raio, QRgb cima, QRgb baixo)
{
    if (cima == baixo) {
        p.fillPath(CaminhoRedondo(area, raio), QColor(cima));
        return;
    }
    QLinearGradient cor(area.topLeft(), area.bottomLeft());
    cor.setColorAt(0, QColor(cima));
    cor.setColorAt(1, QColor(baixo));
    p.fillPath(CaminhoRedondo(area, raio), cor);
}

void TextoNoMeio(QPainter &p, double x, double y, QStringView texto, const EstiloLetra &estilo,
                 QRgb cor)
{
    const QPainterPath caminho = CaminhoTexto(texto, estilo);
    const QRectF tinta = caminho.boundingRect();
    const double esquerda = x - tinta.width() / 2 - tinta.left();
    p.fillPath(caminho.translated(estilo.grade ? std::round(esquerda) : esquerda, y), QColor(cor));
}

void Botao(QPainter &p, const QRectF &area, const CoresBotao &cores, QStringView texto)
{
    Retangulo(p, area, kRaio, cores.labio, cores.labio);
    const QRectF face = area.adjusted(0, 0, 0, -2);
    Retangulo(p, face, kRaio, cores.luz, cores.cima);
    Retangulo(p, face.adjusted(1, 1, -1, 0), kRaio - 1, cores.cima, cores.baixo);
    const EstiloLetra estilo{.altura = 11, .peso = 2, .grade = true};
    const double base = std::round(face.top() + (face.height() + estilo.altura) / 2);
    const double meio = area.center().x();
    TextoNoMeio(p, meio, base + 1, texto, estilo, cores.labio);
    TextoNoMeio(p, meio, base, texto, estilo, kBranco);
}

void BotaoRedondo(QPainter &p, const QRectF &area, SinalRedondo sinal)
{
    const bool cruz = sinal == SinalRedondo::Cruz;
    const CoresBotao cores =
        cruz ? CoresBotao{qRgb(255, 186, 160), qRgb(206, 70, 40), qRgb(166, 42, 22), 0}
             : CoresBotao{qRgb(176, 222, 255), qRgb(0, 112, 190), qRgb(0, 84, 156), 0};
    const double raio = area.width() / 2;
    Retangulo(p, area, raio, cores.luz, cores.baixo);
    Retangulo(p, area.adjusted(1, 1, -1, -1), raio - 1, cores.cima, cores.baixo);
    const QPointF centro = area.center();
    if (cruz) {
        const double braco = raio * 0.40;
        QPen pena(QColor(kBranco), raio * 0.27);
        pena.setCapStyle(Qt::RoundCap);
        p.setPen(pena);
        p.drawLine(centro - QPointF(braco, braco), centro + QPointF(braco, braco));
        p.drawLine(centro - QPointF(braco, -braco), centro + QPointF(braco, -braco));
        return;
    }
    // The letter i, its dot square as in the lettering.
    p.fillRect(QRectF(centro.x() - 1, centro.y() - 4, 2, 2), QColor(kBranco));
    p.fillRect(QRectF(centro.x() - 1, centro.y() - 1, 2, 5), QColor(kBranco));
}

QPainterPath AnelDaMarca()
{
    // Middle line of the ring of ten by ten, open where it would come near the tail. It is stroked
    // much larger than it is used, which keeps the bows smooth.
    constexpr double kLupa = 64;
    constexpr double kCurva = 3.5;
    QPainterPath linha;
    linha.moveTo(7, 9);
    linha.arcTo(QRectF(1, 9 - kCurva, kCurva, kCurva), 270, -90);
    linha.arcTo(QRectF(1, 1, kCurva, kCurva), 180, -90);
    linha.arcTo(QRectF(9 - kCurva, 1, kCurva, kCurva), 90, -90);
    linha.lineTo(9, 7);
    QPainterPathStroker riscador;
    riscador.setWidth(2 * kLupa);
    riscador.setCapStyle(Qt::FlatCap);
    const QPainterPath anel = riscador.createStroke(QTransform::fromScale(kLupa, kLupa).map(linha));
    return QTransform::fromScale(1 / kLupa, 1 / kLupa).map(anel);
}

QPainterPath CaudaDaMarca()
{
    return CaminhoRedondo({8, 8, 4, 4}, 0.75);
}

void Marca(QPainter &p, double x, double y, double lado, QRgb cor)
{
    p.save();
    p.translate(x, y);
    p.scale(lado / 12, lado / 12);
    p.fillPath(AnelDaMarca(), QColor(cor));
    p.fillPath(CaudaDaMarca(), QColor(kCaixa));
    p.restore();
}

void Caixa(QPainter &p, const QRectF &area)
{
    Retangulo(p, area.translated(0, 2), 3, kSombra, kSombra);
    Retangulo(p, area, 3, kCaixa, kCaixa);
}
