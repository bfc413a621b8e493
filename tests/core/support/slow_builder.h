#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <QStringList>
#include <random>
#include <vector>

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
    bool Monta()
    {
        qtdUsadas = qtdUsadas > 520 ? 520 : qtdUsadas;
        item = {};
        celula = {};
        qtdItens = 0;
        if (PrimeiraDesce()) Esqueleto();
        for (int r = 1; r <= 150 && qtdItens < 26; ++r) {
            const bool subindo = Chance(50);
            int n = 1;
            while (n <= 572 && !Encaixa(subindo ? n : 573 - n)) {
                ++n;
            }
        }
        return qtdItens >= 26;
    }

    std::vector<QString> banco;
    std::array<QString, 521> usadas;
    int qtdUsadas = 0;
    std::array<Item, 27> item;
    int qtdItens = 0;
    std::array<Celula, 573> celula;
    std::uint64_t sorteios = 0;

private:
    int Numero(int quantos, int primeiro)
    {
        ++sorteios;
        const double u = std::ldexp(static_cast<double>(gerador() >> 11), -53);
        return static_cast<int>(std::floor(u * quantos)) + primeiro;
    }
    bool Chance(int p) { return Numero(100, 1) < p; }
    int Pergunta() { return Numero(static_cast<int>(banco.size()) - 1, 1); }

    /// The room from cell `i` (1 to 572) in walk direction L, R, T or D, by row and column.
    static int Alcance(int i, QChar direcao)
    {
        const int r = (i - 1) / 26;
        const int c = (i - 1) % 26;
        if (direcao == u'R') return 25 - c;
        if (direcao == u'D') return 21 - r;
        // The first column and row stay out of reach. Two kinds of start have a value of their own.
        if (direcao == u'L') return c == 25 && r > 0 ? -2 : c - 1;
        return r == 0 ? 0 : r - 1;
    }
    static bool Cabe(const QString &palavra, int ponto, QChar sentido)
    {
        return ponto >= 1 && ponto <= 572 &&
               Alcance(ponto, sentido == u'H' ? u'R' : u'D') >= palavra.size();
    }

    /// Number of clear cells from cell `i` in a walk direction.
    [[nodiscard]] int Vazios(int i, QChar direcao) const
    {
        const auto ocupada = [&](int j) { return j >= 1 && j <= 572 && celula[size_t(j)].visivel; };
        const int atraves = direcao == u'L' || direcao == u'R' ? 26 : 1;
        const int passo = direcao == u'L' || direcao == u'T' ? atraves - 27 : 27 - atraves;
        int livres = 0;
        for (int j = i + passo; livres < Alcance(i, direcao); j += passo, ++livres) {
            if (ocupada(j) || ocupada(j + atraves) || ocupada(j - atraves)) break;
        }
        return livres;
    }

    [[nodiscard]] bool JaFoi(int pergunta) const
    {
        const QString &palavra = banco[size_t(pergunta)];
        for (size_t u = 0; u <= size_t(qtdUsadas); ++u) {
            if (usadas[u] == palavra) return true;
        }
        for (size_t n = 1; n <= size_t(qtdItens); ++n) {
            if (item[n].palavra == palavra) return true;
        }
        return false;
    }

    /// False if the word does not fit.
    bool Poe(int pergunta, int ponto, QChar sentido)
    {
        const QString palavra = banco[size_t(pergunta)];
        if (!Cabe(palavra, ponto, sentido)) return false;
        const QString numero = QString::number(++qtdItens);
        for (int k = 0; k < palavra.size(); ++k) {
            Celula &c = celula.at(size_t(ponto + k * (sentido == u'H' ? 1 : 26)));
            c.sentido = c.itens.isEmpty() ? sentido : QChar(u'M');
            c.itens += c.itens.isEmpty() ? numero : u',' + numero;
            c.letra = palavra[k];
            c.visivel = true;
        }
        item[size_t(qtdItens)] = {palavra, sentido, ponto, pergunta};
        return true;
    }

    /// Lays the first word. True if it goes down.
    bool PrimeiraDesce()
    {
        while (true) {
            const int k = Pergunta();
            if (banco[size_t(k)].size() < 5) continue;
            if (Chance(75)) {
                int ponto = 0;
                int margem = 0;
                do {
                    ponto = Numero(90, 10);
                    margem = Numero(4, 2);
                } while (Alcance(ponto, u'L') <= margem || Alcance(ponto, u'R') <= margem);
                if (Poe(k, ponto, u'V')) return true;
            } else {
                const int ponto = Numero(190, 3);
                if (ponto % 26 >= 4 && Poe(k, ponto, u'H')) return false;
            }
        }
    }

    /// Hangs across words on the letters of a word, which counts as running down. False if one of
    /// the letters used up its 199 draws.
    bool Atravessa(const Item &desce, int deLetra, int minimoNaUltima)
    {
        const int m = static_cast<int>(desce.palavra.size());
        for (int letra = deLetra; letra <= m && qtdItens < 26; ++letra) {
            const bool sim = Chance(65);
            if (!((sim && letra != m - 1) || letra == m)) continue;
            for (int tentativas = 2, antes = qtdItens; qtdItens == antes; ++tentativas) {
                if (tentativas > 200) return false;
                const int k = Pergunta();
                const QString palavra = banco[size_t(k)];
                if (letra == m && palavra.size() < minimoNaUltima) continue;
                const auto q = static_cast<int>(palavra.indexOf(desce.palavra[letra - 1])) + 1;
                if (q == 0 || JaFoi(k)) continue;
                if (Poe(k, desce.ponto + 26 * (letra - 1) - (q - 1), u'H')) cruzamento = q;
            }
        }
        return true;
    }

    void SegundaDesce()
    {
        const Item b = item[size_t(qtdItens)];
        for (int tentativas = 1; tentativas <= 100; ++tentativas) {
            const int k = Pergunta();
            const QString palavra = banco[size_t(k)];
            if (palavra.size() <= 5) continue;
            for (int q = 1; q <= palavra.size() && q <= b.palavra.size(); ++q) {
                if (q == cruzamento || b.palavra[q - 1] != palavra[0] || JaFoi(k)) continue;
                if (Poe(k, b.ponto + q - 1, u'V')) return;
            }
        }
    }

    void Esqueleto()
    {
        if (Chance(50)) return;
        if (!Atravessa(Item(item[1]), 1, 5) || qtdItens >= 26 || Chance(25)) return;
        SegundaDesce();
        if (qtdItens < 26) Atravessa(Item(item[size_t(qtdItens)]), 3, 0);
    }

    /// Ten draws for a word across cell `i`. True if one was laid.
    bool Encaixa(int i)
    {
        const Celula &c = celula[size_t(i)];
        if (!c.visivel) return false;
        const bool desce = c.sentido == u'H';
        const int a = Vazios(i, desce ? u'T' : u'L');
        const int b = Vazios(i, desce ? u'D' : u'R');
        for (int vez = 1; a > 0 && b > 0 && vez <= 10; ++vez) {
            const int k = Pergunta();
            const QString palavra = banco[size_t(k)];
            const auto pos = static_cast<int>(palavra.indexOf(c.letra)) + 1;
            if (pos > 0 && pos - 1 < a && palavra.size() - pos < b && !JaFoi(k)) {
                return Poe(k, i - (pos - 1) * (desce ? 26 : 1), desce ? u'V' : u'H');
            }
        }
        return false;
    }

    std::mt19937_64 gerador;
    int cruzamento = 0;
};
