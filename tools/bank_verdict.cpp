#include "tools/bank_verdict.h"

#include "tools/puzzle_run.h"
#include <algorithm>
#include <memory>
#include <QHash>

namespace {

/// Measured with samples of the game's own bank: from 30 words on every puzzle could be built, at
/// 100 hardly a word comes back in the next game, and from 600 on none before the memory of twenty
/// games lets it.
constexpr int kPalavrasSeguras = 40;
constexpr int kPalavrasBoas = 100;
constexpr int kPalavrasDeSobra = 600;
/// Words of the game before from which on a player notices.
constexpr double kRepeticaoQueIncomoda = 1;
constexpr int kJogosDaMemoria = kUsadas / kItens;

/// Keeps in mind in which game each word came last.
class ContaVoltas
{
public:
    void Anota(int jogo, const Tabuleiro &tabuleiro)
    {
        for (size_t n = 1; n <= kItens; ++n) {
            const QString &palavra = tabuleiro.ItemPalavra[n].Palavra;
            const int antes = m_ultimoJogo.value(palavra, 0);
            m_ultimoJogo.insert(palavra, jogo);
            // The first word of a puzzle may be any: the memory does not keep it away.
            if (antes != 0 && n > 1) {
                m_voltas.push_back(jogo - antes);
            }
        }
    }

    [[nodiscard]] int Mediana()
    {
        if (m_voltas.empty()) {
            return 0;
        }
        const auto meio = m_voltas.begin() + static_cast<std::ptrdiff_t>(m_voltas.size() / 2);
        std::nth_element(m_voltas.begin(), meio, m_voltas.end());
        return *meio;
    }

    [[nodiscard]] double NoJogoSeguinte(int jogos) const
    {
        return static_cast<double>(std::count(m_voltas.begin(), m_voltas.end(), 1)) /
               std::max(1, jogos - 1);
    }

private:
    QHash<QString, int> m_ultimoJogo;
    std::vector<int> m_voltas;
};

QString FalaRepeticao(const JulgamentoBanco &j)
{
    if (j.volta == 0) {
        return QStringLiteral("Nenhuma palavra voltou.");
    }
    const QString volta = j.volta == 1
                              ? QStringLiteral("Em geral, uma palavra volta já no jogo seguinte")
                              : QStringLiteral("Em geral, uma palavra volta %1 jogos depois");
    return (j.volta == 1 ? volta : volta.arg(j.volta)) +
           QStringLiteral("; das 26 palavras de um jogo, %1 já estavam no anterior.")
               .arg(QString::number(j.repetidas, 'f', 1).replace(u'.', u','));
}

QString FalaConclusao(const JulgamentoBanco &j)
{
    if (!j.serve) {
        return QStringLiteral("pequeno demais, com %1 palavras diferentes: o jogo %2 não pôde ser "
                              "montado. Um jogo precisa de 26 palavras que se cruzem, e ao menos "
                              "uma de 5 letras ou mais; escreva %3 ou mais, curtas e longas")
            .arg(j.palavras)
            .arg(j.jogos + 1)
            .arg(kPalavrasSeguras);
    }
    if (j.repetidas >= kRepeticaoQueIncomoda) {
        return QStringLiteral("Serve, mas é pequeno: as palavras se repetem de um jogo para o "
                              "outro. Com %1 ou mais, isso quase não acontece.")
            .arg(kPalavrasBoas);
    }
    if (j.volta != 0 && j.volta <= kJogosDaMemoria) {
        return QStringLiteral("Serve bem. Com %1 palavras ou mais, quase nenhuma voltaria antes de "
                              "%2 jogos.")
            .arg(kPalavrasDeSobra)
            .arg(kJogosDaMemoria);
    }
    return QStringLiteral("Serve muito bem.");
}

} // namespace

JulgamentoBanco JulgaBanco(const QByteArray &registros, int jogos)
{
    const auto corrida = std::make_unique<Corrida>(1);
    CarregaRegistros(corrida->banco, registros);
    const IndiceBanco indice(corrida->banco);
    ContaVoltas voltas;
    JulgamentoBanco julgamento;
    julgamento.palavras = indice.QtdTextos();
    julgamento.serve = indice.Serve();
    while (julgamento.serve && julgamento.jogos < jogos) {
        julgamento.serve = MontaJogo(*corrida, indice);
        if (julgamento.serve) {
            voltas.Anota(++julgamento.jogos, corrida->tabuleiro);
            EmpurraUsadas(corrida->memoria, corrida->tabuleiro);
        }
    }
    julgamento.falhas = corrida->falhas;
    julgamento.repetidas = voltas.NoJogoSeguinte(julgamento.jogos);
    julgamento.volta = voltas.Mediana();
    return julgamento;
}

QStringList FalaJulgamentoBanco(const JulgamentoBanco &j)
{
    if (!j.serve) {
        return {FalaConclusao(j)};
    }
    return {QStringLiteral("Palavras diferentes: %1. Jogos montados para experimentar: %2. "
                           "Montagens que falharam e recomeçaram: %3.")
                .arg(j.palavras)
                .arg(j.jogos)
                .arg(j.falhas),
            FalaRepeticao(j), FalaConclusao(j)};
}
