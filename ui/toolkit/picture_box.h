#pragma once

#include "ui/toolkit/painted_control.h"
#include "ui/toolkit/picture.h"

namespace toolkit {

/// A picture box: a ground with a colour, a container of other controls, and a place to draw a
/// rectangle.
class PictureBox final : public PaintedControl
{
public:
    explicit PictureBox(const Origem &origem);

    /// Setting the ground wipes what was drawn.
    void SetBackColor(QColor cor) override;
    /// Fills (0,0)-(largura, altura), in the units of the box's container, with the foreground
    /// colour.
    void PintaRetangulo(float largura, float altura);
    /// Paints what has been drawn, now.
    void Refresh();

    [[nodiscard]] const Picture &GetPicture() const { return m_picture; }
    void SetPicture(const Picture &picture);
    /// The box takes its picture's size.
    void SetAutoSize(bool autoSize);
    /// Takes it again, after the box has been given another one.
    void TomaTamanhoNatural();
    /// 0: no border; 1: a thin line round the box.
    void SetBorderStyle(int borda);
    /// What lies in the box counts in pixels, not in twips.
    void SetEscalaPixels(bool pixels) { m_escalaPixels = pixels; }
    /// Units of the controls in the box to a pixel.
    [[nodiscard]] float PorPixelDentro() const;
    /// Takes the keyboard's focus when asked to.
    void SetRecebeFoco();

    void CopiaDe(const PictureBox &molde);
    void Pinta(QPainter &pintor, QSize tamanho) override;

private:
    Picture m_picture;
    bool m_autoSize = false;
    bool m_escalaPixels = false;
    int m_borda = 0;
    float m_cheioLargura = 0;
    float m_cheioAltura = 0;
};

} // namespace toolkit
