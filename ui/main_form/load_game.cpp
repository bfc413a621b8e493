#include "ui/main_form/load_game.h"

#include "core/machine/prices.h"
#include "core/machine/shared_routines.h"
#include "core/machine/texts.h"

#include <QScopedValueRollback>

void CargaJogo::CarregaJogo(int n)
{
    if (d.estado.Montando) {
        return;
    }
    const auto lido = LeSlot(Caminho(d.valores.PastaDados, kArquivoJogos), n);
    const auto *salvo = std::get_if<JogoSalvo>(&lido);
    if (salvo == nullptr) {
        d.ambiente.mensagem({texto::SlotDanificado()});
        return;
    }
    const Achado achado = Abre(*salvo);
    // Events have run since: the player can have given up, or selected another item.
    if (!d.estado.TudoResolvido && d.estado.Focus == 0) {
        m_salas.verificacao.ConfereSelecao(achado);
    }
}

/// The load itself. Gives what the selection found: a check of the item, which can end the game,
/// has to wait until the game has begun.
Achado CargaJogo::Abre(const JogoSalvo &salvo)
{
    const QScopedValueRollback montando(d.estado.Montando, true);
    // What is typed meanwhile, and what is written into the cells, goes nowhere.
    m_salas.entrada.SetAtiva(false);
    MostraEspera();
    DeitaItens(salvo);
    m_salas.entrada.SetAtiva(true);
    m_salas.vista.CentraGrade();
    // Where no item is open, nothing is selected.
    const int aberto = PrimeiroAberto(d.tabuleiro);
    const Achado achado = aberto != 0 ? m_salas.selecao.Lbt_Click(aberto) : Achado::Nada;
    d.ambiente.mensagem({texto::PrecoDaCarga()});
    d.valores.HoraInicio = d.ambiente.Agora() - (salvo.tempo + 60 * kMinutosCarga);
    ComecaPartida();
    return achado;
}

/// Panel and shield up, board empty.
void CargaJogo::MostraEspera()
{
    d.c.Image4.SetVisible(true);
    d.c.Timer1.SetLigado(false);
    d.c.Label2.SetCaption(FormataTempo(0));
    d.c.Label4.SetVisible(false);
    d.MostraEspera(true);
    m_salas.vista.MostraProgresso(0);
    // With the panel up nothing can give up the game that is about to go.
    d.valores.Desistiu = false;
    d.ambiente.deixaEventos();
    d.c.Pic_q2.SetLeft(0);
    d.c.Pic_q2.SetTop(0);
    m_salas.vista.wzera();
    d.estado.Focus = 0;
    d.tabuleiro.QtdItens = 0;
    d.ambiente.deixaEventos();
}

void CargaJogo::DeitaItens(const JogoSalvo &salvo)
{
    for (int i = 1; i <= kItens; ++i) {
        const RegistroItem &item = salvo.itens[i];
        d.Item(i).ItemResolvido = item.ItemResolvido;
        Carrega_Palavra(d.tabuleiro, m_salas.vista,
                        {item.Palavra, item.Ponto, item.Sentido, item.Dica, item.ItemResolvido});
        if (item.ItemResolvido) {
            m_salas.verificacao.SomeNoTab(i);
        }
        d.ambiente.deixaEventos();
    }
}

void CargaJogo::ComecaPartida()
{
    d.estado.TudoResolvido = false;
    d.c.Label4.SetVisible(true);
    m_salas.verificacao.MostraDesistir();
    d.c.Timer1.SetLigado(true);
    d.MostraEspera(false);
    d.ambiente.deixaEventos();
    d.c.Image4.SetVisible(false);
}
