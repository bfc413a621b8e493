// Prints puzzles without a window:
//   monta --banco FILE.tes --semente N [--jogos K] [--memoria] [--quieto]
//         [--formato tsv|texto|html|ipuz] [--titulo T] [--solucao] [--sem-solucao]
//   monta FILE.tes      one sheet in HTML, written beside the bank

#include "tools/console.h"
#include "tools/monta_options.h"
#include "tools/own_list.h"
#include "tools/puzzle_run.h"
#include "tools/puzzle_writer.h"

#include "core/files/whole_file.h"
#include <algorithm>
#include <cstdio>
#include <memory>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr int kErro = 2;

int Recusa(const QString &motivo)
{
    std::fflush(stdout);
    Console::Diz(stderr, QStringLiteral("monta: ") + motivo);
    return kErro;
}

double Percentil(const std::vector<double> &ordenados, double parte)
{
    const auto ultimo = static_cast<double>(ordenados.size() - 1);
    return ordenados[static_cast<size_t>(ultimo * parte + 0.5)];
}

QByteArray Numeros(Corrida &corrida)
{
    std::sort(corrida.microssegundos.begin(), corrida.microssegundos.end());
    return QByteArray::fromStdString(
        QString::asprintf(
            "jogos %zu, falhas %d, sorteios %llu, mediana %.1f us, p90 %.1f us, p99 %.1f us\n",
            corrida.microssegundos.size(), corrida.falhas,
            static_cast<unsigned long long>(corrida.acaso.Sorteios()),
            Percentil(corrida.microssegundos, 0.5), Percentil(corrida.microssegundos, 0.9),
            Percentil(corrida.microssegundos, 0.99))
            .toStdString());
}

/// Builds the puzzles of a run and puts them where they were asked for.
class Impressao
{
public:
    explicit Impressao(const OpcoesMonta &opcoes)
        : m_opcoes(opcoes), m_corrida(std::make_unique<Corrida>(opcoes.semente))
    {
    }

    int Executa()
    {
        if (const QString motivo = LeBanco(); !motivo.isEmpty()) {
            return Recusa(QStringLiteral("o banco \"%1\" %2").arg(m_opcoes.banco, motivo));
        }
        const IndiceBanco indice(m_corrida->banco);
        if (!indice.Serve()) {
            return Recusa(QStringLiteral("o banco \"%1\" não tem palavra de 5 letras ou mais")
                              .arg(m_opcoes.banco));
        }
        Escritor escritor(m_opcoes, m_corrida->banco.QtdPerguntas);
        Poe(escritor.Inicio());
        for (int jogo = 1; jogo <= m_opcoes.jogos; ++jogo) {
            if (!MontaJogo(*m_corrida, indice)) {
                return Recusa(QStringLiteral("o banco \"%1\" não tem palavras suficientes para o "
                                             "jogo %2")
                                  .arg(m_opcoes.banco, QString::number(jogo)));
            }
            Poe(escritor.Jogo(jogo, m_corrida->tabuleiro));
            if (m_opcoes.memoria) {
                EmpurraUsadas(m_corrida->memoria, m_corrida->tabuleiro);
            }
        }
        Poe(escritor.Fim());
        return Termina();
    }

private:
    /// Why the bank cannot be read, or "".
    QString LeBanco()
    {
        QFile ficheiro(m_opcoes.banco);
        if (!QFileInfo(m_opcoes.banco).isFile() || !ficheiro.open(QIODevice::ReadOnly)) {
            return QStringLiteral("não pôde ser lido");
        }
        const QByteArray bytes = ficheiro.read(qint64{kMaxPerguntas} * kBytesRegistro);
        if (m_opcoes.formato != Formato::Tsv && !bytes.isEmpty() && !PareceBanco(bytes)) {
            return QStringLiteral("não é um banco de perguntas; faça um com compila_banco");
        }
        CarregaRegistros(m_corrida->banco, bytes);
        return {};
    }

    void Poe(const QByteArray &bytes)
    {
        if (m_opcoes.quieto) {
            return;
        }
        if (m_opcoes.saida.isEmpty()) {
            std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
        } else {
            m_arquivo += bytes;
        }
    }

    int Termina()
    {
        if (m_opcoes.quieto) {
            const QByteArray numeros = Numeros(*m_corrida);
            std::fwrite(numeros.constData(), 1, static_cast<size_t>(numeros.size()), stdout);
        }
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
            return Recusa(QStringLiteral("a saída não pôde ser escrita até o fim; confira se há "
                                         "espaço no disco"));
        }
        if (m_opcoes.saida.isEmpty()) {
            return 0;
        }
        const QString lugar = QDir::toNativeSeparators(m_opcoes.saida);
        if (TrocaArquivo(m_opcoes.saida, m_arquivo) != Troca::Feita) {
            return Recusa(QStringLiteral("%1 não pôde ser gravado; confira se você pode gravar na "
                                         "pasta e se há espaço no disco")
                              .arg(lugar));
        }
        Console::Diz(
            stdout,
            QStringLiteral("Folha gravada em %1. Abra-a no navegador e imprima-a.").arg(lugar));
        return 0;
    }

    const OpcoesMonta &m_opcoes;
    std::unique_ptr<Corrida> m_corrida;
    QByteArray m_arquivo;
};

int Roda(const QStringList &argumentos)
{
    const auto lidas = LeOpcoesMonta(argumentos);
    if (const auto *motivo = std::get_if<QString>(&lidas)) {
        return Recusa(*motivo);
    }
    return Impressao(std::get<OpcoesMonta>(lidas)).Executa();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication aplicacao(argc, argv);
    const Console console;
    const int fim = Roda(QCoreApplication::arguments());
    if (argc == 2) {
        Console::EsperaTecla();
    }
    return fim;
}
