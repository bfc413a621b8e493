#include "core/builder/placement_tests.h"

#include <gtest/gtest.h>

#include "core/builder/word_index.h"
#include "support/sample_banks.h"
#include "support/slow_builder.h"
#include <memory>

TEST(PlacementTests, EspacoCountsTheWayToTheEdgeFromEveryCell)
{
    for (int i = 1; i <= kCelulas; ++i) {
        for (const QChar d : {u'L', u'R', u'T', u'D'}) {
            EXPECT_EQ(espaco(i, d), AlcanceLento(i, d)) << "cell " << i << d.toLatin1();
        }
        for (const QChar d : {u'H', u'V', u'M', u' ', u'l'}) {
            EXPECT_EQ(espaco(i, d), 0);
        }
    }
    EXPECT_EQ(espaco(585, u'R'), -13);
}

TEST(PlacementTests, CabeLeavesOneCellOfTheLineFreeBehindTheWord)
{
    for (int i = -40; i <= kCelulas + 40; ++i) {
        const bool cela = i >= 1 && i <= kCelulas;
        for (int n = 1; n <= 15; ++n) {
            EXPECT_EQ(Cabe(n, i, u'H'), cela && ColunaDe(i) + n - 1 <= 24) << i << ' ' << n;
            EXPECT_EQ(Cabe(n, i, u'V'), cela && LinhaDe(i) + n - 1 <= 20) << i << ' ' << n;
            EXPECT_FALSE(Cabe(n, i, u'M') || Cabe(n, i, QChar()));
        }
    }
}

TEST(PlacementTests, VaziosStopsAtTheFirstCellThatIsNotClear)
{
    std::mt19937_64 gerador(1);
    const auto lento = std::make_unique<ConstrutorLento>(std::vector<QString>(1), 1);
    const auto tabuleiro = std::make_unique<Tabuleiro>();
    for (const unsigned densidade : {0U, 1U, 2U, 4U, 8U, 16U, 40U}) {
        for (int vez = 0; vez < 8; ++vez) {
            for (size_t i = 1; i <= size_t{kCelulas}; ++i) {
                tabuleiro->Ocupada[i] = gerador() % 100 < densidade;
                lento->celula[i].visivel = tabuleiro->Ocupada[i];
            }
            for (int i = 1; i <= kCelulas; ++i) {
                for (const QChar d : {u'L', u'R', u'T', u'D'}) {
                    ASSERT_EQ(Vazios(*tabuleiro, i, d), lento->Vazios(i, d))
                        << "cell " << i << d.toLatin1() << " at " << densidade << '%';
                }
            }
        }
    }
}

TEST(PlacementTests, JafoiComparesExactlyAndReadsTheListUpToItsCount)
{
    MemoriaUsadas memoria;
    memoria.PalavrasUsadas[1] = QStringLiteral("AÇÃO");
    memoria.PalavrasUsadas[3] = QStringLiteral("BOI");
    memoria.PalavrasUsadas[4] = QStringLiteral("GATO");
    Tabuleiro tabuleiro;
    tabuleiro.ItemPalavra[1].Palavra = QStringLiteral("POSTA");
    tabuleiro.ItemPalavra[2].Palavra = QStringLiteral("SOBRA");
    tabuleiro.QtdItens = 1;
    struct Caso
    {
        const char *nome;
        int quantas;
        const char16_t *palavra;
        bool usada;
    };
    for (const Caso &caso :
         {Caso{"in the list", 3, u"AÇÃO", true}, Caso{"no accents", 3, u"ACAO", false},
          Caso{"small letters", 3, u"ação", false}, Caso{"a blank more", 3, u"AÇÃO ", false},
          Caso{"on the count", 3, u"BOI", true}, Caso{"behind the count", 3, u"GATO", false},
          Caso{"none counted", 0, u"AÇÃO", false}, Caso{"placed", 0, u"POSTA", true},
          Caso{"left over from the last game", 0, u"SOBRA", false},
          Caso{"the empty word of entry 0", 0, u"", true}}) {
        memoria.QtdUsadas = caso.quantas;
        EXPECT_EQ(jafoi(QString::fromUtf16(caso.palavra), memoria, tabuleiro), caso.usada)
            << caso.nome;
        EXPECT_EQ(memoria.QtdUsadas, caso.quantas) << caso.nome;
    }
    memoria.QtdUsadas = 600;
    EXPECT_FALSE(jafoi(QStringLiteral("NOVA"), memoria, tabuleiro));
    EXPECT_EQ(memoria.QtdUsadas, 520);
}

TEST(WordIndex, AnswersWhatThePlainScansAnswer)
{
    for (std::uint64_t semente = 1; semente <= 12; ++semente) {
        BancoPerguntas banco;
        CarregaRegistros(banco, SorteiaRegistros({600, 1, 6, "AaBC\xC7\xE7", 20, 3}, semente));
        const IndiceBanco indice(banco);
        std::mt19937_64 gerador(semente);
        const auto entrada = [&] { return 1 + static_cast<int>(gerador() % 600); };

        MemoriaUsadas memoria;
        memoria.QtdUsadas = std::array{0, 40, 519, 520, 521, 32767}.at(semente % 6);
        for (int k = 0; k <= kUsadas; k += 1 + static_cast<int>(gerador() % 3)) {
            memoria.PalavrasUsadas.at(size_t(k)) = banco.BancoPalavra.at(size_t(entrada()));
        }
        Tabuleiro tabuleiro;
        MarcasUsadas marcas(indice, memoria);
        EXPECT_LE(memoria.QtdUsadas, kUsadas);
        for (int posta = 0; posta <= kItens; ++posta) {
            for (int k = 1; k <= banco.QtdPerguntas; ++k) {
                const QString &palavra = banco.BancoPalavra.at(size_t(k));
                ASSERT_EQ(marcas.JaFoi(k), jafoi(palavra, memoria, tabuleiro))
                    << semente << ' ' << k;
                ASSERT_EQ(indice.Comprimento(k), palavra.size());
                for (const QChar letra : QStringLiteral("AaBCÇçZ€")) {
                    ASSERT_EQ(indice.PrimeirasPosicoes(letra)[k], palavra.indexOf(letra) + 1);
                }
            }
            if (posta == kItens) break;
            const int k = entrada();
            marcas.Marca(k);
            tabuleiro.ItemPalavra.at(size_t(++tabuleiro.QtdItens)).Palavra =
                banco.BancoPalavra.at(size_t(k));
        }
    }
}

TEST(WordIndex, ABankServesWithOneWordOfFiveLetters)
{
    BancoPerguntas banco;
    CarregaRegistros(banco, {});
    EXPECT_FALSE(IndiceBanco(banco).Serve());
    CarregaRegistros(banco, RegistrosDe({"", "CASA", "  BOI"}));
    EXPECT_FALSE(IndiceBanco(banco).Serve());
    CarregaRegistros(banco, RegistrosDe({"CASA", "\xC1RVOR"}));
    EXPECT_TRUE(IndiceBanco(banco).Serve());
}
