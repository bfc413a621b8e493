#include <array>
#include <chrono>
#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <random>
#include <thread>

#include "core/bank/used_words.h"
#include "core/files/whole_file.h"
#include "core/records/ranking_table.h"
#include "core/records/save_slot.h"

/// soak_files [ROUNDS [SEED]]: in each round (1000 unless told otherwise) a child process pushes
/// used words, saves a game and enters the ranking, and is killed at a moment drawn by chance.
/// Afterwards each of the three files must be whole: byte for byte as before the round or as after
/// it. Exit status 1 at the first that is not.

namespace {

constexpr int kRodadas = 1000;
/// The slot that is written; the one before it must stay as it is.
constexpr int kSlot = 2;

/// The game of one round.
Tabuleiro Jogo(int rodada)
{
    Tabuleiro tabuleiro;
    tabuleiro.QtdItens = kItens;
    for (int n = 1; n <= kItens; ++n) {
        auto &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        item.Palavra = QStringLiteral("R%1I%2").arg(rodada).arg(n);
        item.Dica = QString(60, QChar(u'a' + rodada % 26));
        item.Sentido = u'H';
        item.Ponto = n <= 22 ? (n - 1) * kColunas + 1 : (n - 22) * kColunas + 14;
    }
    return tabuleiro;
}

/// The three files of a data folder.
struct Arquivos
{
    explicit Arquivos(const QString &caminho) : pasta(caminho) {}

    [[nodiscard]] QString Caminho(const char *nome) const
    {
        return pasta.filePath(QString::fromUtf8(nome));
    }

    /// What one round does. A newer round is always a better time, so it takes the first place.
    void Rodada(int rodada) const
    {
        MemoriaUsadas memoria;
        GravaUsadas(memoria, Caminho("jf.dat"), Jogo(rodada));
        SalvaSlot(Caminho("save.ini"), kSlot, QStringLiteral("rodada %1").arg(rodada), Jogo(rodada),
                  rodada, QStringLiteral(","));
        GravaLugar(Caminho("Ranking.dat"), 1, QStringLiteral("rodada %1").arg(rodada),
                   900000 - rodada);
    }

    [[nodiscard]] std::array<QByteArray, 3> Conteudo() const
    {
        std::array<QByteArray, 3> conteudo;
        size_t k = 0;
        for (const char *nome : {"jf.dat", "save.ini", "Ranking.dat"}) {
            QFile arquivo(Caminho(nome));
            conteudo[k++] = arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
        }
        return conteudo;
    }

    /// Copies the three files into another folder.
    void Copia(const Arquivos &destino) const
    {
        for (const char *nome : {"jf.dat", "save.ini", "Ranking.dat"}) {
            QFile::remove(destino.Caminho(nome));
            QFile::copy(Caminho(nome), destino.Caminho(nome));
        }
    }

    [[nodiscard]] int Restos() const
    {
        return static_cast<int>(pasta.entryList(QDir::Files | QDir::Hidden).size()) - 3;
    }

    /// Clears what a killed write left beside the files as the program's start does, and says how
    /// much that was.
    [[nodiscard]] int Limpa() const
    {
        const int restos = Restos();
        for (const char *nome : {"jf.dat", "save.ini", "Ranking.dat"}) {
            LimpaRestos(Caminho(nome));
        }
        return restos - Restos();
    }

    QDir pasta;
};

/// Starts the round in a child, and kills it `espera` after it has begun.
void RodadaMorta(const QString &pasta, int rodada, std::chrono::microseconds espera)
{
    QProcess filho;
    filho.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--filho"), pasta, QString::number(rodada)});
    filho.waitForReadyRead();
    std::this_thread::sleep_for(espera);
    filho.kill();
    filho.waitForFinished();
}

int Filho(const QStringList &argumentos)
{
    const Arquivos arquivos(argumentos[2]);
    std::puts("pronto");
    std::fflush(stdout);
    arquivos.Rodada(argumentos[3].toInt());
    return 0;
}

/// What became of the rounds, and what the kills left lying about.
struct Contagem
{
    int antes = 0, entre = 0, depois = 0, limpos = 0;
};

/// Time that one round takes here when nobody kills it.
std::chrono::microseconds Duracao(const Arquivos &arquivos)
{
    const auto comeco = std::chrono::steady_clock::now();
    arquivos.Rodada(0);
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() -
                                                                 comeco);
}

/// One round on `arquivos`, checked against the same round undisturbed on `modelo`. False if a file
/// is broken.
bool Rodada(const Arquivos &arquivos, const Arquivos &modelo, int rodada, std::mt19937_64 &dado,
            Contagem &contagem)
{
    arquivos.Copia(modelo);
    const auto duracao = Duracao(modelo);
    arquivos.Copia(modelo);
    const auto velho = arquivos.Conteudo();
    modelo.Rodada(rodada);
    const auto novo = modelo.Conteudo();
    RodadaMorta(arquivos.pasta.path(), rodada, duracao * (dado() % 160) / 100);
    const auto agora = arquivos.Conteudo();
    int trocados = 0;
    for (size_t k = 0; k < agora.size(); ++k) {
        if (agora[k] != velho[k] && agora[k] != novo[k]) {
            std::fprintf(stderr, "round %d: file %zu is neither old nor new\n", rodada, k + 1);
            return false;
        }
        trocados += agora[k] == novo[k] ? 1 : 0;
    }
    ++(trocados == 0 ? contagem.antes : trocados == 3 ? contagem.depois : contagem.entre);
    contagem.limpos += arquivos.Limpa();
    return std::holds_alternative<JogoSalvo>(LeSlot(arquivos.Caminho("save.ini"), kSlot));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication programa(argc, argv);
    const auto argumentos = QCoreApplication::arguments();
    if (argumentos.size() == 4 && argumentos[1] == u"--filho") {
        return Filho(argumentos);
    }
    const int rodadas = argumentos.size() > 1 ? argumentos[1].toInt() : kRodadas;
    std::mt19937_64 dado(argumentos.size() > 2 ? argumentos[2].toULongLong() : 1);
    const QTemporaryDir pasta(QStringLiteral("soak_files-XXXXXX"));
    const QTemporaryDir pastaModelo(QStringLiteral("soak_files-XXXXXX"));
    const Arquivos arquivos(pasta.path());
    const Arquivos modelo(pastaModelo.path());
    SalvaSlot(arquivos.Caminho("save.ini"), kSlot - 1, QStringLiteral("fica"), Jogo(0), 1,
              QStringLiteral("."));
    arquivos.Rodada(0);
    Contagem contagem;
    for (int rodada = 1; rodada <= rodadas; ++rodada) {
        if (!Rodada(arquivos, modelo, rodada, dado, contagem)) {
            return 1;
        }
    }
    std::printf(
        "%d rounds, all files whole; killed before the first file: %d, among the three: %d, "
        "after the last: %d; files left behind: %d cleared, %d not\n",
        rodadas, contagem.antes, contagem.entre, contagem.depois, contagem.limpos,
        arquivos.Restos());
    return 0;
}
