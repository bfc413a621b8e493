// Prints puzzles without a window:
//   monta --banco FILE.tes --semente N [--jogos K] [--memoria] [--quieto]

#include "core/bank/question_bank.h"
#include "core/bank/used_words.h"
#include "core/builder/build_attempts.h"
#include "core/builder/fill_driver.h"
#include "core/builder/word_index.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace {

constexpr int kErro = 2;

struct Opcoes
{
    QString banco;
    std::uint64_t semente = 0;
    int jogos = 1;
    bool memoria = false;
    bool quieto = false;
};

int Recusa(const QString &motivo)
{
    std::fprintf(stderr, "monta: %s\n", qPrintable(motivo));
    return kErro;
}

/// Reads the arguments; on a bad one says why and gives nothing.
class LeitorOpcoes
{
public:
    explicit LeitorOpcoes(const QStringList &argumentos) : m_argumentos(argumentos) {}

    std::optional<Opcoes> Le()
    {
        for (m_lugar = 1; m_lugar < m_argumentos.size(); ++m_lugar) {
            if (const QString motivo = LeUma(m_argumentos[m_lugar]); !motivo.isEmpty()) {
                Recusa(motivo);
                return std::nullopt;
            }
        }
        if (m_opcoes.banco.isEmpty() || !m_temSemente) {
            Recusa(
                QStringLiteral("usage: monta --banco FILE.tes --semente N [--jogos K] [--memoria] "
                               "[--quieto]"));
            return std::nullopt;
        }
        return m_opcoes;
    }

private:
    QString LeUma(const QString &nome)
    {
        if (nome == u"--memoria") {
            m_opcoes.memoria = true;
            return {};
        }
        if (nome == u"--quieto") {
            m_opcoes.quieto = true;
            return {};
        }
        if (nome != u"--banco" && nome != u"--semente" && nome != u"--jogos") {
            return QStringLiteral("unknown argument \"%1\"").arg(nome);
        }
        if (++m_lugar >= m_argumentos.size()) {
            return QStringLiteral("%1 needs a value").arg(nome);
        }
        return LeValor(nome, m_argumentos[m_lugar]);
    }

    QString LeValor(const QString &nome, const QString &valor)
    {
        bool certo = true;
        if (nome == u"--banco") {
            m_opcoes.banco = valor;
            certo = !valor.isEmpty();
        } else if (nome == u"--semente") {
            m_opcoes.semente = valor.toULongLong(&certo);
            m_temSemente = certo;
        } else {
            m_opcoes.jogos = valor.toInt(&certo);
            certo = certo && m_opcoes.jogos >= 1;
        }
        return certo ? QString() : QStringLiteral("%1 cannot be \"%2\"").arg(nome, valor);
    }

    QStringList m_argumentos;
    qsizetype m_lugar = 0;
    Opcoes m_opcoes;
    bool m_temSemente = false;
};

void Imprime(int jogo, const Tabuleiro &tabuleiro)
{
    for (int n = 1; n <= tabuleiro.QtdItens; ++n) {
        const RegistroItem &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        std::printf("%d\t%d\t%c\t%d\t%s\n", jogo, n, item.Sentido.toLatin1(), item.Ponto,
                    item.Palavra.toUtf8().constData());
    }
}

/// The tables of one run.
struct Corrida
{
    explicit Corrida(std::uint64_t semente) : acaso(semente) {}

    Tabuleiro tabuleiro;
    BancoPerguntas banco;
    MemoriaUsadas memoria;
    AcasoMersenne acaso;
    ExibicaoMontagem semJanela;
    int falhas = 0;
    std::vector<double> microssegundos;
};

/// One whole game, restarts included. False where the bank cannot yield one.
bool MontaJogo(Corrida &corrida, const IndiceBanco &indice)
{
    QElapsedTimer relogio;
    relogio.start();
    TentativasMontagem tentativas;
    const DadosMontagem dados{corrida.tabuleiro, corrida.banco, indice,
                              corrida.memoria,   corrida.acaso, corrida.semJanela};
    for (;;) {
        ZeraTabuleiro(corrida.tabuleiro);
        if (CarregaPalavras(dados) == FimMontagem::Completa) {
            break;
        }
        ++corrida.falhas;
        if (tentativas.Falhou(corrida.memoria) == TentativasMontagem::Decisao::Desistir) {
            return false;
        }
    }
    corrida.microssegundos.push_back(static_cast<double>(relogio.nsecsElapsed()) / 1000.0);
    return true;
}

double Percentil(const std::vector<double> &ordenados, double parte)
{
    const auto ultimo = static_cast<double>(ordenados.size() - 1);
    return ordenados[static_cast<size_t>(ultimo * parte + 0.5)];
}

void ImprimeNumeros(Corrida &corrida)
{
    std::sort(corrida.microssegundos.begin(), corrida.microssegundos.end());
    std::printf("jogos %zu, falhas %d, sorteios %llu, mediana %.1f us, p90 %.1f us, p99 %.1f us\n",
                corrida.microssegundos.size(), corrida.falhas,
                static_cast<unsigned long long>(corrida.acaso.Sorteios()),
                Percentil(corrida.microssegundos, 0.5), Percentil(corrida.microssegundos, 0.9),
                Percentil(corrida.microssegundos, 0.99));
}

int Executa(const Opcoes &opcoes)
{
    if (!QFileInfo(opcoes.banco).isReadable() || !QFileInfo(opcoes.banco).isFile()) {
        return Recusa(QStringLiteral("the bank \"%1\" cannot be read").arg(opcoes.banco));
    }
    const auto corrida = std::make_unique<Corrida>(opcoes.semente);
    CarregaLista(corrida->banco, opcoes.banco);
    const IndiceBanco indice(corrida->banco);
    if (!indice.Serve()) {
        return Recusa(
            QStringLiteral("the bank \"%1\" has no word of 5 letters or more").arg(opcoes.banco));
    }
    for (int jogo = 1; jogo <= opcoes.jogos; ++jogo) {
        if (!MontaJogo(*corrida, indice)) {
            std::fflush(stdout);
            return Recusa(QStringLiteral("the bank \"%1\" has not enough words for game %2")
                              .arg(opcoes.banco)
                              .arg(jogo));
        }
        if (!opcoes.quieto) {
            Imprime(jogo, corrida->tabuleiro);
        }
        if (opcoes.memoria) {
            EmpurraUsadas(corrida->memoria, corrida->tabuleiro);
        }
    }
    if (opcoes.quieto) {
        ImprimeNumeros(*corrida);
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef Q_OS_WIN
    // The same bytes on every system: no line end becomes two.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    const QCoreApplication aplicacao(argc, argv);
    const auto opcoes = LeitorOpcoes(QCoreApplication::arguments()).Le();
    const int fim = opcoes ? Executa(*opcoes) : kErro;
    // A full disk may show only now.
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0
               ? fim
               : Recusa(QStringLiteral("the puzzles cannot be written"));
}
