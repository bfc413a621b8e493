#pragma once

#include "core/bank/question_bank.h"
#include "core/bank/used_words.h"
#include "core/board/board.h"
#include "core/builder/word_index.h"
#include "core/builder/word_placing.h"
#include "core/machine/chance.h"

#include <vector>

/// How the builder finds out whether a word has been used: by the index, or by the plain scan that
/// defines the answer. Both give the same puzzles.
enum class BuscaUsadas { Indice, VarreduraSimples };

/// Everything that the builds of a run work with. The tables belong to the caller and live as long.
struct DadosMontagem
{
    Tabuleiro &tabuleiro;
    const BancoPerguntas &banco;
    const IndiceBanco &indice;
    MemoriaUsadas &memoria;
    Acaso &acaso;
    ExibicaoMontagem &exibicao;
    BuscaUsadas busca = BuscaUsadas::Indice;
};

/// A usable cell: one across which a word can run. `antes` and `depois` are the clear cells on
/// either side of it, above 0; `posicoes` the first positions of the cell's letter in the entries
/// of the bank.
struct Travessia
{
    int celula;
    QChar sentido;
    int antes;
    int depois;
    const std::uint8_t *posicoes;
};

/// One build under way: the data and what the steps of a build share.
class Montagem
{
public:
    explicit Montagem(const DadosMontagem &dados) : d(dados), m_marcas(dados.indice, dados.memoria)
    {
    }

    /// Draws an entry of the bank, 1 to QtdPerguntas. One draw.
    [[nodiscard]] int SorteiaPergunta() { return SorteiaNumero(d.acaso, d.banco.QtdPerguntas); }
    /// jafoi for the word of entry `k`.
    [[nodiscard]] bool JaFoi(int k);
    /// First position (from 1) of `letra` in the word of entry `k`, 0 if it has none.
    [[nodiscard]] int PosicaoDaLetra(int k, QChar letra) const
    {
        return d.indice.PrimeirasPosicoes(letra)[k];
    }
    /// Places the word of entry `k`; `sentido` is 'H' or 'V'.
    void Poe(int k, int ponto, QChar sentido);
    /// The usable cells in ascending order. Worked out anew only when a word has been placed: most
    /// passes of the rescue place none.
    [[nodiscard]] const std::vector<Travessia> &Travessias();
    [[nodiscard]] bool Completa() const { return d.tabuleiro.QtdItens >= kItens; }

    DadosMontagem d;

private:
    MarcasUsadas m_marcas;
    std::vector<Travessia> m_travessias;
    /// Number of items that m_travessias belongs to, or -1.
    int m_itensDasTravessias = -1;
};
