#pragma once

#include "ui/gameplay/play_context.h"

#include <functional>

class Selecao;
class Verificacao;

/// The six menu entries, the help and the two title buttons.
class Comandos
{
public:
    Comandos(const ContextoJogo &jogo, Selecao &selecao, Verificacao &verificacao)
        : d(jogo), m_selecao(selecao), m_verificacao(verificacao)
    {
    }

    /// A click on menu entry `Index`, 0 to 5: Novo Jogo (or Desistir), Reiniciar, Abrir, Salvar,
    /// Ranking, Sair.
    void Label3_Click(int Index);
    void Label3_MouseDown(int Index);
    void Label3_MouseUp(int Index);
    /// "Socorro": gives a letter for two minutes, if the player agrees.
    void Label4_Click();
    /// The cross in the title strip: leaves the program.
    void Image2_Click();
    /// The first button in the title strip: About. Makes no sound.
    void Image8_Click() { AbreSobre(); }

    std::function<void()> NovoJogo;
    std::function<void()> AbreCarregar;
    std::function<void()> AbreSalvar;
    std::function<void()> AbreRanking;
    std::function<void()> AbreSobre;
    /// Told of each letter given as help, with its cell, and of each game given up. May be empty.
    std::function<void(int c)> AoDarLetra;
    std::function<void()> AoDesistir;

private:
    void PrimeiraEntrada();
    void Desiste();
    void Reinicia();
    void Salva();
    [[nodiscard]] int ProcuraCelulaVazia();
    [[nodiscard]] int ProcuraCelulaVazia(bool soCruzamentos);

    ContextoJogo d;
    Selecao &m_selecao;
    Verificacao &m_verificacao;
};
