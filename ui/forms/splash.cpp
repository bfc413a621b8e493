#include "ui/forms/splash.h"

#include <array>

namespace forms {

namespace {

constexpr std::array kControles = {
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label3",
                .left = 4620,
                .top = 270,
                .width = 480,
                .height = 195,
                .texto = u"Label3",
                .cor = QColor(224, 224, 224),
                .alinhamento = toolkit::Alinhamento::Direita,
                .transparente = true,
                .autoSize = true},
    DefControle{.tipo = Tipo::PictureBox,
                .nome = u"Picture1",
                .left = 4920,
                .top = 1035,
                .width = 330,
                .height = 240,
                .autoSize = true,
                .visivel = false},
    DefControle{.tipo = Tipo::Helper,
                .nome = u"PPP1",
                .left = 300,
                .top = 750,
                .width = 615,
                .height = 555},
};

} // namespace

const DefForm kFrmSplash = {u"FrmSplash", u"Quadrelo", toolkit::Moldura::Abertura, 5415, 1350,
                            u"FrmSplash", kControles};

} // namespace forms
