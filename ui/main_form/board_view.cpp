#include "ui/main_form/board_view.h"

#include "ui/toolkit/progress_bar.h"

namespace {

/// A shadow stands this far to the right of its cell and below it, in pixels.
constexpr float kDeslocamentoSombra = 2;
/// The number of a word that runs down stands this far right of its cell's left edge, in pixels.
constexpr float kRecuoNumero = 5;

} // namespace

void VistaTabuleiro::CarregaQuadrados()
{
    // Neighbours share a line, so the pitch is one less than the size: a pixel of the design, which
    // the DPI adjustment will bring back to one pixel of the screen.
    const float linha = static_cast<float>(d.c.form.Dpi()) / toolkit::kDpiPadrao;
    int coluna = 0;
    for (int i = 1; i <= kCelulas; ++i) {
        toolkit::TextBox &celula = d.c.Text1.Load(i);
        ++coluna;
        if (i > 1) {
            const toolkit::TextBox &anterior = d.c.Text1(i - 1);
            if (coluna > kColunas) {
                coluna = 1;
                celula.SetTop(anterior.Top() + anterior.Height() - linha);
                celula.SetLeft(d.c.Text1(i - kColunas).Left());
            } else {
                celula.SetTop(anterior.Top());
                celula.SetLeft(anterior.Left() + anterior.Width() - linha);
            }
        }
        celula.SetText({});
    }
}

void VistaTabuleiro::wzera()
{
    // A cell that is hidden with the focus would hand it to the next one.
    d.c.Picture1.SetFocus();
    for (int n = 1; n <= kItens; ++n) {
        d.c.Lbt(n).SetFontBold(false);
        d.c.Lbt(n).SetForeColor(toolkit::kPreto);
        d.c.Lbt(n).SetVisible(true);
        d.c.LB(n).SetVisible(false);
        d.c.ImgR.Unload(n);
    }
    for (int i = 1; i <= kCelulas; ++i) {
        d.c.Text1(i).SetVisible(false);
        d.c.Text1(i).SetForeColor(toolkit::kPreto);
        d.c.PicSombra.Unload(i);
    }
    ZeraTabuleiro(d.tabuleiro);
}

void VistaTabuleiro::CentraGrade()
{
    int primeira = 0;
    int ultima = 0;
    for (int i = 1; i <= kCelulas; ++i) {
        if (d.Ocupada(i)) {
            primeira = primeira == 0 ? i : primeira;
            ultima = i;
        }
    }
    float topo = 0;
    float base = 0;
    float esquerda = 0;
    float direita = 0;
    if (primeira != 0) {
        topo = d.c.Text1(primeira).Top();
        base = d.c.Text1(ultima).Top() + d.c.Text1(ultima).Height();
        const toolkit::TextBox &maisAEsquerda = d.c.Text1(PrimeiraVisivel(true));
        const toolkit::TextBox &maisADireita = d.c.Text1(PrimeiraVisivel(false));
        esquerda = maisAEsquerda.Left();
        direita = maisADireita.Left() + maisADireita.Width();
    }
    d.c.Pic_q2.SetLeft((d.c.Pic_q2.Width() - (direita - esquerda)) / 2 - esquerda);
    d.c.Pic_q2.SetTop((d.c.Pic_q2.Height() - (base - topo)) / 2 - topo);
}

/// First occupied cell, column by column from the left or from the right. There must be one.
int VistaTabuleiro::PrimeiraVisivel(bool daEsquerda) const
{
    for (int vez = 1; vez <= kColunas; ++vez) {
        const int coluna = daEsquerda ? vez : kColunas + 1 - vez;
        for (int i = coluna; i <= kCelulas; i += kColunas) {
            if (d.Ocupada(i)) {
                return i;
            }
        }
    }
    return 0;
}

void VistaTabuleiro::MostraProgresso(float fracao)
{
    ::MostraProgresso(d.c.PicUpdate, fracao);
}

void VistaTabuleiro::MostraCelula(int i)
{
    toolkit::TextBox &celula = d.c.Text1(i);
    const bool fixa = d.Quadrado(i).Fixa;
    celula.SetBackColor(fixa ? kCorFixa : kCorLivre);
    celula.SetText(fixa ? QString(d.Quadrado(i).Letra) : QString());
    celula.SetVisible(true);
}

void VistaTabuleiro::MostraSombra(int i)
{
    if (d.c.PicSombra.ExisteObjeto(i)) {
        return;
    }
    toolkit::PictureBox &sombra = d.c.PicSombra.Load(i);
    sombra.SetTop(d.c.Text1(i).Top() + kDeslocamentoSombra);
    sombra.SetLeft(d.c.Text1(i).Left() + kDeslocamentoSombra);
    sombra.SetVisible(true);
}

void VistaTabuleiro::MostraNumero(int n)
{
    toolkit::Label &numero = d.c.LB(n);
    const RegistroItem &item = d.Item(n);
    numero.SetCaption(QString::number(n));
    const toolkit::TextBox &celula = d.c.Text1(item.Ponto);
    if (item.Sentido == u'H') {
        numero.SetTop(celula.Top());
        numero.SetLeft(celula.Left() - numero.Width());
    } else if (item.Sentido == u'V') {
        numero.SetTop(celula.Top() - numero.Height());
        numero.SetLeft(celula.Left() + kRecuoNumero);
    }
    numero.SetVisible(true);
}
