#include <gtest/gtest.h>

#include "support/sample_banks.h"
#include "support/slow_builder.h"
#include "tools/house_rules.h"
#include <memory>
#include <QFile>

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
    for (size_t k = 1; k <= size_t(std::min(int{lista}, kUsadas)); ++k) {
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
    for (size_t n = 1; n <= size_t(lento.qtdItens); ++n) {
        const RegistroItem &item = tabuleiro.ItemPalavra[n];
        const ConstrutorLento::Item &outro = lento.item[n];
        ASSERT_EQ(item.Palavra, outro.palavra) << "item " << n;
        ASSERT_EQ(item.Sentido, outro.sentido) << "item " << n;
        ASSERT_EQ(item.Ponto, outro.ponto) << "item " << n;
        ASSERT_EQ(item.Dica, QStringLiteral("pista %1").arg(outro.pergunta)) << "item " << n;
    }
    for (size_t i = 1; i <= size_t{kCelulas}; ++i) {
        const CelulaQuadrado &celula = tabuleiro.Quadrado[i];
        const ConstrutorLento::Celula &outra = lento.celula[i];
        ASSERT_EQ(tabuleiro.Ocupada[i], outra.visivel) << "cell " << i;
        ASSERT_EQ(celula.Itens, outra.itens) << "cell " << i;
        ASSERT_EQ(celula.Sentido, outra.sentido) << "cell " << i;
        ASSERT_TRUE(!outra.visivel || celula.Letra == outra.letra) << "cell " << i;
    }
}

struct Caso
{
    const char *nome;
    QByteArray registros;
    int sementes;
    std::vector<Lista> listas;
};

void ComparaCaso(const Caso &caso)
{
    const int fator = std::max(1, qEnvironmentVariableIntValue("QUADRELO_FATOR"));
    for (const Lista lista : caso.listas) {
        for (int semente = 1; semente <= caso.sementes * fator; ++semente) {
            SCOPED_TRACE(testing::Message() << caso.nome << ", " << lista << ", seed " << semente);
            const auto numero = static_cast<std::uint64_t>(semente);
            const auto oficina = std::make_unique<Oficina>(caso.registros);
            ConstrutorLento lento(LePalavrasLento(caso.registros), numero);
            AcasoMersenne acaso(numero);
            EncheLista(lista, *oficina, lento, numero + 7);
            // The second build goes on in the stream of the first.
            for (const auto busca : {BuscaUsadas::Indice, BuscaUsadas::VarreduraSimples}) {
                ASSERT_EQ(oficina->Tenta(acaso, busca), lento.Monta());
                ComparaMesas(oficina->tabuleiro, lento);
                ASSERT_EQ(acaso.Sorteios(), lento.sorteios);
                if (testing::Test::HasFatalFailure()) return;
            }
        }
    }
}

/// The game's own words, with clues that name the entry.
QByteArray BancoDoJogo()
{
    QFile fonte(QStringLiteral(QUADRELO_FONTE));
    EXPECT_TRUE(fonte.open(QIODevice::ReadOnly));
    const FonteBanco lida = LeFonte(fonte.readAll());
    EXPECT_EQ(lida.faltas, QStringList());
    std::vector<QByteArray> palavras;
    const QByteArray bytes = CompilaBanco(lida.entradas);
    for (qsizetype r = 0; r < bytes.size(); r += 76) {
        palavras.push_back(bytes.mid(r, 15));
    }
    return RegistrosDe(palavras);
}

} // namespace

TEST(SlowBuilder, AgreesWithTheBuilderOnManyBanksAndMemories)
{
    const std::vector todas{Vazia, Parte, Cheia, ComFuros};
    const QByteArray comuns("AAAAEEEEIIIOOOOUBCDFGLMNPRRSSTTV");
    QByteArray bytes(400, 'a');
    for (int b = 0; b < 256; ++b) {
        bytes += QByteArray(b == 'A' || b == 0xC3 ? 300 : 1, static_cast<char>(b));
    }
    for (const Caso &caso : {
             Caso{"the game's own bank", BancoDoJogo(), 12, todas},
             Caso{"3,000 entries", RegistrosDe(PalavrasDeSilabas(3000, 1)), 12, todas},
             Caso{"5,000 records", RegistrosDe(PalavrasDeSilabas(5000, 2)), 4, todas},
             Caso{"long words", SorteiaRegistros({900, 9, 15, comuns}, 3), 3, {Vazia, Parte}},
             Caso{"repeated, empty", SorteiaRegistros({700, 1, 9, comuns, 40, 10}, 4), 8, todas},
             Caso{"few words", SorteiaRegistros({60, 3, 8, comuns}, 5), 3, {Vazia, Parte}},
             Caso{"one letter", SorteiaRegistros({60, 2, 15, "A", 10}, 6), 3, {Vazia, Parte}},
             Caso{"any byte, blanks", SorteiaRegistros({800, 1, 15, bytes, 5, 5}, 7), 8, todas},
             Caso{"a single word", RegistrosDe({"", "ABACAXI"}), 3, {Vazia, Parte}},
         }) {
        ComparaCaso(caso);
        if (HasFatalFailure()) return;
    }
}
