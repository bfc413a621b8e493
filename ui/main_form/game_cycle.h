#pragma once

#include "core/bank/question_bank.h"
#include "core/bank/used_words.h"
#include "core/builder/fill_driver.h"
#include "ui/gameplay/selection.h"
#include "ui/main_form/board_view.h"

/// The bank of a run, with what is worked out about it, and the memory of words used before.
struct DadosBanco
{
    const BancoPerguntas &banco;
    const IndiceBanco &indice;
    MemoriaUsadas &memoria;
};

/// From whatever stands on the board to a fresh crossword that the player can type into.
class CicloJogo
{
public:
    CicloJogo(const ContextoJogo &jogo, const DadosBanco &banco, VistaTabuleiro &vista,
              Selecao &selecao)
        : d(jogo), m_banco(banco), m_vista(vista), m_selecao(selecao)
    {
    }

    /// Builds a new crossword, selects item 1 and starts the clock. Builds that fail start over; a
    /// bank that cannot yield a game ends in the state "no game" with a message. Asked for while a
    /// board is being built or loaded, it does nothing.
    void NovoJogo();

private:
    void Prepara();
    [[nodiscard]] bool Monta(int &falhas);
    void ComecaPartida();
    void SemJogo();

    ContextoJogo d;
    DadosBanco m_banco;
    VistaTabuleiro &m_vista;
    Selecao &m_selecao;
};
