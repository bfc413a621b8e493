#include "tools/console.h"

void Console::Diz(std::FILE *saida, const QString &linha)
{
    std::fprintf(saida, "%s\n", linha.toUtf8().constData());
    std::fflush(saida);
}
