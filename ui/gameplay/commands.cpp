#include "ui/gameplay/commands.h"

#include "core/machine/prices.h"
#include "core/machine/shared_routines.h"
#include "core/machine/sound.h"
#include "core/machine/texts.h"
#include "ui/gameplay/selection.h"
#include "ui/gameplay/word_check.h"

void Comandos::Label3_MouseDown(int Index)
{
    d.c.Label3[Index]->SetBorderStyle(1);
}

void Comandos::Label3_MouseUp(int Index)
{
    d.c.Label3[Index]->SetBorderStyle(0);
}

void Comandos::Label3_Click(int Index)
{
    TocaSom(d.valores, d.ambiente, Som::Clique);
    switch (Index) {
    case 0:
        PrimeiraEntrada();
        break;
    case 1:
        Reinicia();
        break;
    case 2:
        AbreCarregar();
        break;
    case 3:
        Salva();
        break;
    case 4:
        AbreRanking();
        break;
    default:
        d.ambiente.terminaProcesso();
        break;
    }
}

void Comandos::PrimeiraEntrada()
{
    // While a board is built or loaded no command acts, also when "Desistir" is still showing.
    if (d.estado.Aguardando) {
        return;
    }
    if (d.estado.PodeDesistir) {
        Desiste();
    } else {
        NovoJogo();
    }
}

void Comandos::Desiste()
{
    d.valores.Desistiu = true;
    d.MostraDesistir(false);
    for (int i = 1; i <= kCelulas; ++i) {
        if (i <= kItens) {
            d.Item(i).ItemResolvido = true;
        }
        CelulaQuadrado &celula = d.Quadrado(i);
        const QString letra = Maiusculas(celula.Letra);
        if (d.Ocupada(i) && !celula.Fixa && d.c.Text1(i).Text() != letra) {
            d.c.Text1(i).SetText(letra);
            d.c.Text1(i).SetForeColor(kCorRevelada);
        }
        celula.Itens.clear();
        celula.Fixa = true;
    }
    d.estado.TudoResolvido = true;
    if (AoDesistir) {
        AoDesistir();
    }
}

void Comandos::Reinicia()
{
    if (d.estado.TudoResolvido) {
        d.ambiente.mensagem({texto::JogoResolvido()});
        return;
    }
    if (!d.TemJogo()) {
        d.ambiente.mensagem({texto::SemJogo()});
        return;
    }
    for (int i = 1; i <= kCelulas; ++i) {
        d.c.Text1(i).SetText({});
        d.c.Text1(i).SetBackColor(kCorLivre);
        d.Quadrado(i).Fixa = false;
    }
    for (int n = 1; n <= kItens; ++n) {
        d.c.Lbt(n).SetFontBold(false);
        d.c.Lbt(n).SetForeColor(toolkit::kPreto);
        d.c.Lbt(n).SetVisible(true);
        d.c.ImgR.Unload(n);
        d.Item(n).ItemResolvido = false;
    }
    m_selecao.Lbt_Click(1);
}

void Comandos::Salva()
{
    if (d.estado.TudoResolvido) {
        d.ambiente.mensagem({texto::NadaASalvar()});
    } else if (!d.TemJogo()) {
        d.ambiente.mensagem({texto::SemJogo()});
    } else {
        AbreSalvar();
    }
}

void Comandos::Image2_Click()
{
    TocaSom(d.valores, d.ambiente, Som::Clique);
    d.ambiente.terminaProcesso();
}

void Comandos::Label4_Click()
{
    const Resposta resposta = d.ambiente.mensagem({texto::SocorroPergunta(), Botoes::OkCancelar});
    if (resposta == Resposta::Cancelar) {
        return;
    }
    const int c = ProcuraCelulaVazia();
    if (c == 0) {
        return;
    }
    toolkit::TextBox &celula = d.c.Text1(c);
    // This runs the walk of the item selected so far, and can end in a check of it.
    const int partida = d.tabuleiro.Partida;
    celula.SetText(d.Quadrado(c).Letra);
    if (d.tabuleiro.Partida != partida) {
        return;
    }
    d.valores.HoraInicio -= 60 * kMinutosSocorro;
    celula.SetBackColor(kCorFixa);
    d.Quadrado(c).Fixa = true;
    // A wrong check has wiped the free cells, this one among them.
    celula.SetText(d.Quadrado(c).Letra);
    m_verificacao.ConfereSelecao(m_selecao.Text1_MouseDown(c));
    if (AoDarLetra) {
        AoDarLetra(c);
    }
}

int Comandos::ProcuraCelulaVazia()
{
    const int cruzamento = ProcuraCelulaVazia(true);
    return cruzamento != 0 ? cruzamento : ProcuraCelulaVazia(false);
}

/// First empty cell from one end of the board, by the draw, or 0.
int Comandos::ProcuraCelulaVazia(bool soCruzamentos)
{
    const bool crescente = Sorteia(*d.ambiente.acaso, 50);
    for (int vez = 1; vez <= kCelulas; ++vez) {
        const int c = crescente ? vez : kCelulas + 1 - vez;
        if (soCruzamentos && d.Quadrado(c).Sentido != u'M') {
            continue;
        }
        if (d.Ocupada(c) && d.c.Text1(c).Text().isEmpty()) {
            return c;
        }
    }
    return 0;
}
