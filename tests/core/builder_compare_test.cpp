#include <gtest/gtest.h>

#include "support/sample_banks.h"
#include "support/slow_builder.h"
#include <memory>

// The builder held against a second, slow one: same seed, bank and memory, same puzzle, item by
// item, cell by cell and draw by draw. QUADRELO_FATOR in the environment multiplies the seeds.

namespace {

/// What fills the used-word list before the first build: this many entries, or all with gaps.
enum Lista { Vazia = 0, Parte = 182, Cheia = kUsadas, ComFuros };

/// Fills the used-word lists of both alike, with words of the bank and some others.
void EncheLista(Lista lista, Oficina &oficina, ConstrutorLento &lento, std::uint64_t semente)
{
    std::mt19937_64 gerador(semente);
    const auto n = static_cast<unsigned>(oficina.banco.QtdPerguntas);
    for (int k = 1; k <= std::min(int{lista}, kUsadas); ++k) {
        if (lista == ComFuros && gerador() % 5 == 0) continue;
        oficina.memoria.PalavrasUsadas[k] =
            gerador() % 40 == 0 ? QString(u'Ж') : oficina.banco.BancoPalavra[1 + gerador() % n];
        ++oficina.memoria.QtdUsadas;
    }
    lento.usadas = oficina.memoria.PalavrasUsadas;
    lento.qtdUsadas = oficina.memoria.QtdUsadas;
}

void ComparaMesas(const Tabuleiro &tabuleiro, const ConstrutorLento &lento)
{
    ASSERT_EQ(tabuleiro.QtdItens, lento.qtdItens);
    for (int n = 1; n <= lento.qtdItens; ++n) {
        const auto &[palavra, sentido, ponto, pergunta] = lento.item.at(size_t(n));
        const RegistroItem &item = tabuleiro.ItemPalavra[n];
        ASSERT_EQ(item.Palavra + item.Sentido, palavra + sentido) << "item " << n;
        ASSERT_EQ(item.Ponto, ponto) << "item " << n;
        ASSERT_EQ(item.Dica, QStringLiteral("pista %1").arg(pergunta)) << "item " << n;
    }
    for (size_t i = 1; i <= size_t{kCelulas}; ++i) {
        const auto &[visivel, itens, sentido, letra] = lento.celula[i];
        const CelulaQuadrado &celula = tabuleiro.Quadrado[i];
        ASSERT_EQ(tabuleiro.Ocupada[i], visivel) << "cell " << i;
        ASSERT_EQ(celula.Itens, itens) << "cell " << i;
        ASSERT_EQ(celula.Sentido, sentido) << "cell " << i;
        ASSERT_TRUE(!visivel || celula.Letra == letra) << "cell " << i;
    }
}

/// Words with others behind them that are empty, repeated, or one letter again and again.
std::vector<QByteArray> Variadas(int quantas)
{
    std::vector<QByteArray> palavras;
    for (const QByteArray &palavra : PalavrasDeSilabas(quantas, 4)) {
        palavras.insert(palavras.end(),
                        {palavra, "", palavras.empty() ? "A" : palavras[palavras.size() / 3],
                         QByteArray(palavra.size() - 2, 'A')});
    }
    return palavras;
}

} // namespace

TEST(SlowBuilder, AgreesWithTheBuilderOnManyBanksAndMemories)
{
    const std::vector todas{Vazia, Parte, Cheia, ComFuros};
    const std::vector curtas{Vazia, Parte};
    const struct
    {
        const char *nome;
        QByteArray registros;
        int sementes;
        std::vector<Lista> listas;
    } casos[] = {
        {"a bank like the game's", RegistrosDe(PalavrasDeSilabas(2600, 1)), 6, todas},
        {"5,000 records", RegistrosDe(PalavrasDeSilabas(5000, 2)), 3, todas},
        {"long words", RegistrosDe(PalavrasDeSilabas(900, 3, {0, 0, 0, 0, 0, 0, 1, 1, 1, 1})), 3,
         curtas},
        {"repeated, empty, one letter", RegistrosDe(Variadas(250)), 6, todas},
        {"few words", RegistrosDe(PalavrasDeSilabas(60, 5)), 3, curtas},
        {"any byte, blanks",
         RegistrosDe(Variadas(300)).replace('O', '\xC3').replace('U', ' ').replace('I', '\0'), 6,
         todas},
        {"a single word", RegistrosDe({"", "ABACAXI"}), 3, curtas},
    };
    const int fator = std::max(1, qEnvironmentVariableIntValue("QUADRELO_FATOR"));
    for (const auto &[nome, registros, sementes, listas] : casos) {
        for (int n = 0; n < sementes * fator * static_cast<int>(listas.size()); ++n) {
            const auto lista = listas[size_t(n) % listas.size()];
            const auto semente = static_cast<std::uint64_t>(n) + 1;
            SCOPED_TRACE(testing::Message() << nome << ", " << lista << ", seed " << semente);
            const auto oficina = std::make_unique<Oficina>(registros);
            ConstrutorLento lento(LePalavrasLento(registros), semente);
            AcasoMersenne acaso(semente);
            EncheLista(lista, *oficina, lento, semente + 7);
            // The second build goes on in the stream of the first.
            for (const auto busca : {BuscaUsadas::Indice, BuscaUsadas::VarreduraSimples}) {
                ASSERT_EQ(oficina->Tenta(acaso, busca), lento.Monta());
                ComparaMesas(oficina->tabuleiro, lento);
                ASSERT_EQ(acaso.Sorteios(), lento.sorteios);
                if (HasFatalFailure()) return;
            }
        }
    }
}
