#include "ui/gameplay/word_check.h"

#include "core/machine/shared_routines.h"
#include "core/machine/sound.h"
#include "core/machine/texts.h"

#include <utility>

namespace {

/// Places and sizes of a mark, in twips.
constexpr float kRecuoMarca = 30;
constexpr float kUniao = 1;

} // namespace

void Verificacao::VerificaPalavra(int i)
{
    while (i != 0) {
        i = Julga(i);
    }
}

void Verificacao::ConfereSelecao(Achado achado)
{
    if (achado == Achado::NenhumaLivre) {
        VerificaPalavra(d.estado.item);
    }
}

/// Gives the item that is to be checked next, or 0.
int Verificacao::Julga(int i)
{
    d.estado.Focus = 0;
    d.c.Picture1.SetFocus();
    QString digitado = Digitado(d.Item(i));
    QString palavra = d.Item(i).Palavra;
    const bool certa = ComparaPalavra(digitado, palavra);
    if (AoJulgar) {
        AoJulgar(i, certa);
    }
    if (certa) {
        return Certa(i);
    }
    Errada(i);
    return 0;
}

QString Verificacao::Digitado(const RegistroItem &item) const
{
    QString texto;
    for (int k = 0; k < item.Palavra.size(); ++k) {
        texto += d.c.Text1(CelulaDaLetra(item, k)).Text();
    }
    return texto;
}

void Verificacao::Errada(int i)
{
    TocaSom(d.valores, d.ambiente, Sorteia(*d.ambiente.acaso, 50) ? Som::Erro1 : Som::Erro2);
    d.estado.NoClick = false;
    const RegistroItem &item = d.Item(i);
    for (int k = 0; k < item.Palavra.size(); ++k) {
        const int c = CelulaDaLetra(item, k);
        if (!d.Quadrado(c).Fixa) {
            d.c.Text1(c).SetText({});
            d.c.Text1(c).SetBackColor(kCorLivre);
        }
    }
    m_selecao.Lbt_Click(i);
}

/// As Julga.
int Verificacao::Certa(int i)
{
    TocaSom(d.valores, d.ambiente, Sorteia(*d.ambiente.acaso, 60) ? Som::Acerto1 : Som::Acerto2);
    d.estado.NoClick = false;
    Fixa(d.Item(i));
    d.Item(i).ItemResolvido = true;
    SomeNoTab(i);
    const int partida = d.tabuleiro.Partida;
    d.ambiente.deixaEventos();
    // Meanwhile another board can have come, the player have given up, or help have ended the game.
    if (d.tabuleiro.Partida != partida || d.estado.TudoResolvido) {
        return 0;
    }
    MostraDesistir();
    if (ContaResolvidos(d.tabuleiro) == kItens) {
        Termina();
        return 0;
    }
    d.c.Picture1.SetFocus();
    return m_selecao.Lbt_Click(ProximoItem(i)) == Achado::NenhumaLivre ? d.estado.item : 0;
}

/// Locks the cells of a right word. Each keeps the letter as it was typed; a pasted text can have
/// left cells with several letters, with none or with a neighbour's, and those take the word's own.
void Verificacao::Fixa(const RegistroItem &item)
{
    const int selecionado = std::exchange(d.estado.item, 0);
    for (int k = 0; k < item.Palavra.size(); ++k) {
        const int c = CelulaDaLetra(item, k);
        d.c.Text1(c).SetBackColor(kCorFixa);
        d.Quadrado(c).Fixa = true;
        QString digitada = d.c.Text1(c).Text();
        QString propria = item.Palavra[k];
        if (!ComparaPalavra(digitada, propria)) {
            d.c.Text1(c).SetText(item.Palavra[k]);
        }
    }
    d.estado.item = selecionado;
}

void Verificacao::MostraDesistir()
{
    d.MostraDesistir(ContaResolvidos(d.tabuleiro) >= kItensParaDesistir);
}

/// The item to go on with behind the solved item `i`: the next one if it is open, else the lowest
/// open one.
int Verificacao::ProximoItem(int i) const
{
    if (i < kItens && !d.Item(i + 1).ItemResolvido) {
        return i + 1;
    }
    return PrimeiroAberto(d.tabuleiro);
}

void Verificacao::Termina()
{
    d.c.Timer1.SetLigado(false);
    d.estado.TudoResolvido = true;
    d.c.Label4.SetVisible(false);
    d.MostraDesistir(false);
    if (!VerificaRecords(SegundosDeJogo(d.valores, d.ambiente.Agora()))) {
        d.ambiente.mensagem({texto::Parabens()});
    }
}

void Verificacao::SomeNoTab(int i)
{
    toolkit::Image &marca = d.c.ImgR.Load(i);
    marca.SetLeft(d.c.Lbt(i).Left() - kRecuoMarca);
    const bool esquerda = i == 1 || d.Item(i - 1).ItemResolvido;
    const bool direita = i == kItens || d.Item(i + 1).ItemResolvido;
    marca.SetWidth(marca.Width() + (esquerda ? kUniao : 0) + (direita ? kUniao : 0));
    marca.SetLeft(marca.Left() - (esquerda ? kUniao : 0));
    marca.SetVisible(true);
    marca.ZOrderFrente();
    d.c.Lbt(i).SetVisible(false);
}
