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

using Efeito = std::unique_ptr<QSoundEffect>;

Efeito CriaEfeito(const QString &arquivo)
{
    auto efeito = std::make_unique<QSoundEffect>();
    efeito->setSource(QUrl::fromLocalFile(arquivo));
    return efeito;
}

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

    /// Every sound has an effect of its own: one that is played again and again gets less of its
    /// sound out each time, and at last nothing (Qt 6.4).
    void Toca(const QString &arquivo)
    {
        Carrega();
        m_tocando.reset();
        if (m_carregados.contains(arquivo)) {
            m_tocando = CriaEfeito(arquivo);
            m_tocando->play();
        }
    }

private:
    void Carrega()
    {
        if (!m_carregados.empty() || QMediaDevices::defaultAudioOutput().isNull()) {
            return;
        }
        for (const QString &arquivo : m_arquivos) {
            if (QFile::exists(arquivo)) {
                m_carregados.emplace(arquivo, CriaEfeito(arquivo));
            }
        }
    }

    QStringList m_arquivos;
    /// Never played: they keep the samples in memory, which all effects of a file share.
    std::map<QString, Efeito> m_carregados;
    Efeito m_tocando;
};

} // namespace

std::function<void(const QString &)> CriaTocador(const QStringList &arquivos)
{
    const auto tocador = std::make_shared<Tocador>(arquivos);
    return [tocador](const QString &arquivo) { tocador->Toca(arquivo); };
}
