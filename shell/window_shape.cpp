#include "shell/window_shape.h"

#include "shell/region_runs.h"

namespace {

/// What is cut out of the windows.
constexpr QRgb kCorChave = qRgb(255, 0, 0);

} // namespace

std::optional<QRegion> RegiaoDaFigura(const toolkit::Picture &pic, QRgb cor)
{
    const QImage imagem = pic.Pixels().convertToFormat(QImage::Format_RGB32);
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
    const auto regiao = RegiaoDaFigura(form.GetPicture(), kCorChave);
    valores.RegiaoJanela = regiao ? valores.RegiaoJanela + 1 : 0;
    if (regiao) {
        form.SetWindowRgn(*regiao);
    }
}

void ArrastaForm(toolkit::Form &form, const toolkit::Mouse &mouse)
{
    if (mouse.botoes == Qt::LeftButton) {
        form.Arrasta();
    }
}
