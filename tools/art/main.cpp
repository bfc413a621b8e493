#include "core/files/whole_file.h"
#include "tools/art/catalogue.h"
#include "tools/art/icon.h"

#include <cstdio>
#include <QBuffer>
#include <QDir>
#include <QFile>

namespace {

bool Grava(const QString &arquivo, const QByteArray &bytes)
{
    return TrocaArquivo(arquivo, bytes) == Troca::Feita;
}

bool GravaFigura(const QString &arquivo, const QImage &imagem)
{
    QBuffer png;
    return imagem.save(&png, "PNG") && Grava(arquivo, png.data());
}

bool GravaTudo(const QDir &pasta)
{
    for (const Figura &figura : Figuras()) {
        for (int escala = 1; escala <= figura.escalas; ++escala) {
            if (!GravaFigura(pasta.filePath(NomeArquivo(figura, escala)),
                             DesenhaFigura(figura, escala))) {
                return false;
            }
        }
    }
    return Grava(pasta.filePath(QStringLiteral("quadrelo.svg")), IconeVetorial()) &&
           Grava(pasta.filePath(QStringLiteral("quadrelo.ico")), ArquivoIcone());
}

} // namespace

/// desenha_arte PASTA: draws every picture of the game into the folder PASTA, which must exist.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: desenha_arte FOLDER\n", stderr);
        return 2;
    }
    if (!GravaTudo(QDir(QFile::decodeName(argv[1])))) {
        std::fprintf(stderr, "desenha_arte: cannot write into %s\n", argv[1]);
        return 1;
    }
    return 0;
}
