#include "ui/forms/update_window.h"

#include <array>

namespace forms {

namespace {

using toolkit::Familia;

constexpr std::array kControles = {
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label1",
                .left = 180,
                .top = 90,
                .width = 1575,
                .height = 345,
                .texto = u"Atualização",
                .fonte = {Familia::ArialBlack, 12},
                .cor = toolkit::kBranco,
                .transparente = true,
                .autoSize = true},
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label2",
                .left = 270,
                .top = 600,
                .width = 3720,
                .height = 255,
                .fonte = {Familia::Arial, 9.75F, true},
                .transparente = true},
    DefControle{.tipo = Tipo::PictureBox,
                .nome = u"PicBaixado",
                .left = 270,
                .top = 1005,
                .width = 2490,
                .height = 195,
                .fundo = toolkit::kBranco,
                .borda = 1},
    DefControle{.tipo = Tipo::CommandButton,
                .nome = u"Command1",
                .left = 2910,
                .top = 915,
                .width = 1080,
                .height = 360,
                .texto = u"Cancelar"},
    DefControle{.tipo = Tipo::Image,
                .nome = u"Image3",
                .left = 60,
                .top = 60,
                .width = 3675,
                .height = 360},
    DefControle{.tipo = Tipo::Image,
                .nome = u"Image1",
                .left = 3870,
                .top = 60,
                .width = 345,
                .height = 315},
    DefControle{.tipo = Tipo::Helper,
                .nome = u"PPP1",
                .left = 3720,
                .top = 630,
                .width = 615,
                .height = 555},
};

} // namespace

const DefForm kFrmBaixar = {u"FrmBaixar",  u"Atualização", toolkit::Moldura::Nenhuma, 4245, 1485,
                            u"FrmSalvar2", kControles};

} // namespace forms
