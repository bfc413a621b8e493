#pragma once

#include "core/bank/question_bank.h"
#include "core/bank/used_words.h"
#include <cstdint>
#include <QHash>
#include <vector>

/// What is worked out once about the bank, so that a draw and its rejection touch a few bytes and
/// compare no text: each entry's length, the first position of each letter in it, and which entries
/// are one word.
class IndiceBanco
{
public:
    explicit IndiceBanco(const BancoPerguntas &banco);

    /// Letters of entry `k`, 1 to QtdPerguntas.
    [[nodiscard]] int Comprimento(int k) const { return m_comprimento[static_cast<size_t>(k)]; }
    /// First positions (from 1) of `letra` in the entries, by entry; 0 where an entry lacks it.
    [[nodiscard]] const std::uint8_t *PrimeirasPosicoes(QChar letra) const;
    /// Number of the word of entry `k`: the same for entries that hold the same word, 0 to
    /// QtdTextos() - 1.
    [[nodiscard]] int TextoDe(int k) const { return m_texto[static_cast<size_t>(k)]; }
    [[nodiscard]] int QtdTextos() const { return static_cast<int>(m_numeroDoTexto.size()); }
    /// Number of `palavra`, or -1 where the bank lacks it.
    [[nodiscard]] int ProcuraTexto(const QString &palavra) const
    {
        return m_numeroDoTexto.value(palavra, -1);
    }
    /// Whether some entry has at least 5 letters. Without one no first word can ever be laid.
    [[nodiscard]] bool Serve() const { return m_serve; }
    /// A flag for each entry: whether its word stands in entries 0 to QtdUsadas of the list. What
    /// was worked out for a list is kept until a list with other words is asked for.
    [[nodiscard]] const std::vector<std::uint8_t> &MarcasDe(const MemoriaUsadas &memoria) const;

private:
    void AnotaLetras(const QString &palavra, size_t k);

    std::vector<std::uint8_t> m_comprimento;
    std::vector<std::int16_t> m_texto;
    QHash<QString, int> m_numeroDoTexto;
    /// One row of QtdPerguntas + 1 positions for each letter that occurs; row 0 belongs to all
    /// other letters.
    std::vector<std::vector<std::uint8_t>> m_posicoes;
    std::vector<std::uint16_t> m_linhaDaLetra;
    bool m_serve = false;
    /// The list that m_marcas belongs to; its texts share their characters with the list's.
    mutable MemoriaUsadas m_memoriaDasMarcas;
    mutable std::vector<std::uint8_t> m_marcas;
};

/// Answers jafoi for entries of the bank by one flag for each. Must be told of every
/// word that is placed, and made anew when the memory changes.
class MarcasUsadas
{
public:
    /// The marks of a build that begins: no item is placed. Holds QtdUsadas at kUsadas, as jafoi
    /// does.
    MarcasUsadas(const IndiceBanco &indice, MemoriaUsadas &memoria);

    /// What jafoi answers for the word of entry `k`.
    [[nodiscard]] bool JaFoi(int k) const { return m_usada[static_cast<size_t>(k)] != 0; }
    /// Entry `k` has been placed: it and all entries with the same word count as used.
    void Marca(int k);

private:
    const IndiceBanco *m_indice;
    /// One flag for each entry.
    std::vector<std::uint8_t> m_usada;
};
