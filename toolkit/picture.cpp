#include "toolkit/picture.h"

namespace toolkit {

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
