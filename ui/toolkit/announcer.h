#pragma once

#include <QStringList>
#include <QWidget>

namespace toolkit {

/// Says a text to a player who cannot see it: an invisible status line of a window, whose text
/// assistive technology reads out when it changes.
class Anunciador final : public QWidget
{
public:
    explicit Anunciador(QWidget &janela);

    /// Announces `texto` once the event at hand is dealt with, behind the news of what has the
    /// focus now, which would cut it off. Texts of one event are announced as one. Costs nothing
    /// while no assistive technology is active.
    void Anuncia(const QString &texto);
    /// The last announcement, or "".
    [[nodiscard]] const QString &Texto() const { return m_texto; }

private:
    void Diz();

    QStringList m_pendentes;
    QString m_texto;
};

} // namespace toolkit
