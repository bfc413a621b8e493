#include "core/machine/program_state.h"

#include <algorithm>
#include <cmath>
#include <QDir>

QString Caminho(const QString &pasta, QStringView nome)
{
    return QDir(pasta).filePath(nome.toString());
}

int SegundosDeJogo(const ValoresPrograma &valores, double agora)
{
    // HoraInicio can lie a moment ahead: a new game rounds it to single precision.
    return static_cast<int>(std::max(0.0, std::floor(agora - valores.HoraInicio)));
}
