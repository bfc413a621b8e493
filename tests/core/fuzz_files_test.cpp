#include "tests/core/fuzz_files.h"

#include <gtest/gtest.h>

namespace {

/// One damage at a place drawn by chance.
void Estraga(QByteArray &dados, const Alvo &alvo, Dado &dado)
{
    const auto lugar = [&] { return qsizetype(Lanca(dado, size_t(dados.size()) + 1)); };
    const qsizetype posicao = lugar();
    const auto tamanho = static_cast<qsizetype>(Lanca(dado, 40));
    const QByteArray novos[] = {alvo.pedacos[Lanca(dado, alvo.pedacos.size())],
                                QByteArray(1, static_cast<char>(Lanca(dado, 256))),
                                dados.mid(posicao, tamanho),
                                dados.mid(lugar(), tamanho),
                                {}};
    dados.replace(posicao, Lanca(dado, 2) == 0 ? 0 : tamanho, novos[Lanca(dado, 5)]);
    // Cut off, but seldom: all that stands behind is lost to the reader.
    dados.truncate(Lanca(dado, 40) == 0 ? posicao : qMin(dados.size(), qsizetype{1} << 16));
}

} // namespace

// QUADRELO_FATOR in the environment multiplies the rounds.
TEST(Fuzz, DamagedFilesBreakNoReader)
{
    const int rodadas = 400 * std::max(1, qEnvironmentVariableIntValue("QUADRELO_FATOR"));
    for (const auto &alvo : Alvos()) {
        Dado dado(20240607);
        for (int rodada = 0; rodada < rodadas; ++rodada) {
            QByteArray dados = alvo.sementes[Lanca(dado, alvo.sementes.size())];
            for (auto golpes = Lanca(dado, 6); golpes > 0; --golpes) {
                Estraga(dados, alvo, dado);
            }
            ASSERT_EQ(alvo.prova(dados, dado).toStdString(), "")
                << alvo.nome << ", round " << rodada << '\n'
                << dados.toPercentEncoding("[]= \"';").constData();
        }
    }
}
