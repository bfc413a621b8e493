#include "ui/toolkit/picture_box.h"

#include "ui/toolkit/thin_frame.h"

#include <QPainter>

namespace toolkit {

PictureBox::PictureBox(const Origem &origem) : PaintedControl(origem)
{
    // The ground covers all of a box without a border, so nothing below it has to be painted.
    Widget()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetBackColor(QColor cor)
{
    m_cheioLargura = 0;
    m_cheioAltura = 0;
    Control::SetBackColor(cor);
}

void PictureBox::PintaRetangulo(float largura, float altura)
{
    m_cheioLargura = largura;
    m_cheioAltura = altura;
    MostraAspecto();
}

void PictureBox::Refresh()
{
    Widget()->repaint();
}

void PictureBox::SetPicture(const Picture &picture)
{
    m_picture = picture;
    TomaTamanhoNatural();
    MostraAspecto();
}

void PictureBox::TomaTamanhoNatural()
{
    if (m_autoSize && !m_picture.IsNull()) {
        const float porPixel = GetOrigem().porPixel;
        Move(Left(), Top(), static_cast<float>(m_picture.Tamanho().width()) * porPixel,
             static_cast<float>(m_picture.Tamanho().height()) * porPixel);
    }
}

void PictureBox::SetAutoSize(bool autoSize)
{
    m_autoSize = autoSize;
}

void PictureBox::SetBorderStyle(int borda)
{
    m_borda = borda;
    Widget()->setAttribute(Qt::WA_OpaquePaintEvent, borda == 0);
    MostraAspecto();
}

float PictureBox::PorPixelDentro() const
{
    return m_escalaPixels ? 1 : TwipsPorPixel(GetOrigem().dpi);
}

void PictureBox::SetRecebeFoco()
{
    Widget()->setFocusPolicy(Qt::ClickFocus);
}

void PictureBox::CopiaDe(const PictureBox &molde)
{
    m_picture = molde.m_picture;
    m_autoSize = molde.m_autoSize;
    m_escalaPixels = molde.m_escalaPixels;
    SetBorderStyle(molde.m_borda);
    CopiaBase(molde);
}

void PictureBox::Pinta(QPainter &pintor, QSize tamanho)
{
    if (m_borda != 0) {
        pintor.setClipRect(AreaDaMoldura(pintor, tamanho));
    }
    pintor.fillRect(QRect(QPoint(), tamanho), BackColor());
    if (!m_picture.IsNull()) {
        pintor.drawPixmap(QRect(QPoint(), m_picture.Tamanho()),
                          m_picture.ParaEscala(pintor.device()->devicePixelRatioF()));
    }
    const float porPixel = GetOrigem().porPixel;
    if (m_cheioLargura > 0) {
        pintor.fillRect(QRectF(0, 0, m_cheioLargura / porPixel, m_cheioAltura / porPixel),
                        ForeColor());
    }
    if (m_borda != 0) {
        PintaMoldura(pintor, tamanho, kPreto);
    }
}

} // namespace toolkit
