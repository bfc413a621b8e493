#include "slow_builder.h"

#include <cmath>

int AlcanceLento(int i, QChar direcao)
{
    const int r = (i - 1) / 26;
    const int c = (i - 1) % 26;
    if (direcao == u'R') return 25 - c;
    if (direcao == u'D') return 21 - r;
    // The first column and row stay out of reach. Two kinds of start have a value of their own.
    if (direcao == u'L') return c == 25 && r > 0 ? -2 : c - 1;
    return r == 0 ? 0 : r - 1;
}

namespace {

bool Cabe(const QString &palavra, int ponto, QChar sentido)
{
    return ponto >= 1 && ponto <= 572 &&
           AlcanceLento(ponto, sentido == u'H' ? u'R' : u'D') >= palavra.size();
}

} // namespace

int ConstrutorLento::Vazios(int i, QChar direcao) const
{
    const auto ocupada = [this](int j) { return j >= 1 && j <= 572 && celula[size_t(j)].visivel; };
    const int atraves = direcao == u'L' || direcao == u'R' ? 26 : 1;
    const int passo = direcao == u'L' || direcao == u'T' ? atraves - 27 : 27 - atraves;
    int livres = 0;
    for (int j = i + passo; livres < AlcanceLento(i, direcao); j += passo, ++livres) {
        if (ocupada(j) || ocupada(j + atraves) || ocupada(j - atraves)) break;
    }
    return livres;
}

bool ConstrutorLento::JaFoi(const QString &palavra)
{
    if (qtdUsadas > 520) qtdUsadas = 520;
    for (size_t k = 0; k <= size_t(qtdUsadas); ++k) {
        if (usadas[k] == palavra) return true;
    }
    for (size_t n = 1; n <= size_t(qtdItens); ++n) {
        if (item[n].palavra == palavra) return true;
    }
    return false;
}

void ConstrutorLento::Poe(int pergunta, int ponto, QChar sentido)
{
    if (qtdItens >= 26) return;
    const QString numero = QString::number(++qtdItens);
    const QString palavra = banco[size_t(pergunta)];
    for (int k = 0; k < palavra.size(); ++k) {
        const int i = ponto + k * (sentido == u'H' ? 1 : 26);
        Celula &c = celula.at(size_t(i));
        c.sentido = c.itens.isEmpty() ? sentido : QChar(u'M');
        c.itens = c.itens.isEmpty() ? numero : c.itens + u',' + numero;
        c.letra = palavra[k];
        c.visivel = true;
    }
    item[size_t(qtdItens)] = {palavra, sentido, ponto, pergunta};
}

int ConstrutorLento::Numero(int quantos, int primeiro)
{
    ++sorteios;
    const double u = std::ldexp(static_cast<double>(gerador() >> 11), -53);
    return static_cast<int>(std::floor(u * quantos)) + primeiro;
}

/// Lays the first word. True if it goes down.
bool ConstrutorLento::PrimeiraDesce()
{
    while (true) {
        const int k = Pergunta();
        const QString palavra = banco[size_t(k)];
        if (palavra.size() < 5) continue;
        if (Chance(75)) {
            int ponto = 0;
            int margem = 0;
            do {
                ponto = Numero(90, 10);
                margem = Numero(4, 2);
            } while (AlcanceLento(ponto, u'L') <= margem || AlcanceLento(ponto, u'R') <= margem);
            if (!Cabe(palavra, ponto, u'V')) continue;
            Poe(k, ponto, u'V');
            return true;
        }
        const int ponto = Numero(190, 3);
        if (ponto % 26 < 4 || !Cabe(palavra, ponto, u'H')) continue;
        Poe(k, ponto, u'H');
        return false;
    }
}

/// Hangs across words on the letters of a word, which counts as running down. False if one of the
/// letters used up its 199 draws.
bool ConstrutorLento::Atravessa(const Item &desce, int deLetra, int minimoNaUltima)
{
    const int m = static_cast<int>(desce.palavra.size());
    for (int letra = deLetra; letra <= m; ++letra) {
        const bool sim = Chance(65);
        if (!((sim && letra != m - 1) || letra == m)) continue;
        for (int tentativas = 2;; ++tentativas) {
            if (tentativas > 200) return false;
            const int k = Pergunta();
            const QString palavra = banco[size_t(k)];
            if (JaFoi(palavra)) continue;
            if (letra == m && palavra.size() < minimoNaUltima) continue;
            int q = 1;
            while (q <= palavra.size() && palavra[q - 1] != desce.palavra[letra - 1]) {
                ++q;
            }
            if (q > palavra.size()) continue;
            cruzamento = q;
            const int ponto = desce.ponto + 26 * (letra - 1) - (q - 1);
            if (!Cabe(palavra, ponto, u'H')) continue;
            Poe(k, ponto, u'H');
            break;
        }
        if (qtdItens >= 26) return true;
    }
    return true;
}

void ConstrutorLento::SegundaDesce()
{
    const Item b = item[size_t(qtdItens)];
    for (int tentativas = 1; tentativas <= 100; ++tentativas) {
        const int k = Pergunta();
        const QString palavra = banco[size_t(k)];
        if (JaFoi(palavra) || palavra.size() <= 5) continue;
        for (int q = 1; q <= palavra.size() && q <= b.palavra.size(); ++q) {
            const int ponto = b.ponto + q - 1;
            if (q == cruzamento || b.palavra[q - 1] != palavra[0]) continue;
            if (!Cabe(palavra, ponto, u'V')) continue;
            Poe(k, ponto, u'V');
            return;
        }
    }
}

void ConstrutorLento::Esqueleto()
{
    if (Chance(50)) return;
    if (!Atravessa(Item(item[1]), 1, 5) || qtdItens >= 26) return;
    if (Chance(25)) return;
    SegundaDesce();
    if (qtdItens >= 26) return;
    Atravessa(Item(item[size_t(qtdItens)]), 3, 0);
}

/// Ten draws for a word across cell `i`. True if one was laid.
bool ConstrutorLento::Encaixa(int i)
{
    const Celula &c = celula[size_t(i)];
    if (!c.visivel) return false;
    const bool desce = c.sentido == u'H';
    const int a = Vazios(i, desce ? u'T' : u'L');
    const int b = Vazios(i, desce ? u'D' : u'R');
    if (a <= 0 || b <= 0) return false;
    for (int vez = 1; vez <= 10; ++vez) {
        const int k = Pergunta();
        const QString palavra = banco[size_t(k)];
        if (JaFoi(palavra)) continue;
        int pos = 0;
        for (int q = static_cast<int>(palavra.size()); q >= 1; --q) {
            if (palavra[q - 1] == c.letra) pos = q;
        }
        if (pos > 0 && pos - 1 < a && palavra.size() - pos < b) {
            Poe(k, i - (pos - 1) * (desce ? 26 : 1), desce ? u'V' : u'H');
            return true;
        }
    }
    return false;
}

bool ConstrutorLento::Monta()
{
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
