#include "core/builder/fill_driver.h"

#include "core/builder/placement_tests.h"
#include "core/builder/rescue.h"

namespace {

// Least lengths, in letters.
constexpr int kMenorPrimeira = 5;
constexpr int kMenorAtravessada = 5;
constexpr int kMenorSegundaDescida = 6;

// Chances, in the hundredths of Sorteia: that the first word runs down, that a build with such a
// word leaves the skeleton to the rescue before and behind its first stage, that a letter is tried.
constexpr int kChancePrimeiraDesce = 75;
constexpr int kChanceSemEsqueleto = 50;
constexpr int kChanceSoUmaDescida = 25;
constexpr int kChanceLetra = 65;

// Where the first word begins: the cells behind the first ones, as many as are drawn from.
constexpr int kPontosDeitada = 190;
constexpr int kAntesDosPontosDeitada = 2;
constexpr int kMenorRestoDeitada = 4;
constexpr int kPontosDescida = 90;
constexpr int kAntesDosPontosDescida = 9;
constexpr int kMaiorMargemDescida = 4;

// How often a stage draws before it gives up.
constexpr int kSorteiosPorLetra = 199;
constexpr int kSorteiosDescida = 100;
constexpr int kPassadasResgate = 150;
constexpr int kSorteiosPorCelula = 10;

/// Where a build goes on after a stage.
enum class Seguir { Proxima, Resgate, Pronta };

/// A stage that hangs across words on a word.
struct Atravessar
{
    /// Item whose letters take the words.
    int item;
    /// First letter position, from 1, that can take one.
    int desde;
    /// Least length of the word on the last letter.
    int menorNaUltima;
};

class Condutor
{
public:
    explicit Condutor(const DadosMontagem &dados) : m_montagem(dados), m_tabuleiro(dados.tabuleiro)
    {
    }

    FimMontagem Conduz()
    {
        LimpaTabelas();
        PrimeiraPalavra();
        if (Esqueleto() == Seguir::Pronta || Resgata()) {
            return FimMontagem::Completa;
        }
        return FimMontagem::Falhou;
    }

private:
    void LimpaTabelas();
    void PrimeiraPalavra();
    bool TentaPrimeira();
    int SorteiaPontoDescida();
    Seguir Esqueleto();
    Seguir AtravessaPalavras(const Atravessar &onde);
    Seguir AtravessaLetra(const Atravessar &onde, int L);
    Seguir SegundaDescida();
    int PontoDescida(int k) const;
    bool Resgata();

    [[nodiscard]] const RegistroItem &Item(int n) const { return m_tabuleiro.ItemPalavra[n]; }
    [[nodiscard]] int Comprimento(int k) const { return m_montagem.d.indice.Comprimento(k); }
    bool Chance(int p) { return Sorteia(m_montagem.d.acaso, p); }

    Montagem m_montagem;
    Tabuleiro &m_tabuleiro;
    bool m_primeiraDesce = false;
};

void Condutor::LimpaTabelas()
{
    for (auto &item : m_tabuleiro.ItemPalavra) {
        item.Palavra.clear();
    }
    for (auto &celula : m_tabuleiro.Quadrado) {
        celula.Itens.clear();
        celula.Sentido = QChar();
    }
    m_tabuleiro.QtdItens = 0;
}

void Condutor::PrimeiraPalavra()
{
    while (!TentaPrimeira()) {
    }
}

bool Condutor::TentaPrimeira()
{
    // The used-word test is not applied to the first word.
    const int k = m_montagem.SorteiaPergunta();
    if (Comprimento(k) < kMenorPrimeira) {
        return false;
    }
    m_primeiraDesce = Chance(kChancePrimeiraDesce);
    if (m_primeiraDesce) {
        const int ponto = SorteiaPontoDescida();
        if (!Cabe(Comprimento(k), ponto, u'V')) {
            return false;
        }
        m_montagem.Poe(k, ponto, u'V');
        return true;
    }
    const int ponto = SorteiaNumero(m_montagem.d.acaso, kPontosDeitada) + kAntesDosPontosDeitada;
    if (ponto % kColunas < kMenorRestoDeitada || !Cabe(Comprimento(k), ponto, u'H')) {
        return false;
    }
    m_montagem.Poe(k, ponto, u'H');
    return true;
}

int Condutor::SorteiaPontoDescida()
{
    for (;;) {
        const int ponto =
            SorteiaNumero(m_montagem.d.acaso, kPontosDescida) + kAntesDosPontosDescida;
        const int margem = SorteiaNumero(m_montagem.d.acaso, kMaiorMargemDescida) + 1;
        if (espaco(ponto, u'L') > margem && espaco(ponto, u'R') > margem) {
            return ponto;
        }
    }
}

Seguir Condutor::Esqueleto()
{
    if (!m_primeiraDesce || Chance(kChanceSemEsqueleto)) {
        return Seguir::Resgate;
    }
    if (const Seguir fim = AtravessaPalavras({1, 1, kMenorAtravessada}); fim != Seguir::Proxima) {
        return fim;
    }
    if (Chance(kChanceSoUmaDescida)) {
        return Seguir::Resgate;
    }
    if (SegundaDescida() == Seguir::Pronta) {
        return Seguir::Pronta;
    }
    // Where no second down word was found, this hangs across words on the last across word, as if
    // it ran down: words that cross nothing, on the rows below it.
    return AtravessaPalavras({m_tabuleiro.QtdItens, 3, 0});
}

Seguir Condutor::AtravessaPalavras(const Atravessar &onde)
{
    const int m = static_cast<int>(Item(onde.item).Palavra.size());
    for (int L = onde.desde; L <= m; ++L) {
        const bool sorteada = Chance(kChanceLetra);
        if (!(sorteada && L != m - 1) && L != m) {
            continue;
        }
        if (const Seguir fim = AtravessaLetra(onde, L); fim != Seguir::Proxima) {
            return fim;
        }
    }
    return Seguir::Proxima;
}

Seguir Condutor::AtravessaLetra(const Atravessar &onde, int L)
{
    const RegistroItem &descida = Item(onde.item);
    const QChar letra = descida.Palavra[L - 1];
    const int menor = L == descida.Palavra.size() ? onde.menorNaUltima : 0;
    for (int tentativa = 0; tentativa < kSorteiosPorLetra; ++tentativa) {
        const int k = m_montagem.SorteiaPergunta();
        if (m_montagem.JaFoi(k) || Comprimento(k) < menor) {
            continue;
        }
        const int q = m_montagem.PosicaoDaLetra(k, letra);
        if (q == 0) {
            continue;
        }
        const int ponto = descida.Ponto + kColunas * (L - 1) - (q - 1);
        if (!Cabe(Comprimento(k), ponto, u'H')) {
            continue;
        }
        m_montagem.Poe(k, ponto, u'H');
        return m_montagem.Completa() ? Seguir::Pronta : Seguir::Proxima;
    }
    return Seguir::Resgate;
}

Seguir Condutor::SegundaDescida()
{
    for (int tentativa = 0; tentativa < kSorteiosDescida; ++tentativa) {
        const int k = m_montagem.SorteiaPergunta();
        if (m_montagem.JaFoi(k) || Comprimento(k) < kMenorSegundaDescida) {
            continue;
        }
        if (const int ponto = PontoDescida(k); ponto > 0) {
            m_montagem.Poe(k, ponto, u'V');
            return m_montagem.Completa() ? Seguir::Pronta : Seguir::Proxima;
        }
    }
    return Seguir::Proxima;
}

/// Start of a second down word, entry `k`, on the last across word: the first letter that serves,
/// other than the one where the first word meets it. 0 if there is none.
int Condutor::PontoDescida(int k) const
{
    const RegistroItem &ultima = Item(m_tabuleiro.QtdItens);
    const int cruzamento = ColunaDe(Item(1).Ponto) - ColunaDe(ultima.Ponto) + 1;
    const QChar primeira = m_montagem.d.banco.BancoPalavra[k][0];
    const int fim = qMin(Comprimento(k), static_cast<int>(ultima.Palavra.size()));
    for (int q = 1; q <= fim; ++q) {
        const int ponto = ultima.Ponto + q - 1;
        if (q != cruzamento && ultima.Palavra[q - 1] == primeira &&
            Cabe(Comprimento(k), ponto, u'V')) {
            return ponto;
        }
    }
    return 0;
}

bool Condutor::Resgata()
{
    for (int r = 0; r < kPassadasResgate && !m_montagem.Completa(); ++r) {
        encaixadoidao(m_montagem, kSorteiosPorCelula);
    }
    return m_montagem.Completa();
}

} // namespace

FimMontagem CarregaPalavras(const DadosMontagem &dados)
{
    Q_ASSERT(dados.indice.Serve());
    return Condutor(dados).Conduz();
}
