#include "ui/forms/about.h"

#include <array>

namespace forms {

namespace {

using toolkit::Familia;
using toolkit::Font;

constexpr Font kTexto{Familia::Tahoma, 8.25F};
constexpr Font kElo{Familia::Tahoma, 8.25F, false, true};
constexpr QColor kCorElo(0, 0, 128);

constexpr std::array kControles = {
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label1",
                .left = 1560,
                .top = 165,
                .width = 4740,
                .height = 255,
                .fonte = {Familia::Tahoma, 8.25F, true}},
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label2",
                .left = 1560,
                .top = 390,
                .width = 4590,
                .height = 255,
                .texto = u"Para  Windows XP Vista Sete Win8",
                .fonte = kTexto},
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label6",
                .left = 1560,
                .top = 720,
                .width = 3930,
                .height = 255,
                .fonte = kTexto},
    DefControle{.tipo = Tipo::Line, .nome = u"Line1", .left = 1560, .top = 1935, .width = 4785},
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label7",
                .left = 4335,
                .top = 2025,
                .width = 1185,
                .height = 255,
                .texto = u"Suporte técnico",
                .fonte = kElo,
                .cor = kCorElo},
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label10",
                .left = 5640,
                .top = 2025,
                .width = 690,
                .height = 255,
                .texto = u"Atualizar",
                .fonte = kElo,
                .cor = kCorElo},
    DefControle{.tipo = Tipo::CommandButton,
                .nome = u"Command1",
                .left = 5205,
                .top = 2355,
                .width = 1095,
                .height = 360,
                .texto = u"OK"},
    DefControle{.tipo = Tipo::Image,
                .nome = u"Image1",
                .left = 180,
                .top = 135,
                .width = 1110,
                .height = 2175,
                .stretch = true,
                .borda = 1,
                .figura = u"Jogo"},
    DefControle{.tipo = Tipo::Image,
                .nome = u"Image5",
                .left = -30,
                .top = -15,
                .width = 480,
                .height = 480,
                .visivel = false,
                .figura = u"Mao"},
    DefControle{.tipo = Tipo::Helper,
                .nome = u"DL1",
                .left = 5880,
                .top = 1320,
                .width = 495,
                .height = 495},
};

} // namespace

const DefForm kFrmSobre = {u"FrmSobre", u"",       toolkit::Moldura::Ferramenta, 6450, 2835,
                           nullptr,     kControles};

} // namespace forms
