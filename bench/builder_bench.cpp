// Building puzzles without a window: the time of single puzzles with an empty and a full memory, by
// the index and by the plain scan on the same seeds, and of one draw with its rejection. All times
// are the processor's, so that other programs do not count.

#include <benchmark/benchmark.h>

#include "tests/core/support/sample_banks.h"
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <memory>
#include <QFile>

namespace {

constexpr int kJogos = 400;
constexpr int kMuitosJogos = 5000;

double Percentil(const std::vector<double> &ordenados, double parte)
{
    const auto ultimo = static_cast<double>(ordenados.size() - 1);
    return ordenados[static_cast<size_t>(std::lround(ultimo * parte))];
}

/// The times of single puzzles, in microseconds, in ascending order.
struct Tempos
{
    double mediana = 0;
    double p99 = 0;
    double soma = 0;
};

Tempos Resume(std::vector<double> tempos)
{
    std::sort(tempos.begin(), tempos.end());
    Tempos resumo{Percentil(tempos, 0.5), Percentil(tempos, 0.99), 0};
    for (const double tempo : tempos) {
        resumo.soma += tempo;
    }
    return resumo;
}

/// The game's own bank if it is full, else one of syllables.
QByteArray LeBanco()
{
    QFile ficheiro(QStringLiteral(QUADRELO_BANCO));
    QByteArray registros;
    if (ficheiro.open(QIODevice::ReadOnly)) {
        registros = ficheiro.readAll();
    }
    const bool cheio = registros.size() >= qsizetype{kMaxPerguntas} * kBytesRegistro;
    benchmark::AddCustomContext("bank", cheio ? "the game's own" : "3,000 words of syllables");
    return cheio ? registros : RegistrosDe(PalavrasDeSilabas(kMaxPerguntas, 1));
}

/// Fills the memory as twenty games do.
void EncheMemoria(Oficina &oficina)
{
    AcasoMersenne acaso(20);
    for (int jogo = 0; jogo < kUsadas / kItens; ++jogo) {
        oficina.Monta(acaso);
        EmpurraUsadas(oficina.memoria, oficina.tabuleiro);
    }
}

/// One puzzle an iteration, restarts included; seed n for iteration n.
void MedeJogos(benchmark::State &estado, Oficina &oficina, BuscaUsadas busca, Tempos &resumo)
{
    std::vector<double> tempos;
    int falhas = 0;
    double sorteios = 0;
    std::uint64_t semente = 0;
    for ([[maybe_unused]] auto _ : estado) {
        AcasoMersenne acaso(++semente);
        const std::clock_t inicio = std::clock();
        falhas += oficina.Monta(acaso, busca);
        const double segundos = static_cast<double>(std::clock() - inicio) / CLOCKS_PER_SEC;
        estado.SetIterationTime(segundos);
        tempos.push_back(segundos * 1e6);
        sorteios += static_cast<double>(acaso.Sorteios());
    }
    resumo = Resume(tempos);
    estado.counters["p50_us"] = resumo.mediana;
    estado.counters["p99_us"] = resumo.p99;
    estado.counters["draws"] = sorteios / static_cast<double>(semente);
    estado.counters["failed_%"] = 100.0 * falhas / (falhas + static_cast<double>(semente));
}

/// One draw of an entry that the builder refuses: used, or without the letter.
void MedeSorteio(benchmark::State &estado, Oficina &oficina, BuscaUsadas busca)
{
    AcasoMersenne acaso(1);
    ZeraTabuleiro(oficina.tabuleiro);
    oficina.tabuleiro.QtdItens = 0;
    Montagem montagem(oficina.Dados(acaso, busca));
    for ([[maybe_unused]] auto _ : estado) {
        const int k = montagem.SorteiaPergunta();
        benchmark::DoNotOptimize(montagem.JaFoi(k) || montagem.PosicaoDaLetra(k, u'Q') > 0);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const QByteArray registros = LeBanco();
    const auto vazia = std::make_unique<Oficina>(registros);
    const auto cheia = std::make_unique<Oficina>(registros);
    const auto longas = std::make_unique<Oficina>(
        RegistrosDe(PalavrasDeSilabas(kMaxPerguntas, 1, kComoDicionario)));
    EncheMemoria(*cheia);
    EncheMemoria(*longas);

    struct Medida
    {
        std::string nome;
        Oficina &oficina;
        BuscaUsadas busca;
        int jogos;
        Tempos tempos;
    };
    std::vector<Medida> medidas;
    for (const auto &[nome, oficina] : {std::pair{"full_memory", cheia.get()},
                                        {"empty_memory", vazia.get()},
                                        {"full_memory_dictionary_lengths", longas.get()}}) {
        const std::string inicio = std::string("puzzle/") + nome;
        medidas.push_back({inicio + "/index", *oficina, BuscaUsadas::Indice, kJogos, {}});
        medidas.push_back(
            {inicio + "/plain_scan", *oficina, BuscaUsadas::VarreduraSimples, kJogos, {}});
        medidas.push_back({inicio + "/index", *oficina, BuscaUsadas::Indice, kMuitosJogos, {}});
    }
    for (Medida &medida : medidas) {
        benchmark::RegisterBenchmark(medida.nome.c_str(),
                                     [&medida](benchmark::State &estado) {
                                         MedeJogos(estado, medida.oficina, medida.busca,
                                                   medida.tempos);
                                     })
            ->Iterations(medida.jogos)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
    for (const auto &[nome, busca] :
         {std::pair{"draw/full_memory/index", BuscaUsadas::Indice},
          {"draw/full_memory/plain_scan", BuscaUsadas::VarreduraSimples}}) {
        benchmark::RegisterBenchmark(nome, [&cheia, busca = busca](benchmark::State &estado) {
            MedeSorteio(estado, *cheia, busca);
        });
    }
    benchmark::RunSpecifiedBenchmarks();
    for (size_t k = 0; k + 1 < medidas.size(); k += 3) {
        const Tempos &indice = medidas[k].tempos;
        const Tempos &simples = medidas[k + 1].tempos;
        if (indice.soma > 0 && simples.soma > 0) {
            std::printf("%s against the plain scan, the same %d puzzles: %.1f times in all, "
                        "%.1f at the median, %.1f at the 99th percentile\n",
                        medidas[k].nome.c_str(), kJogos, simples.soma / indice.soma,
                        simples.mediana / indice.mediana, simples.p99 / indice.p99);
        }
    }
    return 0;
}
