// Makes a question bank of a list of words and clues, and a list of a bank:
//   compila_banco LISTA [BANCO.tes]
//   compila_banco --extrai BANCO.tes [LISTA.tsv]
//   compila_banco --regras-da-casa FONTE.tsv BANCO.tes
//
// A list alone, as it is dropped on the program, gets its bank beside it. --regras-da-casa is for
// the project's own bank and holds it against the project's own rules.

#include "tools/bank_verdict.h"
#include "tools/console.h"
#include "tools/house_rules.h"
#include "tools/own_list.h"

#include "core/files/whole_file.h"
#include "core/machine/program_state.h"
#include <optional>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr int kErro = 2;
/// Faults that are told one by one. A list with more of them is wrong as a whole.
constexpr int kMaximoDeFaltas = 100;

int Recusa(const QString &arquivo, const QString &motivo)
{
    Console::Diz(stderr, QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(arquivo), motivo));
    return kErro;
}

int Uso()
{
    Console::Diz(stderr, QStringLiteral("uso: compila_banco LISTA [BANCO.tes]\n"
                                        "     compila_banco --extrai BANCO.tes [LISTA.tsv]"));
    return kErro;
}

/// The file's bytes, or nothing where it cannot be read, which is told. Reads a little more than
/// the largest list, so that a larger file is known for one.
std::optional<QByteArray> Le(const QString &arquivo)
{
    QFile entrada(arquivo);
    QString motivo = QStringLiteral("não pôde ser lido; confira o nome e se você pode abri-lo");
    if (!QFileInfo::exists(arquivo)) {
        motivo = QStringLiteral("o arquivo não existe; confira o nome");
    } else if (QFileInfo(arquivo).isDir()) {
        motivo = QStringLiteral("é uma pasta; escolha o arquivo que está nela");
    } else if (entrada.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = entrada.read(kMaximoDaLista + 1);
        if (entrada.error() == QFileDevice::NoError) {
            return bytes;
        }
    }
    Recusa(arquivo, motivo);
    return std::nullopt;
}

int Grava(const QString &origem, const QString &destino, const QByteArray &bytes)
{
    if (QFileInfo(origem) == QFileInfo(destino)) {
        return Recusa(destino, QStringLiteral("o resultado apagaria o próprio arquivo lido; "
                                              "escolha outro nome"));
    }
    if (TrocaArquivo(destino, bytes) != Troca::Feita) {
        return Recusa(destino, QStringLiteral("não pôde ser gravado, e nada mudou; confira se a "
                                              "pasta existe, se você pode gravar nela e se há "
                                              "espaço no disco"));
    }
    return 0;
}

int RecusaLista(const QString &origem, const QStringList &faltas)
{
    for (const QString &falta : faltas.first(qMin<qsizetype>(faltas.size(), kMaximoDeFaltas))) {
        Recusa(origem, falta);
    }
    if (faltas.size() > kMaximoDeFaltas) {
        Recusa(origem, QStringLiteral("e mais %1 faltas").arg(faltas.size() - kMaximoDeFaltas));
    }
    Console::Diz(stderr, QStringLiteral("Nada foi gravado."));
    return kErro;
}

int CompilaLista(const QString &origem, const QString &destino)
{
    const auto bytes = Le(origem);
    if (!bytes) {
        return kErro;
    }
    const ListaPropria lista = LeLista(*bytes);
    if (!lista.faltas.isEmpty()) {
        return RecusaLista(origem, lista.faltas);
    }
    const QByteArray banco = CompilaBanco(lista.entradas);
    const JulgamentoBanco julgamento = JulgaBanco(banco);
    const QStringList fala = FalaJulgamentoBanco(julgamento);
    if (!julgamento.serve) {
        return RecusaLista(origem, fala);
    }
    Console::Diz(stdout, fala.join(u'\n'));
    const int fim = Grava(origem, destino, banco);
    if (fim == 0) {
        Console::Diz(stdout,
                     QStringLiteral("Banco gravado em %1").arg(QDir::toNativeSeparators(destino)));
    }
    return fim;
}

int CompilaDaCasa(const QString &origem, const QString &destino)
{
    const auto bytes = Le(origem);
    if (!bytes) {
        return kErro;
    }
    const FonteBanco fonte = LeFonte(*bytes);
    for (const QString &falta : fonte.faltas) {
        Console::Diz(stderr, QStringLiteral("%1:%2").arg(origem, falta));
    }
    return fonte.faltas.isEmpty() ? Grava(origem, destino, CompilaBanco(fonte.entradas)) : kErro;
}

/// Without a name the list goes to the standard output.
int Extrai(const QString &origem, const QString &destino)
{
    const auto bytes = Le(origem);
    if (!bytes) {
        return kErro;
    }
    if (!PareceBanco(*bytes)) {
        return Recusa(origem, QStringLiteral("não é um banco de perguntas"));
    }
    const QByteArray lista = ExtraiLista(*bytes);
    if (!destino.isEmpty()) {
        return Grava(origem, destino, lista);
    }
    std::fwrite(lista.constData(), 1, static_cast<size_t>(lista.size()), stdout);
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0
               ? 0
               : Recusa(origem, QStringLiteral("a lista não pôde ser escrita até o fim"));
}

int Executa(QStringList argumentos)
{
    argumentos.removeFirst();
    const QString modo = argumentos.value(0).startsWith(u"--") ? argumentos.takeFirst() : QString();
    const QString origem = argumentos.value(0);
    const QString destino = argumentos.value(1);
    const bool umOuDois = argumentos.size() == 1 || argumentos.size() == 2;
    if (modo == u"--extrai" && umOuDois) {
        return Extrai(origem, destino);
    }
    if (modo == u"--regras-da-casa" && argumentos.size() == 2) {
        return CompilaDaCasa(origem, destino);
    }
    if (modo.isEmpty() && umOuDois) {
        return CompilaLista(origem, argumentos.size() == 2
                                        ? destino
                                        : Caminho(QFileInfo(origem).path(), kArquivoBanco));
    }
    return Uso();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication aplicacao(argc, argv);
    const Console console;
    const int fim = Executa(QCoreApplication::arguments());
    if (argc == 2) {
        Console::EsperaTecla();
    }
    return fim;
}
