#include "ui/gameplay/selection.h"

#include "core/machine/sound.h"

namespace {

/// The marker stands this far left of the button, in twips.
constexpr float kRecuoMarca = 30;

} // namespace

Achado Selecao::Lbt_Click(int Index)
{
    if (d.estado.NoClick) {
        TocaSom(d.valores, d.ambiente, Som::Selecao);
    }
    d.estado.NoClick = true;
    // Where no game stands there is no item behind the buttons.
    if (Index == 0 || Index > d.tabuleiro.QtdItens) {
        return Achado::Nada;
    }
    if (d.valores.Desistiu) {
        d.c.Label1.SetCaption(d.Item(Index).Dica);
        return Achado::Nada;
    }
    if (d.Item(Index).ItemResolvido) {
        return Achado::Nada;
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
    return livre != 0 ? Achado::Cursor : Achado::NenhumaLivre;
}

Achado Selecao::CliqueNoBotao(int Index)
{
    return d.estado.Aguardando ? Achado::Nada : Lbt_Click(Index);
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

Achado Selecao::Text1_MouseDown(int Index)
{
    const int escolhido = d.valores.Desistiu ? 0 : Escolhe(LeItens(d.Quadrado(Index).Itens));
    return escolhido != 0 ? Lbt_Click(escolhido) : Achado::Nada;
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
