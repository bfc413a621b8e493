// How the game feels, measured in its real window: play_bench, under a display (or Xvfb).
//
// Prints medians and 99th percentiles of: a new game from the click to a board that can be played;
// a key from its press to the painted letter; a selection that wipes a word; and what idle play
// costs of a core.

#include "tests/ui/support/test_game.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace {

constexpr int kNovosJogos = 40;
constexpr int kTeclas = 400;
constexpr int kSelecoes = 200;
constexpr int kOciosoMs = 10000;

void Imprime(const char *nome, std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    std::printf("%-46s median %7.2f ms, p99 %7.2f ms (%zu)\n", nome, ms[ms.size() / 2],
                ms[ms.size() * 99 / 100], ms.size());
}

/// Milliseconds that `acao` takes until its effects are painted.
double Mede(const std::function<void()> &acao)
{
    QElapsedTimer relogio;
    relogio.start();
    acao();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return static_cast<double>(relogio.nsecsElapsed()) / 1e6;
}

void MedeNovoJogo(const JogoDeTeste &jogo)
{
    std::vector<double> ms;
    for (int k = 0; k < kNovosJogos; ++k) {
        ms.push_back(Mede([&jogo] { jogo.Menu(0); }));
    }
    Imprime("new game, click to playable board", ms);
}

void MedeTeclas(JogoDeTeste &jogo)
{
    std::vector<double> ms;
    while (ms.size() < kTeclas) {
        for (int n = 1; n <= kItens; ++n) {
            jogo.Seleciona(n);
            for (qsizetype k = 1; k < jogo.d().Item(n).Palavra.size(); ++k) {
                ms.push_back(Mede([&jogo] { jogo.Digita(QStringLiteral("x")); }));
            }
        }
    }
    Imprime("key press to painted letter", ms);
}

void MedeSelecoes(JogoDeTeste &jogo)
{
    int longo = 1;
    for (int n = 2; n <= kItens; ++n) {
        longo = jogo.d().Item(n).Palavra.size() > jogo.d().Item(longo).Palavra.size() ? n : longo;
    }
    std::vector<double> ms;
    for (int k = 0; k < kSelecoes; ++k) {
        jogo.Seleciona(longo);
        jogo.Digita(QString(jogo.d().Item(longo).Palavra.size() - 1, u'x'));
        ms.push_back(Mede([&] { jogo.Seleciona(longo == 1 ? 2 : 1); }));
    }
    std::printf("(the word that is wiped has %d letters)\n",
                static_cast<int>(jogo.d().Item(longo).Palavra.size()));
    Imprime("selection that wipes a word", ms);
}

void MedeOcio()
{
    const std::clock_t antes = std::clock();
    QEventLoop espera;
    QTimer::singleShot(kOciosoMs, &espera, &QEventLoop::quit);
    espera.exec();
    const double cpu = static_cast<double>(std::clock() - antes) / CLOCKS_PER_SEC * 1000;
    std::printf("idle play, only the clock: %.2f%% of a core\n", cpu * 100 / kOciosoMs);
}

void ImprimeMemoria()
{
    QFile estado(QStringLiteral("/proc/self/status"));
    if (estado.open(QIODevice::ReadOnly)) {
        for (const QByteArray &linha : estado.readAll().split('\n')) {
            if (linha.startsWith("VmRSS") || linha.startsWith("RssAnon")) {
                std::printf("%s\n", linha.constData());
            }
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication aplicacao(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    JogoDeTeste jogo(1, BancoInventado(3000));
    jogo.Comeca();
    MedeNovoJogo(jogo);
    MedeTeclas(jogo);
    MedeSelecoes(jogo);
    MedeOcio();
    ImprimeMemoria();
    return 0;
}
