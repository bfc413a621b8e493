#pragma once

#include "core/records/save_slot.h"
#include "ui/gameplay/letter_entry.h"
#include "ui/gameplay/selection.h"
#include "ui/gameplay/word_check.h"
#include "ui/main_form/board_view.h"

/// From whatever stands on the board to a saved game that the player can go on with.
class CargaJogo
{
public:
    /// The rooms that a load works with; they must outlive it.
    struct Salas
    {
        VistaTabuleiro &vista;
        Selecao &selecao;
        EntradaLetras &entrada;
        Verificacao &verificacao;
    };

    CargaJogo(const ContextoJogo &jogo, const Salas &salas) : d(jogo), m_salas(salas) {}

    /// Lays the game of slot `n`, 1 to kSlots, on the board, selects its first open item and goes
    /// on with its time and two minutes more, of which a message tells.
    ///
    /// A slot that is damaged or empty is refused with a message before anything changes. Asked for
    /// while a board is being built or loaded, it does nothing. Events run meanwhile.
    void CarregaJogo(int n);

private:
    Achado Abre(const JogoSalvo &salvo);
    void MostraEspera();
    void DeitaItens(const JogoSalvo &salvo);
    void ComecaPartida();

    ContextoJogo d;
    Salas m_salas;
};
