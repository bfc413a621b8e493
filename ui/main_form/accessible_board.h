#pragma once

#include "core/board/spoken_text.h"
#include "ui/gameplay/play_context.h"
#include "ui/toolkit/announcer.h"

/// The main form for a player who cannot see it: says what each control is, and announces what a
/// seeing player would notice by himself.
class TabuleiroAcessivel final : public QObject
{
public:
    explicit TabuleiroAcessivel(const ContextoJogo &jogo);

    /// Gives all controls of the form their names. Once, when they have been made.
    void Descreve();

    /// Announces the judgement on item `i`, which is about to take effect.
    void PalavraJulgada(int i, bool certa);
    /// Announces the letter that help has given in cell `c`.
    void LetraDada(int c);
    /// Announces that the game has been given up.
    void SolucaoMostrada();

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    void DescreveCelulas();
    void DescreveItens();
    void DescreveComandos();
    void DescreveResto();
    [[nodiscard]] int Resolvidos() const;
    [[nodiscard]] QString NomeDaCelula(int i) const;
    [[nodiscard]] QString NomeDoItem(int n) const;
    [[nodiscard]] QString NomeDoBalao() const;
    [[nodiscard]] QString NomeSemCursor() const;

    ContextoJogo d;
    toolkit::Anunciador m_anunciador;
};
