#include "ui/forms/ranking_forms.h"

#include "ui/forms/dialog_parts.h"
#include "ui/forms/slot_forms.h"

#include <array>

namespace forms {

namespace {

using toolkit::Alinhamento;
using toolkit::Familia;

constexpr Contorno kContornoSeuNome = {.titulo = u"Ranking",
                                       .lugarDoTitulo = {180, 75, 1080, 345},
                                       .tiraDeArrasto = {45, 30, 3675, 450},
                                       .zonaDeFechar = {3855, 30, 345, 315},
                                       .ajustadorLeft = 3525,
                                       .ajustadorTop = 585};

constexpr std::array kControlesSeuNome = {
    TiraDeArrasto(kContornoSeuNome),
    Titulo(kContornoSeuNome),
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label2",
                .left = 390,
                .top = 540,
                .width = 2940,
                .height = 315,
                .texto = u"Informe o seu nome:",
                .fonte = {Familia::Arial, 9.75F, true},
                .transparente = true},
    DefControle{.tipo = Tipo::TextBox,
                .nome = u"Text1",
                .left = 360,
                .top = 885,
                .width = 3120,
                .height = 360,
                .fundo = toolkit::kBranco,
                .maximo = kMaximoNome},
    DefControle{.tipo = Tipo::CommandButton,
                .nome = u"Command1",
                .left = 3495,
                .top = 870,
                .width = 555,
                .height = 360,
                .texto = u"OK",
                .padrao = true},
    ZonaDeFechar(kContornoSeuNome),
    Ajustador(kContornoSeuNome),
};

constexpr Contorno kContornoHanking = {.titulo = u"Ranking",
                                       .lugarDoTitulo = {165, 105, 1080, 345},
                                       .tiraDeArrasto = {0, 75, 5265, 405},
                                       .zonaDeFechar = {5415, 0, 300, 315},
                                       .ajustadorLeft = 5190,
                                       .ajustadorTop = 720};

/// Tops of the place column, in twips; they are not evenly spaced. The other columns stand a pixel
/// lower.
constexpr std::array<float, kLinhasRanking> kTopos = {690, 1095, 1500, 1920, 2340};
constexpr float kDesnivel = 15;

struct Coluna
{
    const char16_t *nome;
    float left;
    float width;
    Alinhamento alinhamento;
    float desnivel;
};

constexpr std::array kColunasRanking = {
    Coluna{u"Label1", 225, 750, Alinhamento::Direita, 0},
    Coluna{u"Label2", 1140, 1080, Alinhamento::Centro, kDesnivel},
    Coluna{u"Label3", 2370, 3225, Alinhamento::Esquerda, kDesnivel},
};

constexpr std::array<DefControle, 4 + kColunasRanking.size() * kLinhasRanking> ControlesHanking()
{
    std::array<DefControle, 4 + kColunasRanking.size() * kLinhasRanking> controles{};
    controles[0] = TiraDeArrasto(kContornoHanking);
    controles[1] = Titulo(kContornoHanking, 0);
    size_t k = 2;
    for (const Coluna &coluna : kColunasRanking) {
        for (size_t linha = 0; linha < kLinhasRanking; ++linha) {
            controles[k++] = {.tipo = Tipo::Label,
                              .nome = coluna.nome,
                              .indice = static_cast<int>(linha) + 1,
                              .left = coluna.left,
                              .top = kTopos[linha] + coluna.desnivel,
                              .width = coluna.width,
                              .height = 270,
                              .fonte = {Familia::Arial, 11.25F},
                              .cor = toolkit::kBranco,
                              .alinhamento = coluna.alinhamento,
                              .transparente = true};
        }
    }
    controles[k++] = ZonaDeFechar(kContornoHanking);
    controles[k] = Ajustador(kContornoHanking);
    return controles;
}

constexpr std::array kControlesHanking = ControlesHanking();

} // namespace

const DefForm kFrmSeuNome = {
    .nome = u"FrmSeuNome",
    .caption = u"Ranking",
    .moldura = toolkit::Moldura::Nenhuma,
    .width = 4230,
    .height = 1485,
    .figura = u"FrmSalvar2",
    .controles = kControlesSeuNome,
};

const DefForm kFrmHanking = {
    .nome = u"FrmHanking",
    .caption = u"Ranking",
    .moldura = toolkit::Moldura::Nenhuma,
    .width = 5775,
    .height = 3090,
    .figura = u"FrmHanking",
    .controles = kControlesHanking,
};

} // namespace forms
