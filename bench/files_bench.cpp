#include <benchmark/benchmark.h>
#include <QTemporaryDir>

#include "core/bank/used_words.h"
#include "core/files/ini_file.h"
#include "core/records/ranking_table.h"
#include "core/records/save_slot.h"

/// What the stored files cost. All that writes waits for the disk; "SmallestWrite" is the least
/// that such a wait costs here, and "PushWithoutDisk" is what a push costs beside it.

namespace {

/// Twenty-six words, none across another.
Tabuleiro Jogo(int numero)
{
    Tabuleiro tabuleiro;
    tabuleiro.QtdItens = kItens;
    for (int n = 1; n <= kItens; ++n) {
        auto &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        item.Palavra = QStringLiteral("PALAVRA%1").arg(numero * kItens + n, 4, 10, QChar(u'0'));
        item.Dica = QString(60, u'd');
        item.Sentido = u'H';
        item.Ponto = n <= 22 ? (n - 1) * kColunas + 1 : (n - 22) * kColunas + 14;
    }
    return tabuleiro;
}

/// A folder with a full file of each kind.
struct Pasta
{
    Pasta()
    {
        MemoriaUsadas memoria;
        for (int jogo = 1; jogo <= 20; ++jogo) {
            GravaUsadas(memoria, usadas, Jogo(jogo));
        }
        for (int n = 1; n <= kSlots; ++n) {
            SalvaSlot(jogos, n, QStringLiteral("Jogo %1").arg(n), Jogo(n), 300.5,
                      QStringLiteral(","));
        }
    }

    QTemporaryDir pasta{QStringLiteral("files_bench-XXXXXX")};
    QString usadas = pasta.filePath(QStringLiteral("jf.dat"));
    QString jogos = pasta.filePath(QStringLiteral("save.ini"));
};

void SmallestWrite(benchmark::State &estado)
{
    const QTemporaryDir pasta(QStringLiteral("files_bench-XXXXXX"));
    int k = 0;
    for (auto _ : estado) {
        WritePrivateProfileStringA(QStringLiteral("s"), QStringLiteral("k"), QString::number(++k),
                                   pasta.filePath(QStringLiteral("x.ini")));
    }
}

void PushUsedWords(benchmark::State &estado)
{
    const Pasta pasta;
    MemoriaUsadas memoria;
    int k = 20;
    for (auto _ : estado) {
        GravaUsadas(memoria, pasta.usadas, Jogo(++k % 300));
    }
    if (memoria.QtdUsadas != kUsadas) {
        estado.SkipWithError("the list is not full");
    }
}

void PushWithoutDisk(benchmark::State &estado)
{
    const Pasta pasta;
    const QString secao = QStringLiteral("Indice");
    for (auto _ : estado) {
        LoteIni lote(pasta.usadas);
        for (int k = kUsadas; k > kItens; --k) {
            lote.Escreve(secao, QStringLiteral("Palavra%1").arg(k),
                         lote.Le(secao, QStringLiteral("Palavra%1").arg(k - kItens)));
        }
        benchmark::DoNotOptimize(lote);
    }
}

void ReadUsedWords(benchmark::State &estado)
{
    const Pasta pasta;
    MemoriaUsadas memoria;
    for (auto _ : estado) {
        LeUsadas(memoria, pasta.usadas);
    }
}

void SaveGame(benchmark::State &estado)
{
    const Pasta pasta;
    int k = 0;
    for (auto _ : estado) {
        ++k;
        SalvaSlot(pasta.jogos, 5, QStringLiteral("Jogo"), Jogo(k % 300), k, QStringLiteral(","));
    }
}

void ReadGame(benchmark::State &estado)
{
    const Pasta pasta;
    for (auto _ : estado) {
        if (!std::holds_alternative<JogoSalvo>(LeSlot(pasta.jogos, 5))) {
            estado.SkipWithError("the slot does not read");
        }
    }
}

BENCHMARK(SmallestWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(PushUsedWords)->Unit(benchmark::kMillisecond);
BENCHMARK(PushWithoutDisk)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadUsedWords)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveGame)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadGame)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
