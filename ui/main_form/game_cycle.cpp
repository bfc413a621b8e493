#include "ui/main_form/game_cycle.h"

#include "core/builder/build_attempts.h"
#include "core/machine/shared_routines.h"
#include "core/machine/texts.h"

#include <QScopedValueRollback>

void CicloJogo::NovoJogo()
{
    if (d.estado.Montando) {
        return;
    }
    const QScopedValueRollback montando(d.estado.Montando, true);
    int falhas = 0;
    if (!Monta(falhas)) {
        SemJogo();
        return;
    }
    // What the player notices of a failed build is one more pass of the opening, on the board that
    // stands.
    for (int vez = 0; vez <= falhas; ++vez) {
        ComecaPartida();
    }
}

/// Panel and shield up, board empty.
void CicloJogo::Prepara()
{
    d.valores.Desistiu = false;
    d.c.Timer4.SetLigado(false);
    d.c.Timer1.SetLigado(false);
    d.c.Label2.SetCaption(FormataTempo(0));
    d.c.Label1.SetCaption({});
    d.c.Image4.SetVisible(true);
    d.ambiente.deixaEventos();
    m_vista.MostraProgresso(0);
    d.c.Label4.SetVisible(false);
    d.MostraEspera(true);
    d.c.Pic_q2.SetLeft(0);
    d.c.Pic_q2.SetTop(0);
    d.ambiente.deixaEventos();
    m_vista.wzera();
    d.ambiente.deixaEventos();
    d.tabuleiro.QtdItens = 0;
}

/// Builds until 26 items stand; counts the builds that failed. False where the bank cannot serve.
bool CicloJogo::Monta(int &falhas)
{
    TentativasMontagem tentativas;
    for (;;) {
        Prepara();
        if (!m_banco.indice.Serve()) {
            return false;
        }
        d.estado.item = 0;
        d.estado.Focus = 0;
        const DadosMontagem dados{d.tabuleiro,     m_banco.banco,     m_banco.indice,
                                  m_banco.memoria, *d.ambiente.acaso, m_vista};
        if (CarregaPalavras(dados) == FimMontagem::Completa) {
            falhas = tentativas.Falhas();
            return true;
        }
        if (tentativas.Falhou(m_banco.memoria) == TentativasMontagem::Decisao::Desistir) {
            return false;
        }
    }
}

void CicloJogo::ComecaPartida()
{
    d.estado.TudoResolvido = false;
    d.c.Timer4.SetLigado(true);
    m_vista.CentraGrade();
    m_selecao.Lbt_Click(1);
    d.estado.NoClick = true;
    d.valores.HoraInicio = static_cast<double>(static_cast<float>(d.ambiente.Agora()));
    d.c.Timer1.SetLigado(true);
    d.MostraEspera(false);
    d.c.Label4.SetVisible(true);
    d.ambiente.deixaEventos();
    d.c.Image4.SetVisible(false);
    d.MostraDesistir(false);
}

/// The state "no game", with the reason. Saved games, the ranking, About and leaving still work.
void CicloJogo::SemJogo()
{
    m_vista.wzera();
    d.tabuleiro.QtdItens = 0;
    d.estado.item = 0;
    d.estado.Focus = 0;
    d.estado.TudoResolvido = false;
    d.c.Image1.SetVisible(false);
    d.MostraDesistir(false);
    d.MostraEspera(false);
    d.c.Image4.SetVisible(false);
    d.ambiente.mensagem(
        {m_banco.banco.QtdPerguntas == 0 ? texto::BancoIlegivel() : texto::BancoPequeno()});
}
