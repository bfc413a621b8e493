#include "ui/gameplay/hint_bubble.h"

namespace {

/// What the bubble adds to its text, in pixels.
constexpr float kMargemLargura = 18;
constexpr float kMargemAltura = 6;

} // namespace

void BalaoDica::Text1_MouseMove(int Index)
{
    const int gesto = ++m_gesto;
    if (d.valores.Desistiu) {
        return;
    }
    const QString texto = TextoDe(Index);
    // The same text is not shown twice, even if the bubble has gone out in the meantime.
    if (texto.isEmpty() || texto == d.estado.avisoa) {
        return;
    }
    d.c.Picture2.SetVisible(false);
    d.ambiente.deixaEventos();
    // Meanwhile the mouse can have moved on, and the word been solved or given up.
    if (m_gesto != gesto || TextoDe(Index) != texto) {
        return;
    }
    d.c.LbHint.SetCaption(texto);
    Coloca(Index);
    d.c.Picture2.ZOrderFrente();
    d.c.Timer2.SetLigado(false);
    d.c.Timer3.SetLigado(true);
}

/// The bubble's text for a cell, with the arrows set; "" if there is nothing to show, with the
/// bubble hidden.
QString BalaoDica::TextoDe(int Index)
{
    const ItensDaCelula itens = LeItens(d.Quadrado(Index).Itens);
    if (itens.primeiro == 0) {
        return {};
    }
    if (itens.segundo != 0) {
        return TextoDoCruzamento(itens);
    }
    const RegistroItem &item = d.Item(itens.primeiro);
    if (item.ItemResolvido) {
        d.c.Picture2.SetVisible(false);
        return {};
    }
    d.c.ImgHintDire.SetVisible(false);
    d.c.ImgHintDire2.SetVisible(false);
    return item.Dica;
}

QString BalaoDica::TextoDoCruzamento(const ItensDaCelula &itens)
{
    const RegistroItem &a = d.Item(itens.primeiro);
    const RegistroItem &b = d.Item(itens.segundo);
    if (a.ItemResolvido && b.ItemResolvido) {
        d.c.Picture2.SetVisible(false);
        d.c.ImgHintDire.SetVisible(false);
        return {};
    }
    if (a.ItemResolvido || b.ItemResolvido) {
        const RegistroItem &aberto = a.ItemResolvido ? b : a;
        d.c.ImgHintDire.SetVisible(aberto.Sentido == u'H');
        d.c.ImgHintDire2.SetVisible(aberto.Sentido == u'V');
        return aberto.Dica;
    }
    d.c.ImgHintDire2.SetVisible(false);
    d.c.ImgHintDire.SetVisible(true);
    return (a.Sentido == u'H' ? a : b).Dica + u'\r' + (b.Sentido == u'V' ? b : a).Dica;
}

/// Puts the bubble's lower left corner on the cell's upper right corner.
void BalaoDica::Coloca(int Index)
{
    toolkit::PictureBox &balao = d.c.Picture2;
    const float twips = toolkit::TwipsPorPixel(d.c.form.Dpi());
    balao.SetHeight((d.c.LbHint.Height() + kMargemAltura) * twips);
    balao.SetWidth((d.c.LbHint.Width() + kMargemLargura) * twips);

    const toolkit::TextBox &celula = d.c.Text1(Index);
    const float topo = celula.Top() + d.c.Pic_q2.Top();
    const float direita = celula.Left() + celula.Width() + d.c.Pic_q2.Left();
    balao.SetTop(topo * twips + d.c.Pic_q1.Top() - balao.Height());
    balao.SetLeft(direita * twips + d.c.Pic_q1.Left());
}

void BalaoDica::ForaDasCelulas()
{
    ++m_gesto;
    d.c.Picture2.SetVisible(false);
    d.estado.avisoa.clear();
    d.c.Timer3.SetLigado(false);
}

void BalaoDica::Timer3_Timer()
{
    d.c.Picture2.SetVisible(true);
    d.c.Timer3.SetLigado(false);
    d.c.Timer2.SetLigado(true);
    d.estado.avisoa = d.c.LbHint.Caption();
}

void BalaoDica::Timer2_Timer()
{
    d.c.Picture2.SetVisible(false);
    d.c.Timer2.SetLigado(false);
}
