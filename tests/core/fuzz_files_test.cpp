#include "tests/core/fuzz_files.h"

#include <gtest/gtest.h>

namespace {

/// One damage at a place drawn by chance.
void Estraga(QByteArray &dados, const Alvo &alvo, Dado &dado)
{
    const auto lugar = [&] { return qsizetype(Lanca(dado, size_t(dados.size()) + 1)); };
    const qsizetype posicao = lugar();
    const auto tamanho = static_cast<qsizetype>(Lanca(dado, 40));
    switch (Lanca(dado, 6)) {
    case 0:
        dados.insert(posicao, alvo.pedacos[Lanca(dado, alvo.pedacos.size())]);
        break;
    case 1:
        dados.replace(posicao, tamanho, alvo.pedacos[Lanca(dado, alvo.pedacos.size())]);
        break;
    case 2:
        dados.remove(posicao, tamanho);
        break;
    case 3: // a stretch taken from here or from elsewhere
        dados.insert(posicao, dados.mid(Lanca(dado, 2) == 0 ? posicao : lugar(), tamanho));
        break;
    case 4:
        dados.replace(posicao, 1, QByteArray(1, static_cast<char>(Lanca(dado, 256))));
        break;
    default: // cut off, but seldom: all that stands behind is lost to the reader
        dados.truncate(Lanca(dado, 8) == 0 ? posicao : dados.size());
        break;
    }
    dados.truncate(1 << 16);
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
