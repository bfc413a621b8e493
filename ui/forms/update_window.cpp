#include "ui/forms/update_window.h"

#include "ui/forms/dialog_parts.h"

#include <array>

namespace forms {

namespace {

using toolkit::Familia;

constexpr Contorno kContorno = {.titulo = u"Atualização",
                                .lugarDoTitulo = {180, 90, 1575, 345},
                                .tiraDeArrasto = {60, 60, 3675, 360},
                                .zonaDeFechar = {3870, 60, 345, 315},
                                .ajustadorLeft = 3720,
                                .ajustadorTop = 630};

constexpr std::array kControles = {
    TiraDeArrasto(kContorno),
    Titulo(kContorno),
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
    ZonaDeFechar(kContorno),
    Ajustador(kContorno),
};

} // namespace

const DefForm kFrmBaixar = {u"FrmBaixar",  u"Atualização", toolkit::Moldura::Nenhuma, 4245, 1485,
                            u"FrmSalvar2", kControles};

} // namespace forms
