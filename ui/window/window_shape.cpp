#include "ui/window/window_shape.h"

#include "ui/window/region_runs.h"

namespace {

/// What is cut out of the windows.
constexpr QRgb kCorChave = qRgb(255, 0, 0);

} // namespace

std::optional<QRegion> RegiaoDaFigura(const QImage &pic, QRgb cor)
{
    const QImage imagem = pic.convertToFormat(QImage::Format_RGB32);
    const auto *pixels = reinterpret_cast<const std::uint32_t *>(imagem.constBits());
    const auto passo = static_cast<size_t>(imagem.bytesPerLine()) / sizeof(std::uint32_t);
    const auto trechos = TrechosDaFigura({{pixels, passo * static_cast<size_t>(imagem.height())},
                                          imagem.width(),
                                          imagem.height(),
                                          passo},
                                         cor & RGB_MASK);
    if (!trechos) {
        return std::nullopt;
    }
    QRegion regiao;
    for (const TrechoDaFigura &trecho : *trechos) {
        regiao += QRect(trecho.x0, trecho.y, trecho.x1 - trecho.x0, 1);
    }
    return regiao;
}

void DaForma(toolkit::Form &form, ValoresPrograma &valores)
{
    const toolkit::Picture &figura = form.GetPicture();
    if (!RegiaoDaFigura(figura.Pixels(), kCorChave)) {
        valores.RegiaoJanela = 0;
        return;
    }
    valores.RegiaoJanela = 1;
    form.SetWindowRgn(
        [figura](qreal escala) {
            const QSize tamanho = (QSizeF(figura.Tamanho()) * escala).toSize();
            // Nearest pixels: a mixed colour would be no key colour.
            const QImage desenho = figura.ParaEscala(escala).toImage().scaled(tamanho);
            return RegiaoDaFigura(desenho, kCorChave).value_or(QRegion());
        },
        kCorChave);
}

void ArrastaForm(toolkit::Form &form, const toolkit::Mouse &mouse)
{
    if (mouse.botoes == Qt::LeftButton) {
        form.GetArrasto().Move(mouse);
    } else {
        form.GetArrasto().Solta();
    }
}

void LigaTira(toolkit::Form &form, toolkit::Control &tira)
{
    tira.MouseDown = [&form](const toolkit::Mouse &mouse) {
        form.GetArrasto().Solta();
        if (mouse.botoes == Qt::LeftButton) {
            form.GetArrasto().Pega(mouse);
        }
    };
    tira.MouseUp = [&form](const toolkit::Mouse &mouse) {
        if (mouse.botoes == Qt::LeftButton) {
            form.GetArrasto().Solta();
        }
    };
    tira.MouseMove = [&form](const toolkit::Mouse &mouse) { ArrastaForm(form, mouse); };
}
