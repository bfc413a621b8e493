#include "core/builder/fill_driver.h"

#include "core/builder/placement_tests.h"
#include "core/builder/rescue.h"

namespace {

constexpr int kMenorPrimeira = 5;
constexpr int kMenorAtravessada = 5;
constexpr int kMenorSegundaDescida = 6;
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

    [[nodiscard]] const RegistroItem &Item(int n) const
    {
        return m_tabuleiro.ItemPalavra[static_cast<size_t>(n)];
    }
    [[nodiscard]] int Comprimento(int k) const { return m_montagem.d.indice.Comprimento(k); }
    bool Chance(int p) { return Sorteia(m_montagem.d.acaso, p); }

    Montagem m_montagem;
    Tabuleiro &m_tabuleiro;
    bool m_primeiraDesce = false;
    /// Position, from 1, in the latest across word, of the letter on the word that it crosses.
    int m_cruzamento = 0;
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
    m_primeiraDesce = Chance(75);
    if (m_primeiraDesce) {
        const int ponto = SorteiaPontoDescida();
        if (!Cabe(Comprimento(k), ponto, u'V')) {
            return false;
        }
        m_montagem.Poe(k, ponto, u'V');
        return true;
    }
    const int ponto = SorteiaNumero(m_montagem.d.acaso, 190) + 2;
    if (ponto % kColunas < 4 || !Cabe(Comprimento(k), ponto, u'H')) {
        return false;
    }
    m_montagem.Poe(k, ponto, u'H');
    return true;
}

int Condutor::SorteiaPontoDescida()
{
    for (;;) {
        const int ponto = SorteiaNumero(m_montagem.d.acaso, 90) + 9;
        const int margem = SorteiaNumero(m_montagem.d.acaso, 4) + 1;
        if (espaco(ponto, u'L') > margem && espaco(ponto, u'R') > margem) {
            return ponto;
        }
    }
}

Seguir Condutor::Esqueleto()
{
    if (!m_primeiraDesce || Chance(50)) {
        return Seguir::Resgate;
    }
    if (const Seguir fim = AtravessaPalavras({1, 1, kMenorAtravessada}); fim != Seguir::Proxima) {
        return fim;
    }
    if (Chance(25)) {
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
        const bool sorteada = Chance(65);
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
        m_cruzamento = q;
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
    const QChar primeira = m_montagem.d.banco.BancoPalavra[static_cast<size_t>(k)][0];
    const int fim = qMin(Comprimento(k), static_cast<int>(ultima.Palavra.size()));
    for (int q = 1; q <= fim; ++q) {
        const int ponto = ultima.Ponto + q - 1;
        if (q != m_cruzamento && ultima.Palavra[q - 1] == primeira &&
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
