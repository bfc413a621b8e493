#include "ui/gameplay/selection.h"

#include "core/machine/sound.h"

namespace {

/// The marker stands this far left of the button, in twips.
constexpr float kRecuoMarca = 30;

} // namespace

void Selecao::Lbt_Click(int Index)
{
    if (d.estado.NoClick) {
        TocaSom(d.valores, d.ambiente, u"select.wav");
    }
    d.estado.NoClick = true;
    // Where no game stands there is no item behind the buttons.
    if (Index == 0 || Index > d.tabuleiro.QtdItens) {
        return;
    }
    if (d.valores.Desistiu) {
        d.c.Label1.SetCaption(d.Item(Index).Dica);
        return;
    }
    if (d.Item(Index).ItemResolvido) {
        return;
    }
    toolkit::Label &botao = d.c.Lbt(Index);
    d.c.Image1.SetLeft(botao.Left() - kRecuoMarca);
    d.c.Image1.ZOrderFundo();
    d.c.Image1.SetVisible(true);

    Desmarca(d.estado.item);
    const int livre = Marca(Index);
    d.estado.item = Index;
    d.c.Label1.SetCaption(d.Item(Index).Dica);
    d.estado.Focus = livre;
    if (livre != 0) {
        d.c.Text1(livre).SetFocus();
    } else {
        d.c.Picture1.SetFocus();
    }
    botao.SetForeColor(toolkit::kBranco);
    botao.SetFontBold(true);
    if (livre == 0 && SemCelulaLivre) {
        SemCelulaLivre(Index);
    }
}

void Selecao::CliqueNoBotao(int Index)
{
    if (!d.c.Picespere.Visible()) {
        Lbt_Click(Index);
    }
}

void Selecao::Desmarca(int item)
{
    if (item == 0) {
        return;
    }
    d.c.Lbt(item).SetForeColor(toolkit::kPreto);
    d.c.Lbt(item).SetFontBold(false);
    const RegistroItem &registro = d.Item(item);
    for (int k = 0; k < registro.Palavra.size(); ++k) {
        const int i = CelulaDaLetra(registro, k);
        if (!d.Quadrado(i).Fixa) {
            d.c.Text1(i).SetText({});
            d.c.Text1(i).SetBackColor(kCorLivre);
        }
    }
}

/// Tints the free cells of an item; gives the first of them, 0 if there is none.
int Selecao::Marca(int item)
{
    const RegistroItem &registro = d.Item(item);
    int livre = 0;
    for (int k = 0; k < registro.Palavra.size(); ++k) {
        const int i = CelulaDaLetra(registro, k);
        if (!d.Quadrado(i).Fixa) {
            d.c.Text1(i).SetBackColor(kCorSelecionada);
            livre = livre == 0 ? i : livre;
        }
    }
    return livre;
}

void Selecao::Text1_MouseDown(int Index)
{
    if (d.valores.Desistiu) {
        return;
    }
    if (const int escolhido = Escolhe(LeItens(d.Quadrado(Index).Itens)); escolhido != 0) {
        Lbt_Click(escolhido);
    }
}

/// The item that a press on a cell of `itens` selects, or 0.
int Selecao::Escolhe(const ItensDaCelula &itens)
{
    const auto aberto = [this](int n) { return n != 0 && !d.Item(n).ItemResolvido; };
    const bool primeiro = aberto(itens.primeiro);
    const bool segundo = aberto(itens.segundo);
    if (primeiro && segundo) {
        const int escolhido = m_alternaSentido ? itens.primeiro : itens.segundo;
        m_alternaSentido = !m_alternaSentido;
        return escolhido;
    }
    return primeiro ? itens.primeiro : segundo ? itens.segundo : 0;
}
