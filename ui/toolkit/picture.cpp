#include "ui/toolkit/picture.h"

#include "assets/pictures.h"

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

QImage Vaza(const QImage &imagem, QRgb cor)
{
    QImage vazada = imagem.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < vazada.height(); ++y) {
        auto *linha = reinterpret_cast<QRgb *>(vazada.scanLine(y));
        std::replace(linha, linha + vazada.width(), cor, qRgba(0, 0, 0, 0));
    }
    return vazada;
}

QImage Carrega(const QString &nome, size_t vezes)
{
    constexpr std::array sufixos = {u"", u"@2x", u"@3x"};
    const QImage imagem(CaminhoFigura(nome + QString::fromUtf16(sufixos[vezes])));
    Q_ASSERT_X(!imagem.isNull(), "Picture", qPrintable(nome));
    return imagem;
}

} // namespace

Picture::Picture(const QString &nome)
    : m_conteudo(std::make_shared<Conteudo>(Conteudo{nome, Carrega(nome, 0), {}, {}}))
{
}

Picture Picture::Coberta(QRgb cor) const
{
    return Tratada([cor](const QImage &imagem) { return Cobre(imagem, cor); });
}

Picture Picture::Vazada(QRgb cor) const
{
    return Tratada([cor](const QImage &imagem) { return Vaza(imagem, cor); });
}

Picture Picture::Tratada(const std::function<QImage(QImage)> &trato) const
{
    Picture tratada;
    tratada.m_conteudo = std::make_shared<Conteudo>(
        Conteudo{m_conteudo->nome, trato(m_conteudo->pixels), trato, {}});
    return tratada;
}

const QPixmap &Picture::ParaEscala(qreal escala) const
{
    constexpr qreal kFolga = 0.01;
    auto &desenhos = m_conteudo->desenhos;
    size_t k = 0;
    while (k + 1 < desenhos.size() && static_cast<qreal>(k) + 1 + kFolga < escala) {
        ++k;
    }
    if (desenhos[k].isNull()) {
        QImage imagem = k == 0 ? m_conteudo->pixels : Carrega(m_conteudo->nome, k);
        if (k > 0 && m_conteudo->trato) {
            imagem = m_conteudo->trato(imagem);
        }
        desenhos[k] = QPixmap::fromImage(imagem);
        desenhos[k].setDevicePixelRatio(static_cast<qreal>(k) + 1);
    }
    return desenhos[k];
}

QPixmap Picture::NoTamanhoDe(qreal escala) const
{
    QPixmap desenho = ParaEscala(escala).scaled((QSizeF(Tamanho()) * escala).toSize(),
                                                Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    desenho.setDevicePixelRatio(escala);
    return desenho;
}

QCursor Ponteiro(const Picture &figura, QPoint ponta)
{
    return QCursor(figura.ParaEscala(1), ponta.x(), ponta.y());
}

} // namespace toolkit
