#pragma once

#include "core/board/board.h"
#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"
#include "ui/forms/form1.h"

/// What the rooms of play work on. Everything belongs to the main form and lives as long as it.
struct ContextoJogo
{
    Tabuleiro &tabuleiro;
    ValoresPrograma &valores;
    EstadoForm1 &estado;
    forms::ControlesForm1 &c;
    Ambiente &ambiente;

    [[nodiscard]] CelulaQuadrado &Quadrado(int i) const { return tabuleiro.Quadrado[i]; }
    [[nodiscard]] RegistroItem &Item(int n) const { return tabuleiro.ItemPalavra[n]; }
    /// Whether a game stands on the board, in play or at its end.
    [[nodiscard]] bool TemJogo() const { return tabuleiro.QtdItens == kItens; }
    /// Puts the waiting panel up or away.
    void MostraEspera(bool aguardando) const
    {
        estado.Aguardando = aguardando;
        c.Picespere.SetVisible(aguardando);
    }
    /// Gives the first menu entry its meaning: "Desistir" or "Novo Jogo".
    void MostraDesistir(bool pode) const
    {
        estado.PodeDesistir = pode;
        c.Image6.SetVisible(pode);
    }
    /// Whether cell `i` belongs to a word; False for a number that is no cell.
    [[nodiscard]] bool Ocupada(int i) const
    {
        return i >= 1 && i <= kCelulas && tabuleiro.Ocupada[i];
    }
};

/// Colours of a cell's ground, by its state.
inline constexpr QColor kCorLivre(255, 255, 255);
inline constexpr QColor kCorSelecionada(255, 255, 177);
inline constexpr QColor kCorFixa(213, 245, 255);
/// Colour of a letter that the player did not have.
inline constexpr QColor kCorRevelada(255, 0, 0);
