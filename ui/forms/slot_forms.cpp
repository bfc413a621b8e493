#include "ui/forms/slot_forms.h"

#include "ui/forms/dialog_parts.h"

#include <array>

namespace forms {

namespace {

using toolkit::Alinhamento;
using toolkit::Familia;

/// Distance from one slot's label to the next, in twips.
constexpr float kPassoSlots = 405;

/// What tells the two lists apart.
struct DefLista
{
    Contorno contorno;
    Retangulo primeiroSlot;
    Retangulo cancelar;
    const char16_t *vazio;
};

constexpr DefControle LabelDaLista(int indice, const Retangulo &lugar, const char16_t *texto)
{
    return {.tipo = Tipo::Label,
            .nome = u"LbSave",
            .indice = indice,
            .left = lugar.left,
            .top = lugar.top,
            .width = lugar.width,
            .height = lugar.height,
            .texto = texto,
            .fonte = {Familia::Verdana, 12, indice == kLbCancelar},
            .alinhamento = Alinhamento::Centro,
            .transparente = true};
}

constexpr std::array<DefControle, kLbCancelar + 4> Lista(const DefLista &lista)
{
    std::array<DefControle, kLbCancelar + 4> controles{};
    Retangulo lugar = lista.primeiroSlot;
    for (int n = 1; n < kLbCancelar; ++n) {
        controles[static_cast<size_t>(n) - 1] = LabelDaLista(n, lugar, lista.vazio);
        lugar.top += kPassoSlots;
    }
    controles[kLbCancelar - 1] = LabelDaLista(kLbCancelar, lista.cancelar, u"Cancelar");
    controles[kLbCancelar] = TiraDeArrasto(lista.contorno);
    controles[kLbCancelar + 1] = Titulo(lista.contorno);
    controles[kLbCancelar + 2] = ZonaDeFechar(lista.contorno);
    controles[kLbCancelar + 3] = Ajustador(lista.contorno);
    return controles;
}

constexpr std::array kControlesCarregar = Lista({.contorno = {.titulo = u"Abrir Jogo",
                                                              .lugarDoTitulo = {165, 90, 1365, 345},
                                                              .tiraDeArrasto = {15, 90, 3225, 360},
                                                              .zonaDeFechar = {3375, 15, 300, 315},
                                                              .ajustadorLeft = 195,
                                                              .ajustadorTop = 5070},
                                                 .primeiroSlot = {210, 660, 3270, 285},
                                                 .cancelar = {225, 4935, 3390, 285},
                                                 .vazio = kVazio});

constexpr std::array kControlesSalvar = Lista({.contorno = {.titulo = u"Salvar Jogo",
                                                            .lugarDoTitulo = {150, 75, 1575, 345},
                                                            .tiraDeArrasto = {90, 90, 3225, 360},
                                                            .zonaDeFechar = {3435, 45, 300, 315},
                                                            .ajustadorLeft = 480,
                                                            .ajustadorTop = 5235},
                                               .primeiroSlot = {240, 615, 3270, 285},
                                               .cancelar = {255, 4890, 3270, 285},
                                               .vazio = kSalvarAqui});

constexpr Contorno kContornoSalvar2 = {.titulo = u"Salvar Jogo",
                                       .lugarDoTitulo = {180, 90, 1575, 345},
                                       .tiraDeArrasto = {60, 60, 3675, 360},
                                       .zonaDeFechar = {3870, 60, 345, 315},
                                       .ajustadorLeft = 3720,
                                       .ajustadorTop = 630};

constexpr std::array kControlesSalvar2 = {
    TiraDeArrasto(kContornoSalvar2),
    Titulo(kContornoSalvar2),
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label2",
                .left = 405,
                .top = 570,
                .width = 2940,
                .height = 315,
                .texto = u"Informe um nome para o jogo:",
                .fonte = {Familia::Arial, 9.75F, true},
                .transparente = true},
    DefControle{.tipo = Tipo::TextBox,
                .nome = u"Text1",
                .left = 375,
                .top = 915,
                .width = 3120,
                .height = 360,
                .fundo = toolkit::kBranco,
                .maximo = kMaximoNome},
    DefControle{.tipo = Tipo::CommandButton,
                .nome = u"Command1",
                .left = 3510,
                .top = 915,
                .width = 570,
                .height = 360,
                .texto = u"OK",
                .padrao = true},
    // Carries the slot's number.
    DefControle{.tipo = Tipo::Label,
                .nome = u"Label3",
                .left = 75,
                .top = 1200,
                .width = 195,
                .height = 240,
                .texto = u"Label3",
                .transparente = true,
                .visivel = false},
    ZonaDeFechar(kContornoSalvar2),
    Ajustador(kContornoSalvar2),
};

} // namespace

const DefForm kFrmCarregar = {
    .nome = u"FrmCarregar",
    .caption = u"Abrir Jogo",
    .moldura = toolkit::Moldura::Nenhuma,
    .width = 3765,
    .height = 5595,
    .figura = u"FrmCarregar",
    .controles = kControlesCarregar,
};

const DefForm kFrmSalvar = {
    .nome = u"FrmSalvar",
    .caption = u"Salvar Jogo",
    .moldura = toolkit::Moldura::Nenhuma,
    .width = 3765,
    .height = 5595,
    .figura = u"FrmCarregar",
    .controles = kControlesSalvar,
};

const DefForm kFrmSalvar2 = {
    .nome = u"FrmSalvar2",
    .caption = u"Salvar Jogo",
    .moldura = toolkit::Moldura::Nenhuma,
    .width = 4245,
    .height = 1485,
    .figura = u"FrmSalvar2",
    .controles = kControlesSalvar2,
};

} // namespace forms
