#pragma once

#include "ui/toolkit/picture_box.h"

#include <QWidget>

namespace toolkit {

/// Shows a picture box also where it reaches beyond its form: in a window of its own, of the same
/// place and look, moved only as far as the screen's edge demands. Takes no input. Where the form
/// holds all of the box there is no such window.
class Transbordo final : public QWidget
{
public:
    /// `caixa` must outlive it.
    explicit Transbordo(const PictureBox &caixa);

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    void Acompanha();

    QWidget &m_alvo;
};

} // namespace toolkit
