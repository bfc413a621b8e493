#pragma once

#include "core/builder/fill_driver.h"
#include <cstdint>
#include <QByteArray>
#include <vector>

/// Question banks for tests and measurements. All chance comes from std::mt19937_64 by remainders,
/// so that a seed gives the same bank on every platform.

/// The bytes of a bank's file: each word with a clue that names its entry.
QByteArray RegistrosDe(const std::vector<QByteArray> &palavras);

/// Parts of a bank's words by their length, from 3 letters on.
using ParteDosComprimentos = std::vector<int>;
/// A normal bank: 4% of 3 letters, 12% of 4, 20% of 5, 22%, 18%, 12%, 7%, 5% of 10 to 12.
inline const ParteDosComprimentos kComoOBanco{12, 36, 60, 66, 54, 36, 21, 5, 5, 5};
/// A plain dictionary, with many long words.
inline const ParteDosComprimentos kComoDicionario{1, 2, 7, 18, 29, 47, 55, 51, 48, 42};

/// `quantas` different words made of syllables.
std::vector<QByteArray> PalavrasDeSilabas(int quantas, std::uint64_t semente,
                                          const ParteDosComprimentos &partes = kComoOBanco);

/// The words of a bank's file from entry 1 on, 3,000 at most, read the slow way.
std::vector<QString> LePalavrasLento(const QByteArray &registros);

/// A bank with everything else that builds work with; its board, memory and display are empty.
struct Oficina
{
    explicit Oficina(const QByteArray &registros);

    /// What a build or a step of one works with.
    DadosMontagem Dados(Acaso &acaso, BuscaUsadas busca = BuscaUsadas::Indice);
    /// One build on an emptied board.
    bool Tenta(Acaso &acaso, BuscaUsadas busca = BuscaUsadas::Indice);
    /// Builds until a puzzle stands. Gives the number of builds that failed.
    int Monta(Acaso &acaso, BuscaUsadas busca = BuscaUsadas::Indice);

    Tabuleiro tabuleiro;
    BancoPerguntas banco;
    IndiceBanco indice;
    MemoriaUsadas memoria;
    ExibicaoMontagem nada;
};
