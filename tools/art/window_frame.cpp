#include "tools/art/window_frame.h"

#include "tools/art/palette.h"
#include "tools/art/shapes.h"
#include <array>
#include <cmath>
#include <QRect>

namespace {

/// Pixels outside the window at both ends of a row.
struct LinhaChave
{
    int esquerda, direita;
};
constexpr std::array<LinhaChave, 4> kChaveCima = {{{4, 3}, {2, 2}, {1, 1}, {1, 1}}};
/// The last five rows, from above.
constexpr std::array<LinhaChave, 5> kChaveBaixo = {{{1, 0}, {1, 1}, {2, 1}, {4, 2}, {5, 4}}};

/// Radius of the bow at larger scales, and of the border's inner edge.
constexpr double kRaioJanela = 5;

LinhaChave ChaveDaLinha(int y, int altura)
{
    if (y < 4) {
        return kChaveCima[static_cast<size_t>(y)];
    }
    const int deBaixo = y - (altura - 5);
    return deBaixo < 0 ? LinhaChave{0, 0} : kChaveBaixo[static_cast<size_t>(deBaixo)];
}

/// Whether the point, in natural pixels, lies beyond the bow of a corner.
bool AlemDoArco(double x, double y, QSize tamanho)
{
    const double dx = kRaioJanela - std::min(x, tamanho.width() - x);
    const double dy = kRaioJanela - std::min(y, tamanho.height() - y);
    return dx > 0 && dy > 0 && std::hypot(dx, dy) > kRaioJanela;
}

/// Whether pixel `ponto` of a drawing at `escala` lies outside the window of `natural` pixels.
bool Fora(QPoint ponto, QSize natural, int escala)
{
    if (!QRect(QPoint(0, 0), natural * escala).contains(ponto)) {
        return true;
    }
    const LinhaChave chave = ChaveDaLinha(ponto.y() / escala, natural.height());
    const int coluna = ponto.x() / escala;
    const bool noPadrao = coluna < chave.esquerda || coluna >= natural.width() - chave.direita;
    return noPadrao && (escala == 1 || AlemDoArco((ponto.x() + 0.5) / escala,
                                                  (ponto.y() + 0.5) / escala, natural));
}

} // namespace

void PintaMoldura(QPainter &p, QSize tamanho, QRgb corpo)
{
    const QRectF tudo(QPointF(0, 0), tamanho);
    p.fillRect(tudo, QColor(kBorda));
    p.fillRect(tudo.adjusted(1, 1, -1, -1), QColor(kMoldura));
    const double lado = kLarguraMoldura;
    p.fillRect(tudo.adjusted(lado, kAlturaFaixa, -lado, -lado), QColor(corpo));

    const QRectF faixa(1, 1, tamanho.width() - 2, kAlturaFaixa - 1);
    Retangulo(p, faixa, 0, kFaixaCima, kFaixaBaixo);
    p.fillRect(QRectF(faixa.left(), faixa.top(), faixa.width(), 1), QColor(kFaixaLuz));
    p.fillRect(QRectF(faixa.left(), kAlturaFaixa - 1, faixa.width(), 1), QColor(kBorda));
}

QImage RecortaCantos(const QImage &imagem, int escala)
{
    const QSize natural = imagem.size() / escala;
    QImage pronta(imagem.size(), QImage::Format_RGB32);
    pronta.fill(kBorda);
    QPainter p(&pronta);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF dentro(escala, escala, pronta.width() - 2 * escala, pronta.height() - 2 * escala);
    p.fillPath(CaminhoRedondo(dentro, kRaioJanela * escala), QBrush(imagem));
    p.end();

    for (int y = 0; y < pronta.height(); ++y) {
        for (int x = 0; x < pronta.width(); ++x) {
            const bool juntoDeFora =
                Fora({x - 1, y}, natural, escala) || Fora({x + 1, y}, natural, escala) ||
                Fora({x, y - 1}, natural, escala) || Fora({x, y + 1}, natural, escala);
            if (Fora({x, y}, natural, escala)) {
                pronta.setPixel(x, y, kCorChave);
            } else if (juntoDeFora) {
                // Nothing may blend with the key colour: the border's line is unbroken.
                pronta.setPixel(x, y, kBorda);
            }
        }
    }
    return pronta;
}
