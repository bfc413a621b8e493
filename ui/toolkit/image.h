#pragma once

#include "ui/toolkit/painted_control.h"
#include "ui/toolkit/picture.h"

namespace toolkit {

/// A picture on a form; without a picture it is an invisible zone that takes clicks.
class Image final : public PaintedControl
{
public:
    using PaintedControl::PaintedControl;

    [[nodiscard]] const Picture &GetPicture() const { return m_picture; }
    void SetPicture(const Picture &picture);
    /// On: the picture follows the control's size. Off: the control takes the picture's.
    void SetStretch(bool stretch);
    /// 0: no border; 1: a thin line round the control.
    void SetBorderStyle(int borda);
    /// Gives a control without Stretch the natural size of its picture.
    void TomaTamanhoNatural();

    [[nodiscard]] bool TemFonte() const override { return false; }
    void CopiaDe(const Image &molde);
    void Pinta(QPainter &pintor, QSize tamanho) override;

protected:
    [[nodiscard]] Papel PapelPadrao() const override
    {
        return Click ? Papel::Botao : Papel::Nenhum;
    }

private:
    Picture m_picture;
    bool m_stretch = false;
    int m_borda = 0;
};

} // namespace toolkit
