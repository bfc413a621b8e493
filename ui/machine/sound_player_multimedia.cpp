#include "ui/machine/sound_player.h"

#include <map>
#include <memory>
#include <QAudioDevice>
#include <QFile>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {

/// The sounds of a run. Without an audio device none are loaded; a device that comes later is
/// noticed at the next sound.
class Tocador
{
public:
    explicit Tocador(const QStringList &arquivos) : m_arquivos(arquivos)
    {
        // The sound system speaks of a missing device or server on its own; the game does not.
        QLoggingCategory::setFilterRules(
            QStringLiteral("qt.multimedia*=false\ndefault.warning=false"));
        Carrega();
        QLoggingCategory::setFilterRules(QStringLiteral("qt.multimedia*=false"));
    }

    void Toca(const QString &arquivo)
    {
        Carrega();
        for (const auto &efeito : m_efeitos) {
            efeito.second->stop();
        }
        if (const auto achado = m_efeitos.find(arquivo); achado != m_efeitos.end()) {
            achado->second->play();
        }
    }

private:
    void Carrega()
    {
        if (!m_efeitos.empty() || QMediaDevices::defaultAudioOutput().isNull()) {
            return;
        }
        for (const QString &arquivo : m_arquivos) {
            if (QFile::exists(arquivo)) {
                auto efeito = std::make_unique<QSoundEffect>();
                efeito->setSource(QUrl::fromLocalFile(arquivo));
                m_efeitos.emplace(arquivo, std::move(efeito));
            }
        }
    }

    QStringList m_arquivos;
    std::map<QString, std::unique_ptr<QSoundEffect>> m_efeitos;
};

} // namespace

std::function<void(const QString &)> CriaTocador(const QStringList &arquivos)
{
    const auto tocador = std::make_shared<Tocador>(arquivos);
    return [tocador](const QString &arquivo) { tocador->Toca(arquivo); };
}
