#pragma once

#include <array>
#include <cstdint>
#include <QString>
#include <random>
#include <vector>

/// The room from cell `i` (1 to 572) in walk direction L, R, T or D, by row and column.
int AlcanceLento(int i, QChar direcao);

/// A second builder of puzzles, slow and plain, that the tests hold the real one against. It shares
/// no code with it: plain tables, a scan for every question, a generator of its own.
struct ConstrutorLento
{
    struct Item
    {
        QString palavra;
        QChar sentido;
        int ponto = 0;
        int pergunta = 0;
    };
    struct Celula
    {
        bool visivel = false;
        QString itens;
        QChar sentido;
        QChar letra;
    };

    /// `palavras` holds the bank's words from entry 1 on; entry 0 is no part of it.
    ConstrutorLento(std::vector<QString> palavras, std::uint64_t semente)
        : banco(std::move(palavras)), gerador(semente)
    {
    }

    /// One build on an empty board, further along the same stream. True if 26 words stand.
    bool Monta();
    /// Number of clear cells from cell `i` in a walk direction.
    [[nodiscard]] int Vazios(int i, QChar direcao) const;

    std::vector<QString> banco;
    std::array<QString, 521> usadas;
    int qtdUsadas = 0;
    std::array<Item, 27> item;
    int qtdItens = 0;
    std::array<Celula, 573> celula;
    std::uint64_t sorteios = 0;

private:
    int Numero(int quantos, int primeiro);
    bool Chance(int p) { return Numero(100, 1) < p; }
    int Pergunta() { return Numero(static_cast<int>(banco.size()) - 1, 1); }
    bool JaFoi(const QString &palavra);
    void Poe(int pergunta, int ponto, QChar sentido);
    bool PrimeiraDesce();
    bool Atravessa(const Item &desce, int deLetra, int minimoNaUltima);
    void SegundaDesce();
    void Esqueleto();
    bool Encaixa(int i);

    std::mt19937_64 gerador;
    int cruzamento = 0;
};
