#include "tools/art/small_pictures.h"

#include "tools/art/palette.h"
#include "tools/art/shapes.h"
#include <array>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <QTransform>

namespace {

/// A broad arrow that points down, in a box of 10 by 9 with its corner at (`x`,`y`).
QPainterPath SetaParaBaixo(double x, double y)
{
    QPainterPath seta;
    seta.addPolygon(QPolygonF{{3.5, 0}, {6.5, 0}, {6.5, 4}, {10, 4}, {5, 9}, {0, 4}, {3.5, 4}});
    seta.closeSubpath();
    return seta.translated(x, y);
}

/// A letter on its tile.
void Ficha(QPainter &p, QPointF canto, double lado, QChar letra, bool destaque)
{
    const QRectF area(canto + QPointF(0.5, 0.5), QSizeF(lado - 1, lado - 1));
    Retangulo(p, area.translated(0, 1), 1.6, qRgb(0, 52, 104), qRgb(0, 52, 104));
    Retangulo(p, area, 1.6, destaque ? qRgb(255, 236, 120) : kBranco,
              destaque ? kCaixa : qRgb(226, 240, 250));
    const EstiloLetra estilo{.altura = lado * 0.54, .peso = lado * 0.12};
    TextoNoMeio(p, area.center().x(), canto.y() + lado * 0.77, QString(letra), estilo, kMarinho);
}

} // namespace

void PintaImage7(QPainter &p)
{
    const EstiloLetra estilo{.altura = 15, .peso = 3, .espaco = 0, .grade = true};
    const QPainterPath texto = CaminhoTexto(u"Por favor aguarde", estilo);
    QPainterPathStroker contorno;
    contorno.setWidth(2);
    contorno.setJoinStyle(Qt::RoundJoin);
    const double x = qRound((196 - texto.boundingRect().width()) / 2);
    const QPainterPath halo = contorno.createStroke(texto);
    p.fillPath(halo.translated(x, 16), QColor(kMarinho));
    p.fillPath(texto.translated(x, 16), QColor(kBranco));
}

void PintaImgR(QPainter &p)
{
    Retangulo(p, {1, 1, 18, 18}, 3, qRgb(160, 176, 40), qRgb(36, 84, 8));
    Retangulo(p, {2, 2, 16, 16}, 2, qRgb(70, 126, 16), qRgb(48, 104, 8));
    QPen pena(QColor(kBranco), 2.6);
    pena.setCapStyle(Qt::RoundCap);
    pena.setJoinStyle(Qt::RoundJoin);
    p.setPen(pena);
    p.drawPolyline(QPolygonF{{5.6, 10.2}, {8.8, 13.4}, {14.6, 6.6}});
}

void PintaImage1(QPainter &p)
{
    Retangulo(p, {0, 0, 20, 20}, 3, kAmbar, kAmbar);
    Retangulo(p, {1, 1, 18, 17}, 2.5, qRgb(0, 62, 122), kMarinho);
}

void PintaImgHintDire(QPainter &p)
{
    const QTransform paraDireita = QTransform().translate(2, 13).rotate(-90);
    p.fillPath(paraDireita.map(SetaParaBaixo(0, 0)), QColor(kFaixaBaixo));
    p.fillPath(SetaParaBaixo(2, 19), QColor(kFaixaBaixo));
}

void PintaImgHintDire2(QPainter &p)
{
    p.fillPath(SetaParaBaixo(1, 2), QColor(kFaixaBaixo));
}

void PintaJogo(QPainter &p)
{
    // The About form shows the picture stretched to 74 by 145 pixels; what is square there is drawn
    // narrower here.
    p.scale(70.0 / 74, 118.0 / 145);
    Retangulo(p, {0, 0, 74, 145}, 0, qRgb(40, 150, 216), qRgb(0, 84, 150));
    constexpr double kLado = 14;
    constexpr int kColunaDoNome = 3;
    struct Cruzada
    {
        QStringView palavra;
        int linha;
    };
    constexpr std::array<Cruzada, 3> kCruzadas = {{{u"DICA", 2}, {u"LETRA", 4}, {u"JOGO", 7}}};
    const QStringView nome = u"QUADRELO";
    const QPointF canto(2, 16.5);
    for (const Cruzada &cruzada : kCruzadas) {
        for (int n = 0; n < cruzada.palavra.size(); ++n) {
            Ficha(p, canto + QPointF(n, cruzada.linha) * kLado, kLado, cruzada.palavra[n], false);
        }
    }
    for (int n = 0; n < nome.size(); ++n) {
        Ficha(p, canto + QPointF(kColunaDoNome, n) * kLado, kLado, nome[n], true);
    }
}

void PintaPergunta(QPainter &p)
{
    Retangulo(p, {1, 2, 30, 30}, 15, kMarinho, kMarinho);
    Retangulo(p, {1, 1, 30, 30}, 15, kFaixaLuz, kMoldura);
    Retangulo(p, {2, 2, 28, 28}, 14, kFaixaCima, kFaixaBaixo);
    QPainterPath gancho;
    gancho.arcMoveTo({11, 7, 10, 10}, 180);
    gancho.arcTo({11, 7, 10, 10}, 180, -235);
    gancho.quadTo(16, 17.5, 16, 20.5);
    p.strokePath(gancho, QPen(QColor(kBranco), 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    // Square, as the dots of the lettering are.
    p.fillRect(QRectF(14.5, 22, 3, 3), QColor(kBranco));
}

void PintaMao(QPainter &p)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    QPainterPath mao;
    mao.addPolygon(
        QPolygonF{{9, 16}, {25, 16}, {25, 21}, {23, 25}, {23, 28}, {12, 28}, {12, 26}, {9, 22}});
    mao.closeSubpath();
    const std::array dedos = {QRectF(9, 3, 4, 16), QRectF(13, 9, 4, 10), QRectF(17, 10, 4, 10),
                              QRectF(21, 12, 4, 8)};
    for (const QRectF &dedo : dedos) {
        mao = mao.united(CaminhoRedondo(dedo, 1.5));
    }
    const QTransform polegar = QTransform().translate(5, 15).rotate(-38);
    mao = mao.united(polegar.map(CaminhoRedondo({-1, 0, 4, 10}, 2)));

    QPainterPathStroker contorno;
    contorno.setWidth(2);
    contorno.setJoinStyle(Qt::RoundJoin);
    p.fillPath(contorno.createStroke(mao), Qt::black);
    p.fillPath(mao, Qt::white);
    for (const double x : {13.0, 17.0, 21.0}) {
        p.fillRect(QRectF(x, 11, 1, 7), Qt::black);
    }
}
