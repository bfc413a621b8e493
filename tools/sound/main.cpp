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
        QFile arquivo(pasta.filePath(som.nome.toString()));
        const QByteArray bytes = ArquivoWav(Sintetiza(som));
        if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "faz_sons: cannot write into %s\n", argv[1]);
            return 1;
        }
    }
    return 0;
}
