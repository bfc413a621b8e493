#include "tools/art/lettering.h"

#include "tools/art/letter_pen.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <QtGlobal>
#include <QTransform>

namespace {

/// One letter: its width and the room it keeps at its sides, in capital heights.
struct Letra
{
    char16_t letra;
    double largura, esquerda, direita;
    void (*desenha)(Pena &);
};

// Sides of letters: beside an upright stroke, beside a bow, beside a slope.
constexpr double kReto = 0.10;
constexpr double kCurvo = 0.055;
constexpr double kInclinado = 0.015;

/// Bow of a letter with a stem on its left, from level `topo` to level `pe`; `raio` is its width.
void Barriga(Pena &p, double topo, double pe, double raio)
{
    const double meio = (topo + pe) / 2;
    p.Risca(
        Linha(p.l, topo).Ate(p.r - raio, topo).Deita(p.r, meio).Ergue(p.r - raio, pe).Ate(p.l, pe));
}

/// The double curve of S and s between the levels `topo` and `pe`.
void Serpente(Pena &p, double topo, double pe)
{
    const double meio = (topo + pe) / 2;
    const double alto = topo + (pe - topo) * 0.255;
    const double baixo = pe - (pe - topo) * 0.255;
    const double braco = (p.r - p.l) / 2;
    const double folga = (pe - topo) * 0.035;
    Linha linha(p.r - braco * 0.04, alto - folga);
    linha.Ergue(p.c, topo).Deita(p.l, alto);
    linha.Curva({p.l, alto + (meio - alto) * 0.85},
                {p.c - braco * 0.52, meio - (meio - alto) * 0.22}, {p.c, meio});
    linha.Curva({p.c + braco * 0.52, meio + (baixo - meio) * 0.22},
                {p.r, baixo - (baixo - meio) * 0.85}, {p.r, baixo});
    linha.Ergue(p.c, pe).Deita(p.l + braco * 0.04, baixo + folga);
    p.Risca(linha);
}

/// Two slopes that meet in the middle of level `ponta` and stand apart at level `abertura`.
void Cunha(Pena &p, double ponta, double abertura)
{
    double corte = p.peso;
    for (int volta = 0; volta < 4; ++volta) {
        corte = p.Corte(p.R / 2 - corte / 2, ponta - abertura);
    }
    p.Inclina(p.c - corte / 2, ponta, 0, abertura);
    p.Inclina(p.c - corte / 2, ponta, p.R - corte, abertura);
}

/// One slope from corner to corner of the letter's box.
void Diagonal(Pena &p, bool desce, double topo, double pe)
{
    double corte = p.peso;
    for (int volta = 0; volta < 4; ++volta) {
        corte = p.Corte(p.R - corte, pe - topo);
    }
    p.Inclina(desce ? 0 : p.R - corte, topo, desce ? p.R - corte : 0, pe);
}

void Anel(Pena &p, double topo, double pe)
{
    p.Elipse(p.c, (topo + pe) / 2, (p.r - p.l) / 2, (pe - topo) / 2);
}

void HasteEsquerda(Pena &p, double topo)
{
    p.Risca(Linha(p.l, topo).Ate(p.l, 0));
}
void HasteDireita(Pena &p, double topo)
{
    p.Risca(Linha(p.r, topo).Ate(p.r, 0));
}

void Perna(Pena &p, double deX, double deY)
{
    const double corte = p.Corte(p.R - p.peso - deX, -deY);
    p.Inclina(deX, deY, p.R - corte, 0);
}

const std::array kLetras = {
    Letra{u'A', 0.92, kInclinado, kInclinado,
          [](Pena &p) {
              Cunha(p, p.T, 0);
              p.Risca(Linha(p.R * 0.22, p.T * 0.29).Ate(p.R * 0.78, p.T * 0.29));
          }},
    Letra{u'C', 0.92, kCurvo, kCurvo, [](Pena &p) { p.Arco(p.to, p.bo, 43, 274); }},
    Letra{u'D', 0.86, kReto, kCurvo,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              Barriga(p, p.t, p.b, std::min((p.b - p.t) / 2, p.r - p.l));
          }},
    Letra{u'E', 0.64, kReto, 0.04,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              p.Risca(Linha(0, p.t).Ate(p.R, p.t));
              p.Risca(Linha(0, p.T * 0.51).Ate(p.R * 0.92, p.T * 0.51));
              p.Risca(Linha(0, p.b).Ate(p.R, p.b));
          }},
    Letra{u'G', 0.96, kCurvo, kReto,
          [](Pena &p) {
              p.Arco(p.to, p.bo, 43, 317);
              p.Risca(Linha(p.R, p.T * 0.47).Ate(p.c * 1.02, p.T * 0.47));
          }},
    Letra{u'I', 0.0, kReto, kReto, [](Pena &p) { p.Risca(Linha(p.c, p.T).Ate(p.c, 0)); }},
    Letra{u'J', 0.55, 0.04, kReto,
          [](Pena &p) {
              const double raio = (p.r - p.l) / 2 * 1.15;
              p.Risca(Linha(p.r, p.T).Ate(p.r, p.bo - raio).Ergue(p.c, p.bo).Deita(p.l, p.bo - raio * 0.9));
          }},
    Letra{u'L', 0.58, kReto, 0.02,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              p.Risca(Linha(0, p.b).Ate(p.R, p.b));
          }},
    Letra{u'N', 0.86, kReto, kReto,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              HasteDireita(p, p.T);
              Diagonal(p, true, p.T, 0);
          }},
    Letra{u'O', 1.04, kCurvo, kCurvo, [](Pena &p) { Anel(p, p.to, p.bo); }},
    Letra{u'P', 0.70, kReto, 0.03,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              Barriga(p, p.t, p.T * 0.40, (p.T * 0.40 - p.t) / 2);
          }},
    Letra{u'Q', 1.04, kCurvo, kCurvo,
          [](Pena &p) {
              Anel(p, p.to, p.bo);
              const double corte = p.Corte(p.R * 0.36, -p.T * 0.40);
              p.Inclina(p.R * 0.60, p.T * 0.36, p.R * 1.01 - corte, -p.T * 0.06);
          }},
    Letra{u'R', 0.74, kReto, 0.02,
          [](Pena &p) {
              const double meio = p.T * 0.44;
              HasteEsquerda(p, p.T);
              Barriga(p, p.t, meio, (meio - p.t) / 2);
              Perna(p, p.R * 0.36, meio);
          }},
    Letra{u'S', 0.70, kCurvo, kCurvo, [](Pena &p) { Serpente(p, p.to, p.bo); }},
    Letra{u'T', 0.74, 0.02, 0.02,
          [](Pena &p) {
              p.Risca(Linha(0, p.t).Ate(p.R, p.t));
              p.Risca(Linha(p.c, p.T).Ate(p.c, 0));
          }},
    Letra{u'U', 0.84, kReto, kReto,
          [](Pena &p) {
              const double raio = (p.r - p.l) / 2 * 1.08;
              p.Risca(Linha(p.l, p.T)
                          .Ate(p.l, p.bo - raio)
                          .Ergue(p.c, p.bo)
                          .Deita(p.r, p.bo - raio)
                          .Ate(p.r, p.T));
          }},
    Letra{u'V', 0.92, kInclinado, kInclinado, [](Pena &p) { Cunha(p, 0, p.T); }},
    Letra{u'Z', 0.74, 0.04, 0.04,
          [](Pena &p) {
              p.Risca(Linha(0, p.t).Ate(p.R, p.t));
              p.Risca(Linha(0, p.b).Ate(p.R, p.b));
              Diagonal(p, false, p.T, 0);
          }},
    Letra{u'a', 0.71, kCurvo, kReto,
          [](Pena &p) {
              Anel(p, p.xo, p.bo);
              HasteDireita(p, p.X);
          }},
    Letra{u'b', 0.71, kReto, kCurvo,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              Anel(p, p.xo, p.bo);
          }},
    Letra{u'c', 0.64, kCurvo, 0.03, [](Pena &p) { p.Arco(p.xo, p.bo, 46, 268); }},
    Letra{u'd', 0.71, kCurvo, kReto,
          [](Pena &p) {
              Anel(p, p.xo, p.bo);
              HasteDireita(p, p.T);
          }},
    Letra{u'e', 0.69, kCurvo, kCurvo,
          [](Pena &p) {
              const double meio = (p.x + p.b) / 2;
              p.Arco(p.xo, p.bo, 0, 312);
              p.Risca(Linha(p.l, meio).Ate(p.R - p.peso * 0.08, meio));
          }},
    Letra{u'f', 0.44, 0.02, 0.00,
          [](Pena &p) {
              const double haste = p.R * 0.18 + p.peso / 2;
              p.Risca(Linha(p.R, p.t).Ate(p.R * 0.92, p.t).Deita(haste, p.t + p.R * 0.55).Ate(haste, 0));
              p.Risca(Linha(0, p.x).Ate(p.R * 0.96, p.x));
          }},
    Letra{u'g', 0.71, kCurvo, kReto,
          [](Pena &p) {
              Anel(p, p.xo, p.bo);
              const double raio = p.R * 0.36;
              p.Risca(Linha(p.r, p.X)
                          .Ate(p.r, p.d - raio)
                          .Ergue(p.r - raio, p.d)
                          .Ate(p.l + p.peso * 0.1, p.d));
          }},
    Letra{u'i', 0.0, kReto, kReto,
          [](Pena &p) {
              p.Risca(Linha(p.c, p.X).Ate(p.c, 0));
              p.Risca(Linha(p.c, p.T).Ate(p.c, p.T + p.peso));
          }},
    Letra{u'k', 0.66, kReto, 0.0,
          [](Pena &p) {
              HasteEsquerda(p, p.T);
              const double meio = p.X * 0.34;
              const double corte = p.Corte(p.R * 0.45, meio - p.X);
              p.Inclina(p.R - corte - p.R * 0.02, p.X, p.peso * 0.7, meio);
              Perna(p, p.R * 0.34, p.X * 0.55);
          }},
    Letra{u'l', 0.0, kReto, kReto, [](Pena &p) { p.Risca(Linha(p.c, p.T).Ate(p.c, 0)); }},
    Letra{u'n', 0.64, kReto, kReto,
          [](Pena &p) {
              const double raio = (p.r - p.l) / 2 * 1.1;
              HasteEsquerda(p, p.X);
              p.Risca(Linha(p.l, p.xo + raio).Ergue(p.c, p.xo).Deita(p.r, p.xo + raio).Ate(p.r, 0));
          }},
    Letra{u'o', 0.74, kCurvo, kCurvo, [](Pena &p) { Anel(p, p.xo, p.bo); }},
    Letra{u'r', 0.46, kReto, 0.0,
          [](Pena &p) {
              const double raio = p.R * 0.62;
              HasteEsquerda(p, p.X);
              p.Risca(Linha(p.l, p.x + raio).Ergue(p.l + raio, p.x).Ate(p.R, p.x));
          }},
    Letra{u's', 0.56, 0.045, 0.045, [](Pena &p) { Serpente(p, p.xo, p.bo); }},
    Letra{u't', 0.46, 0.02, 0.03,
          [](Pena &p) {
              const double haste = p.R * 0.18 + p.peso / 2;
              const double raio = p.R * 0.46;
              p.Risca(Linha(haste, p.T * 0.94).Ate(haste, p.b - raio).Ergue(haste + raio, p.b).Ate(p.R, p.b));
              p.Risca(Linha(0, p.x).Ate(p.R, p.x));
          }},
    Letra{u'u', 0.64, kReto, kReto,
          [](Pena &p) {
              const double raio = (p.r - p.l) / 2 * 1.1;
              HasteDireita(p, p.X);
              p.Risca(Linha(p.l, p.X).Ate(p.l, p.bo - raio).Ergue(p.c, p.bo).Deita(p.r, p.bo - raio));
          }},
    Letra{u'v', 0.70, 0.0, 0.0, [](Pena &p) { Cunha(p, 0, p.X); }},
};

constexpr double kBranca = 0.34;

/// Pairs that would gape, in capital heights.
struct Par
{
    char16_t primeira, segunda;
    double ajuste;
};
constexpr std::array kPares = {
    Par{u'A', u'V', -0.13}, Par{u'V', u'A', -0.13}, Par{u'L', u'O', -0.05}, Par{u'L', u'A', 0.02},
    Par{u'P', u'A', -0.10}, Par{u'T', u'R', 0.01},  Par{u'U', u'A', -0.03}, Par{u'A', u'D', 0.01},
    Par{u'R', u'A', 0.02},  Par{u'o', u'v', -0.03}, Par{u'v', u'o', -0.03}, Par{u'r', u'd', -0.01},
    Par{u'a', u'v', -0.01}, Par{u'r', u' ', -0.06}, Par{u'P', u'o', -0.03}, Par{u'f', u'a', -0.02},
};

const Letra *AchaLetra(char16_t letra)
{
    const auto *achada = std::find_if(kLetras.begin(), kLetras.end(),
                                      [letra](const Letra &l) { return l.letra == letra; });
    return achada == kLetras.end() ? nullptr : achada;
}

double AjusteDoPar(char16_t primeira, char16_t segunda)
{
    for (const Par &par : kPares) {
        if (par.primeira == primeira && par.segunda == segunda) {
            return par.ajuste;
        }
    }
    return 0;
}

double Ajustado(double valor, bool grade)
{
    return grade ? std::round(valor) : valor;
}

} // namespace

QPainterPath CaminhoTexto(QStringView texto, const EstiloLetra &estilo)
{
    QPainterPath caminho;
    caminho.setFillRule(Qt::WindingFill);
    double x = 0;
    double sobra = 0;
    for (qsizetype k = 0; k < texto.size(); ++k) {
        const char16_t seguinte = k + 1 < texto.size() ? texto[k + 1].unicode() : u'\0';
        const Letra *letra = AchaLetra(texto[k].unicode());
        if (letra == nullptr) {
            Q_ASSERT_X(texto[k] == u' ', "CaminhoTexto", "the lettering lacks a character");
            x += kBranca * estilo.altura + sobra + estilo.espaco;
            sobra = 0;
            continue;
        }
        x = k == 0 ? 0 : Ajustado(x + sobra + letra->esquerda * estilo.altura, estilo.grade);
        const double largura =
            std::max(Ajustado(letra->largura * estilo.altura, estilo.grade), estilo.peso);
        Pena pena(largura, estilo.altura, estilo.peso, estilo.grade);
        letra->desenha(pena);
        caminho.addPath(QTransform::fromTranslate(x, 0).map(pena.Contorno()));
        x += largura + estilo.espaco;
        sobra = (letra->direita + AjusteDoPar(texto[k].unicode(), seguinte)) * estilo.altura;
    }
    return caminho;
}
