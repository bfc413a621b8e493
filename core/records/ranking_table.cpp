#include "core/records/ranking_table.h"

#include "core/files/ini_file.h"
#include "core/machine/shared_routines.h"
#include <algorithm>
#include <limits>

namespace {

const QString kNome = QStringLiteral("Nome");
const QString kTempo = QStringLiteral("Tempo");

QString Secao(int p)
{
    return QStringLiteral("Ranking%1").arg(p);
}

/// The number that `texto` begins with, 0 for none. One of more digits than fit is the greatest
/// there is.
qint64 NumeroInicial(const QString &texto)
{
    const auto naoDigito = [](QChar letra) { return letra < u'0' || letra > u'9'; };
    const auto fim = std::find_if(texto.begin(), texto.end(), naoDigito);
    if (fim == texto.begin()) {
        return 0;
    }
    bool cabe = false;
    const auto numero = QStringView(texto.begin(), fim).toLongLong(&cabe);
    return cabe ? numero : std::numeric_limits<qint64>::max();
}

LinhaRanking LeLinha(const LoteIni &lote, int p)
{
    const auto vazio = QStringLiteral(".");
    const auto nome = lote.Le(Secao(p), kNome);
    if (nome.isEmpty()) {
        return {vazio, vazio};
    }
    bool legivel = false;
    const int t = lote.Le(Secao(p), kTempo).toInt(&legivel);
    return {legivel && t >= 0 ? FormataTempo(t) : vazio, nome};
}

int LugarEm(const LoteIni &lote, int t)
{
    for (int p = 1; p <= kLugares; ++p) {
        if (t < NumeroInicial(lote.Le(Secao(p), kTempo, QStringLiteral("999999")))) {
            return p;
        }
    }
    return 0;
}

void EntraEm(LoteIni &lote, int p, const QString &nome, int t)
{
    for (int j = kLugares; j > p; --j) {
        for (const auto &chave : {kNome, kTempo}) {
            lote.Escreve(Secao(j), chave, lote.Le(Secao(j - 1), chave));
        }
    }
    lote.Escreve(Secao(p), kNome, nome.leftJustified(kTamanhoNome, u' ', true));
    lote.Escreve(Secao(p), kTempo, QString::number(t));
}

} // namespace

int ProcuraLugar(const QString &arquivo, int t)
{
    return LugarEm(LoteIni(arquivo), t);
}

bool GravaLugar(const QString &arquivo, int p, const QString &nome, int t)
{
    Q_ASSERT(p >= 1 && p <= kLugares);
    bool entrou = false;
    const bool gravou = MudaIni(arquivo, [&](LoteIni &lote) {
        const int agora = LugarEm(lote, t);
        entrou = agora != 0;
        if (entrou) {
            EntraEm(lote, std::max(p, agora), nome, t);
        }
    });
    return gravou && entrou;
}

TabelaDe<LinhaRanking, kLugares> LeRanking(const QString &arquivo)
{
    const LoteIni lote(arquivo);
    TabelaDe<LinhaRanking, kLugares> linhas;
    for (int p = 1; p <= kLugares; ++p) {
        linhas[p] = LeLinha(lote, p);
    }
    return linhas;
}
