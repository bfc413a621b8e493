// Compiles the question bank: compila_banco SOURCE.tsv OUTPUT.tes

#include "core/files/whole_file.h"
#include "tools/bank_source.h"

#include <cstdio>
#include <QFile>

namespace {

int Recusa(const QString &arquivo, const QString &motivo)
{
    std::fprintf(stderr, "%s:%s\n", qPrintable(arquivo), qPrintable(motivo));
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: compila_banco SOURCE.tsv OUTPUT.tes\n");
        return 2;
    }
    const QString origem = QFile::decodeName(argv[1]);
    const auto bytes = LeArquivo(origem);
    if (!bytes || !QFile::exists(origem)) {
        return Recusa(origem, QStringLiteral(" cannot be read"));
    }
    const FonteBanco fonte = LeFonte(*bytes);
    for (const QString &falta : fonte.faltas) {
        Recusa(origem, falta);
    }
    if (!fonte.faltas.isEmpty()) {
        return 2;
    }
    const QString destino = QFile::decodeName(argv[2]);
    if (TrocaArquivo(destino, CompilaBanco(fonte.entradas)) != Troca::Feita) {
        return Recusa(destino, QStringLiteral(" cannot be written"));
    }
    return 0;
}
