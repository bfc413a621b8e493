#pragma once

#include "core/builder/word_placing.h"
#include "ui/gameplay/play_context.h"

/// Shows the board model on the main form's controls, and follows a build word by word.
class VistaTabuleiro final : public ExibicaoMontagem
{
public:
    explicit VistaTabuleiro(const ContextoJogo &jogo) : d(jogo) {}

    /// Creates the 572 letter boxes, hidden, in their grid. Once per run.
    void CarregaQuadrados();
    /// Empties the board, model and controls, before anything is placed.
    void wzera();
    /// Moves the sheet so that the puzzle stands in the middle of an area of the sheet's own size.
    void CentraGrade();
    /// Shows how much of a puzzle stands: `fracao` of the bar, 0 or below wipes it.
    void MostraProgresso(float fracao);

    void MostraCelula(int i) override;
    void MostraSombra(int i) override;
    void MostraNumero(int n) override;
    void MostraAndamento(double fracao) override { MostraProgresso(static_cast<float>(fracao)); }
    void DeixaEventos() override { d.ambiente.deixaEventos(); }

private:
    [[nodiscard]] int PrimeiraVisivel(bool daEsquerda) const;

    ContextoJogo d;
};
