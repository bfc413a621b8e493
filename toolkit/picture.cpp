#include "toolkit/picture.h"

#include <algorithm>

namespace toolkit {

namespace {

/// Paints over the key pixels at both ends of a row, from the outermost other pixel on.
void CobreLinha(QRgb *linha, int largura, QRgb cor)
{
    const auto chave = [cor](QRgb pixel) { return (pixel & RGB_MASK) == (cor & RGB_MASK); };
    QRgb *fim = linha + largura;
    QRgb *primeiro = std::find_if_not(linha, fim, chave);
    if (primeiro == fim) {
        return;
    }
    std::fill(linha, primeiro, *primeiro);
    for (QRgb *pixel = primeiro + 1; pixel != fim; ++pixel) {
        *pixel = chave(*pixel) ? pixel[-1] : *pixel;
    }
}

QImage Cobre(QImage imagem, QRgb cor)
{
    imagem.convertTo(QImage::Format_RGB32);
    for (int y = 0; y < imagem.height(); ++y) {
        CobreLinha(reinterpret_cast<QRgb *>(imagem.scanLine(y)), imagem.width(), cor);
    }
    return imagem;
}

} // namespace

Picture::Picture(const QString &nome)
{
    constexpr std::array sufixos = {u"", u"@2x", u"@3x"};
    for (size_t k = 0; k < sufixos.size(); ++k) {
        QImage imagem(
            QStringLiteral(":/figuras/%1%2.png").arg(nome, QString::fromUtf16(sufixos[k])));
        Q_ASSERT_X(!imagem.isNull(), "Picture", qPrintable(nome));
        if (k == 0) {
            m_pixels = imagem;
        }
        m_desenhos[k] = QPixmap::fromImage(imagem);
        m_desenhos[k].setDevicePixelRatio(static_cast<qreal>(k) + 1);
    }
}

Picture Picture::Coberta(QRgb cor) const
{
    Picture coberta;
    coberta.m_pixels = Cobre(m_pixels, cor);
    for (size_t k = 0; k < m_desenhos.size(); ++k) {
        coberta.m_desenhos[k] = QPixmap::fromImage(Cobre(m_desenhos[k].toImage(), cor));
        coberta.m_desenhos[k].setDevicePixelRatio(m_desenhos[k].devicePixelRatio());
    }
    return coberta;
}

const QPixmap &Picture::ParaEscala(qreal escala) const
{
    constexpr qreal kFolga = 0.01;
    size_t k = 0;
    while (k + 1 < m_desenhos.size() && static_cast<qreal>(k) + 1 + kFolga < escala) {
        ++k;
    }
    return m_desenhos[k];
}

QCursor Ponteiro(const Picture &figura, QPoint ponta)
{
    return QCursor(figura.ParaEscala(1), ponta.x(), ponta.y());
}

} // namespace toolkit
