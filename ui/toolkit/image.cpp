#include "ui/toolkit/image.h"

#include "ui/toolkit/thin_frame.h"

#include <QPainter>

namespace toolkit {

void Image::SetPicture(const Picture &picture)
{
    m_picture = picture;
    MostraAspecto();
}

void Image::SetStretch(bool stretch)
{
    m_stretch = stretch;
    MostraAspecto();
}

void Image::SetBorderStyle(int borda)
{
    m_borda = borda;
    MostraAspecto();
}

void Image::TomaTamanhoNatural()
{
    if (m_stretch || m_picture.IsNull()) {
        return;
    }
    const float porPixel = GetOrigem().porPixel;
    Move(Left(), Top(), static_cast<float>(m_picture.Tamanho().width()) * porPixel,
         static_cast<float>(m_picture.Tamanho().height()) * porPixel);
}

void Image::CopiaDe(const Image &molde)
{
    m_picture = molde.m_picture;
    m_stretch = molde.m_stretch;
    m_borda = molde.m_borda;
    CopiaBase(molde);
}

void Image::Pinta(QPainter &pintor, QSize tamanho)
{
    if (m_borda != 0) {
        pintor.setClipRect(AreaDaMoldura(pintor, tamanho));
    }
    if (!m_picture.IsNull()) {
        const QRect natural(QPoint(), m_picture.Tamanho());
        const QRect alvo = m_stretch ? QRect(QPoint(), tamanho) : natural;
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        pintor.drawPixmap(alvo, m_picture.ParaEscala(pintor.device()->devicePixelRatioF()));
    }
    if (m_borda != 0) {
        PintaMoldura(pintor, tamanho, kPreto);
    }
}

} // namespace toolkit
