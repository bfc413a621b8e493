#pragma once

#include "ui/gameplay/clock.h"
#include "ui/gameplay/commands.h"
#include "ui/gameplay/hint_bubble.h"
#include "ui/gameplay/letter_entry.h"
#include "ui/gameplay/word_check.h"
#include "ui/main_form/accessible_board.h"
#include "ui/main_form/board_view.h"
#include "ui/main_form/game_cycle.h"
#include "ui/main_form/load_game.h"
#include "ui/records/dialog_context.h"
#include "ui/toolkit/overflow.h"

#include <memory>

/// The main form: the only window that lives as long as the process. Owns the game's tables, makes
/// the rooms of play and connects each control's event to its room; what the events do stands
/// there.
class Form1
{
public:
    /// Builds everything that outlasts a game; the form is not shown yet. `valores` and `ambiente`
    /// must outlive it. `dpi`: the screen's dots per inch.
    Form1(ValoresPrograma &valores, Ambiente &ambiente, int dpi);

    void Show() { m_form.Show(); }
    [[nodiscard]] toolkit::Form &Janela() { return m_form; }
    [[nodiscard]] const ContextoJogo &Jogo() const { return m_jogo; }

private:
    void Form_Load();
    void Form_Activate();
    void CarregaBotoes();
    void LigaTabuleiro();
    void LigaBalao();
    void LigaComandos();
    void LigaDialogos();
    void LigaRelogio();
    void LigaAcessibilidade();
    void AjustaAoDpi(int dpiAplicado);
    [[nodiscard]] ContextoDialogo Dialogos() { return {m_valores, m_ambiente, m_form}; }

    ValoresPrograma &m_valores;
    Ambiente &m_ambiente;
    toolkit::Form m_form;
    forms::ControlesForm1 m_c;
    /// The hint bubble beyond the window's edge.
    toolkit::Transbordo m_balaoDeFora;

    Tabuleiro m_tabuleiro;
    EstadoForm1 m_estado;
    MemoriaUsadas m_memoria;
    std::unique_ptr<BancoPerguntas> m_banco;
    std::unique_ptr<IndiceBanco> m_indice;

    ContextoJogo m_jogo;
    VistaTabuleiro m_vista;
    Selecao m_selecao;
    EntradaLetras m_entrada;
    Verificacao m_verificacao;
    BalaoDica m_balao;
    Relogio m_relogio;
    Comandos m_comandos;
    CargaJogo m_carga;
    TabuleiroAcessivel m_acessivel;
    std::unique_ptr<CicloJogo> m_ciclo;

    bool m_jaAtivou = false;
};
