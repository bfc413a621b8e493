#include "tools/art/form_pictures.h"

#include "tools/art/palette.h"
#include "tools/art/shapes.h"
#include "tools/art/window_frame.h"
#include <array>
#include <span>

namespace {

// The menu. Every button lies wholly under its click zone, and the first one wholly under Image6.
constexpr double kMenuX = 525;
constexpr double kMenuY = 48;
constexpr double kMenuPasso = 40;
constexpr double kMenuLargura = 111;
constexpr double kMenuAltura = 24;
constexpr std::array<QStringView, 6> kMenu = {u"Novo Jogo", u"Reiniciar", u"Abrir",
                                              u"Salvar",    u"Ranking",   u"Sair"};

// The strip of item boxes and the clock's box.
constexpr int kCaixas = 26;
constexpr double kCaixaX = 12;
constexpr double kCaixaPasso = 21;
constexpr double kCaixaY = 449;
constexpr double kCaixaLado = 18;
constexpr double kRelogioX = 563;
constexpr double kRelogioLargura = 76;

// The rows of the list dialogs lie midway between the names of the two forms that share the
// picture: those of the one stand three pixels lower than those of the other.
constexpr int kLugares = 10;
constexpr double kListaY = 38;
constexpr double kListaPasso = 27;

/// The panel behind the menu, sunk into the body.
void FundoDoMenu(QPainter &p)
{
    const QRectF area(516, 39, 129, 243);
    Retangulo(p, area, kRaio + 2, kSombra, qRgb(40, 158, 220));
    Retangulo(p, area.adjusted(1, 1, -1, -1), kRaio + 1, kBandeja, kBandeja);
}

void BotaoDoMenu(QPainter &p, int n, const CoresBotao &cores, QStringView texto)
{
    const QRectF area(kMenuX, kMenuY + kMenuPasso * n, kMenuLargura, kMenuAltura);
    Retangulo(p, area.adjusted(-1, -1, 1, 2), kRaio + 1, qRgb(0, 88, 146), qRgb(0, 88, 146));
    Botao(p, area, cores, texto);
}

void BoiaSalvaVidas(QPainter &p, QPointF centro, double raio)
{
    QPainterPath anel;
    anel.addEllipse(centro, raio, raio);
    QPainterPath furo;
    furo.addEllipse(centro, raio * 0.44, raio * 0.44);
    anel = anel.subtracted(furo);
    p.fillPath(anel, QColor(kBranco));
    for (int n = 0; n < 4; ++n) {
        QPainterPath fatia;
        fatia.moveTo(centro);
        fatia.arcTo(QRectF(centro.x() - raio, centro.y() - raio, raio * 2, raio * 2), 90 * n + 20,
                    50);
        fatia.closeSubpath();
        p.fillPath(anel.intersected(fatia), QColor(qRgb(232, 92, 44)));
    }
}

/// Crossing cells in the ground's own tones, for places without controls: one for each # of
/// `linhas`.
void CelulasAoFundo(QPainter &p, QPointF canto, double lado, QRgb cor,
                    std::span<const QStringView> linhas)
{
    for (size_t y = 0; y < linhas.size(); ++y) {
        for (qsizetype x = 0; x < linhas[y].size(); ++x) {
            if (linhas[y][x] == u'#') {
                const QPointF celula =
                    canto + QPointF(static_cast<double>(x), static_cast<double>(y)) * lado;
                Retangulo(p, QRectF(celula, QSizeF(lado - 2, lado - 2)), 2, cor, cor);
            }
        }
    }
}

void FechaDialogo(QPainter &p, int largura)
{
    BotaoRedondo(p, QRectF(largura - 22, 5, 16, 16), SinalRedondo::Cruz);
}

} // namespace

void PintaFrmSplash(QPainter &p)
{
    const QRectF tudo(0, 0, 361, 90);
    p.fillRect(tudo, QColor(qRgb(46, 82, 130)));
    p.fillRect(tudo.adjusted(1, 1, -1, -1), QColor(qRgb(214, 228, 244)));
    p.fillRect(tudo.adjusted(4, 4, -4, -4), QColor(kCorpoAbertura));
    const EstiloLetra estilo{.altura = 30, .peso = 5.5, .espaco = 4};
    TextoNoMeio(p, 180.5, 64, u"QUADRELO", estilo, qRgb(40, 72, 116));
    TextoNoMeio(p, 180.5, 62.5, u"QUADRELO", estilo, kBranco);
    const EstiloLetra legenda{.altura = 7, .peso = 1.25, .espaco = 2.5};
    TextoNoMeio(p, 180.5, 79, u"PALAVRAS CRUZADAS", legenda, kBranco);
    p.fillRect(QRectF(54, 75, 44, 1), QColor(qRgb(150, 182, 220)));
    p.fillRect(QRectF(263, 75, 44, 1), QColor(qRgb(150, 182, 220)));
}

void PintaForm1(QPainter &p)
{
    PintaMoldura(p, {652, 499}, kCorpoPrincipal);

    Marca(p, 10, 7, 18, kBranco);
    const EstiloLetra titulo{.altura = 13, .peso = 3, .espaco = 2, .grade = true};
    const QPainterPath nome = CaminhoTexto(u"QUADRELO", titulo);
    p.fillPath(nome.translated(36, 23), QColor(kBorda));
    p.fillPath(nome.translated(36, 22), QColor(kBranco));
    BotaoRedondo(p, {614, 2, 16, 16}, SinalRedondo::Informacao);
    BotaoRedondo(p, {631, 2, 16, 16}, SinalRedondo::Cruz);

    FundoDoMenu(p);
    for (int n = 0; n < 6; ++n) {
        BotaoDoMenu(p, n, kBotaoAzul, kMenu[static_cast<size_t>(n)]);
    }

    Retangulo(p, {525, 337, 111, 27}, kRaio, kSombra, qRgb(40, 158, 220));
    Retangulo(p, {526, 338, 109, 25}, kRaio - 1, qRgb(0, 78, 138), qRgb(0, 78, 138));
    BoiaSalvaVidas(p, {540, 350.5}, 9);

    constexpr std::array<QStringView, 4> kCelulas = {u"#..#...", u"#####.#", u"#..#..#",
                                                     u"...####"};
    CelulasAoFundo(p, {518, 373}, 18, kBandeja, kCelulas);

    for (int n = 0; n < kCaixas; ++n) {
        Caixa(p, {kCaixaX + kCaixaPasso * n, kCaixaY, kCaixaLado, kCaixaLado});
    }
    Caixa(p, {kRelogioX, kCaixaY, kRelogioLargura, kCaixaLado});
}

void PintaImage6(QPainter &p)
{
    p.translate(-525, -47);
    p.fillRect(QRectF(520, 40, 130, 50), QColor(kCorpoPrincipal));
    FundoDoMenu(p);
    BotaoDoMenu(p, 0, kBotaoLaranja, u"Desistir");
}

void PintaFrmCarregar(QPainter &p)
{
    PintaMoldura(p, {251, 373}, kCorpoLista);
    FechaDialogo(p, 251);
    for (int n = 0; n <= kLugares; ++n) {
        p.fillRect(QRectF(14, kListaY + kListaPasso * n, 223, 1), QColor(qRgb(222, 218, 172)));
    }
    Retangulo(p, {14, 325, 223, 25}, kRaio, qRgb(196, 190, 134), qRgb(170, 164, 108));
    Retangulo(p, {15, 326, 221, 22}, kRaio - 1, qRgb(255, 250, 206), qRgb(240, 232, 174));
}

void PintaFrmSalvar2(QPainter &p)
{
    PintaMoldura(p, {283, 99}, kCorpoNome);
    FechaDialogo(p, 283);
}

void PintaFrmHanking(QPainter &p)
{
    PintaMoldura(p, {385, 206}, kCorpoRanking);
    FechaDialogo(p, 385);
    // Midway between the rows, which are not evenly spaced.
    constexpr std::array<double, 6> kRegras = {41, 68, 95, 123, 151, 179};
    for (const double y : kRegras) {
        p.fillRect(QRectF(15, y, 355, 1), QColor(qRgb(44, 52, 64)));
    }
}
