#include "shell/sound_player.h"

#include <memory>
#include <QFile>
#include <QHash>
#include <QSoundEffect>
#include <QUrl>

namespace {

using Efeitos = QHash<QString, std::shared_ptr<QSoundEffect>>;

} // namespace

std::function<void(const QString &)> CriaTocador(const QStringList &arquivos)
{
    Efeitos efeitos;
    for (const QString &arquivo : arquivos) {
        if (QFile::exists(arquivo)) {
            const auto efeito = std::make_shared<QSoundEffect>();
            efeito->setSource(QUrl::fromLocalFile(arquivo));
            efeitos.insert(arquivo, efeito);
        }
    }
    return [efeitos](const QString &arquivo) {
        for (const auto &efeito : efeitos) {
            efeito->stop();
        }
        if (const auto efeito = efeitos.value(arquivo)) {
            efeito->play();
        }
    };
}
