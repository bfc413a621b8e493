#include "ui/machine/sound_player.h"

#include <QDir>

#include <windows.h>
// It needs windows.h before it.
#include <mmsystem.h>

std::function<void(const QString &)> CriaTocador(const QStringList &)
{
    // Nothing to load: the system reads the file when it plays it, and it is a few kilobytes. It
    // stops what it played before by itself.
    return [](const QString &arquivo) {
        const std::wstring caminho = QDir::toNativeSeparators(arquivo).toStdWString();
        sndPlaySoundW(caminho.c_str(), SND_ASYNC | SND_FILENAME | SND_NODEFAULT);
    };
}
