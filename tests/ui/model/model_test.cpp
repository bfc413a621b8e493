#include "tests/ui/model/jogador.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>

namespace modelo {

namespace {

constexpr int kSessoes = 12;
constexpr int kTempoDeReduzirMs = 60'000;

struct Sessao
{
    std::uint64_t semente = 0;
    std::vector<Ato> atos;
};

/// Plays a session; gives what went wrong, and cuts the session behind the act that did it.
QString Joga(Sessao &sessao, int *partidas = nullptr)
{
    Jogador jogador(sessao.semente);
    QString erro = jogador.Comeca();
    size_t k = 0;
    while (erro.isEmpty() && k < sessao.atos.size()) {
        erro = jogador.Faz(sessao.atos[k++]);
    }
    if (!erro.isEmpty()) {
        sessao.atos.resize(k);
    }
    if (partidas != nullptr) {
        *partidas += jogador.Partidas();
    }
    return erro;
}

/// Leaves out acts, in ever smaller pieces, as long as the session still fails.
void Reduz(Sessao &sessao, QString &erro)
{
    QElapsedTimer relogio;
    relogio.start();
    for (size_t pedaco = sessao.atos.size() / 2; pedaco > 0; pedaco /= 2) {
        for (size_t k = 0; k < sessao.atos.size();) {
            Sessao menor = sessao;
            const auto aqui = menor.atos.begin() + static_cast<std::ptrdiff_t>(k);
            menor.atos.erase(
                aqui, aqui + static_cast<std::ptrdiff_t>(std::min(pedaco, menor.atos.size() - k)));
            if (relogio.hasExpired(kTempoDeReduzirMs)) {
                return;
            }
            if (const QString ainda = Joga(menor); !ainda.isEmpty()) {
                sessao = menor;
                erro = ainda;
            } else {
                k += pedaco;
            }
        }
    }
}

std::string Texto(const Sessao &sessao)
{
    std::string texto = std::to_string(sessao.semente);
    for (const Ato &ato : sessao.atos) {
        for (const int numero : {ato.tipo, ato.a, ato.b, ato.c}) {
            texto += ' ' + std::to_string(numero);
        }
    }
    return texto;
}

Sessao Lida(const QByteArray &texto)
{
    const QList<QByteArray> numeros = texto.split(' ');
    Sessao sessao{numeros[0].toULongLong(), {}};
    for (int k = 1; k + 3 < numeros.size(); k += 4) {
        sessao.atos.push_back({numeros[k].toInt(), numeros[k + 1].toInt(), numeros[k + 2].toInt(),
                               numeros[k + 3].toInt()});
    }
    return sessao;
}

void JogaEConta(Sessao sessao, int *partidas = nullptr)
{
    QString erro = Joga(sessao, partidas);
    if (!erro.isEmpty()) {
        Reduz(sessao, erro);
        FAIL() << "QUADRELO_ATOS=\"" << Texto(sessao) << "\"\n" << qPrintable(erro);
    }
}

} // namespace

/// QUADRELO_PARTIDAS=N plays at least N games, QUADRELO_SEMENTE=S begins with session S, and
/// QUADRELO_ATOS replays a session as a failure has printed it.
TEST(SegundoJogador, SeesWhatTheRulesSayAfterEveryAct)
{
    if (qEnvironmentVariableIsSet("QUADRELO_ATOS")) {
        JogaEConta(Lida(qgetenv("QUADRELO_ATOS")));
        return;
    }
    const int quantas = qEnvironmentVariableIntValue("QUADRELO_PARTIDAS");
    const int primeira = std::max(1, qEnvironmentVariableIntValue("QUADRELO_SEMENTE"));
    QElapsedTimer relogio;
    relogio.start();
    int partidas = 0;
    for (int s = primeira;
         !HasFatalFailure() && (quantas > 0 ? partidas < quantas : s < primeira + kSessoes); ++s) {
        if (quantas > 0) {
            std::fprintf(stderr, "session %d, %d games\r", s, partidas);
        }
        const auto semente = static_cast<std::uint64_t>(s);
        JogaEConta({semente, Sorteados(semente)}, &partidas);
    }
    std::printf("%d games in %lld ms\n", partidas, static_cast<long long>(relogio.elapsed()));
}

} // namespace modelo
