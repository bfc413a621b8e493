#include "ui/machine/console.h"

#include <cstdio>
#include <QString>

void DizAoJogador(const QString &texto, bool erro)
{
    std::fprintf(erro ? stderr : stdout, "%s\n", qPrintable(texto));
}
