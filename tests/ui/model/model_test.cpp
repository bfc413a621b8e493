#include "tests/ui/model/jogador.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>

namespace modelo {

namespace {

constexpr int kSessoes = 5;
constexpr int kTempoDeReduzirMs = 60'000;

struct Sessao
{
    std::uint64_t semente = 0;
    std::vector<Ato> atos;
};

/// Plays a session; gives what went wrong, and cuts the session behind the act that did it.
QString Joga(Sessao &sessao, int &partidas)
{
    Jogador jogador(sessao.semente);
    QString erro = jogador.Comeca();
    size_t k = 0;
    while (erro.isEmpty() && k < sessao.atos.size())
        erro = jogador.Faz(sessao.atos[k++]);
    if (!erro.isEmpty()) sessao.atos.resize(k);
    partidas += jogador.Partidas();
    return erro;
}

/// Leaves out acts, in ever smaller pieces, as long as the session still fails.
void Reduz(Sessao &sessao, QString &erro)
{
    QElapsedTimer relogio;
    relogio.start();
    for (auto pedaco = std::ssize(sessao.atos) / 2; pedaco > 0; pedaco /= 2) {
        for (auto k = std::ssize(sessao.atos) - pedaco; k >= 0; k -= pedaco) {
            int partidas = 0;
            Sessao menor = sessao;
            menor.atos.erase(menor.atos.begin() + k, menor.atos.begin() + k + pedaco);
            const QString ainda = Joga(menor, partidas);
            if (relogio.hasExpired(kTempoDeReduzirMs)) return;
            if (!ainda.isEmpty()) {
                sessao = menor;
                erro = ainda;
                k = std::min(k, std::ssize(sessao.atos));
            }
        }
    }
}

std::string Texto(const Sessao &sessao)
{
    std::string texto = std::to_string(sessao.semente);
    for (const Ato &ato : sessao.atos)
        for (const int numero : {ato.tipo, ato.a, ato.b, ato.c})
            texto += ' ' + std::to_string(numero);
    return texto;
}

Sessao Lida(const QByteArray &texto)
{
    const QList<QByteArray> n = texto.split(' ');
    Sessao sessao{n[0].toULongLong(), {}};
    for (int k = 1; k + 3 < n.size(); k += 4)
        sessao.atos.push_back({n[k].toInt(), n[k + 1].toInt(), n[k + 2].toInt(), n[k + 3].toInt()});
    return sessao;
}

void JogaEConta(Sessao sessao, int &partidas)
{
    QString erro = Joga(sessao, partidas);
    if (erro.isEmpty()) return;
    Reduz(sessao, erro);
    FAIL() << "QUADRELO_ATOS=\"" << Texto(sessao) << "\"\n" << qPrintable(erro);
}

} // namespace

/// QUADRELO_PARTIDAS=N plays at least N games, QUADRELO_SEMENTE=S begins with session S, and
/// QUADRELO_ATOS replays a session as a failure has printed it.
TEST(SegundoJogador, SeesWhatTheRulesSayAfterEveryAct)
{
    int partidas = 0;
    if (qEnvironmentVariableIsSet("QUADRELO_ATOS"))
        return JogaEConta(Lida(qgetenv("QUADRELO_ATOS")), partidas);
    const int quantas = qEnvironmentVariableIntValue("QUADRELO_PARTIDAS");
    const int primeira = std::max(1, qEnvironmentVariableIntValue("QUADRELO_SEMENTE"));
    for (int s = primeira; !HasFailure(); ++s) {
        if (quantas > 0 ? partidas >= quantas : s == primeira + kSessoes) break;
        if (quantas > 0) std::fprintf(stderr, "session %d, %d games\n", s, partidas);
        JogaEConta({static_cast<std::uint64_t>(s), Sorteados(static_cast<std::uint64_t>(s))},
                   partidas);
    }
    RecordProperty("games", partidas);
    std::printf("%d games\n", partidas);
}

} // namespace modelo
