#include "assets/pictures.h"

QString CaminhoFigura(QStringView nome)
{
    return QStringLiteral(":/figuras/%1.png").arg(nome);
}
