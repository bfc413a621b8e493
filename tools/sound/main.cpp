#include "core/files/whole_file.h"
#include "tools/sound/sounds.h"

#include <cstdio>
#include <QDir>
#include <QFile>

/// faz_sons PASTA: writes every sound of the game into the folder PASTA, which must exist.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: faz_sons FOLDER\n", stderr);
        return 2;
    }
    const QDir pasta(QFile::decodeName(argv[1]));
    for (const Som &som : Sons()) {
        const QString arquivo = pasta.filePath(som.nome.toString());
        if (TrocaArquivo(arquivo, ArquivoWav(Sintetiza(som))) != Troca::Feita) {
            std::fprintf(stderr, "faz_sons: cannot write into %s\n", argv[1]);
            return 1;
        }
    }
    return 0;
}
