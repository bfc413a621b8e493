#pragma once

#include <functional>
#include <QString>
#include <QStringList>

/// A player for the sound files `arquivos` (full paths), loaded now so that the first one is not
/// late. The function that comes back plays a file and returns at once; a new sound cuts off the
/// one still playing. Where there is no audio device or no such file it is silent.
std::function<void(const QString &arquivo)> CriaTocador(const QStringList &arquivos);
