#include "ui/window/dpi_adjuster.h"

#include "ui/toolkit/image.h"
#include "ui/toolkit/picture_box.h"
#include "ui/window/center_form.h"

#include <cmath>
#include <vector>

namespace {

/// Geometry of a control before the adjustment, in the units of its container; of a line the first
/// point and the way to the second.
struct PosicaoObjeto
{
    float left;
    float top;
    float width;
    float height;
    float fontSize;
};

using Posicoes = std::vector<PosicaoObjeto>;

Posicoes GuardaPosicoes(const toolkit::Form &form)
{
    Posicoes posicoes;
    posicoes.reserve(form.Controls().size());
    for (const auto &controle : form.Controls()) {
        posicoes.push_back({controle->Left(), controle->Top(), controle->Width(),
                            controle->Height(),
                            controle->TemFonte() ? controle->GetFont().Tamanho : 0});
    }
    return posicoes;
}

void Reposiciona(toolkit::Control &controle, const PosicaoObjeto &r, float sx, float sy)
{
    controle.SetTop(sy * r.top);
    controle.SetLeft(sx * r.left);
    if (controle.TemFonte()) {
        controle.SetFontSize(sy * r.fontSize);
    }
    if (controle.TemTamanho()) {
        controle.SetWidth(sx * r.width);
        controle.SetHeight(sy * r.height);
    }
    // A label that keeps its right edge where it sizes itself has moved with its font.
    controle.SetLeft(sx * r.left);
    if (auto *imagem = dynamic_cast<toolkit::Image *>(&controle)) {
        imagem->TomaTamanhoNatural();
    } else if (auto *caixa = dynamic_cast<toolkit::PictureBox *>(&controle)) {
        caixa->TomaTamanhoNatural();
    }
}

void ReposicionaObjetos(const toolkit::Form &form, const Posicoes &posicoes, float sx, float sy)
{
    for (size_t i = 0; i < posicoes.size(); ++i) {
        Reposiciona(*form.Controls()[i], posicoes[i], sx, sy);
    }
}

} // namespace

void AjustarDpi(toolkit::Form &form)
{
    const float larguraVelha = std::round(form.ScaleWidth());
    const float alturaVelha = std::round(form.ScaleHeight());
    const float w = std::round(form.Width());
    const float h = std::round(form.Height());
    const float porPixel = toolkit::TwipsPorPixel(form.Dpi());
    const float larguraFigura = static_cast<float>(form.GetPicture().Tamanho().width()) * porPixel;
    const float alturaFigura = static_cast<float>(form.GetPicture().Tamanho().height()) * porPixel;
    if (larguraFigura == w && alturaFigura == h) {
        return;
    }
    form.SetSize(larguraFigura + (w - larguraVelha), alturaFigura + (h - alturaVelha));
    if (form.TemLugar()) {
        // It was centred with its old size.
        CentralizaForm(form);
    }
    ReposicionaObjetos(form, GuardaPosicoes(form), form.ScaleWidth() / larguraVelha,
                       form.ScaleHeight() / alturaVelha);
}

void AjustarObjetos(toolkit::Form &form, int appliedDpi, float ajusteW, float ajusteH)
{
    const float fator = static_cast<float>(toolkit::kDpiPadrao) / static_cast<float>(appliedDpi);
    ReposicionaObjetos(form, GuardaPosicoes(form), ajusteW == 0 ? fator : ajusteW,
                       ajusteW == 0 ? fator : ajusteH);
}
