#pragma once

#include "ui/forms/control_table.h"

/// Controls that the dialogs' tables have in common.

namespace forms {

/// Place and size on a form, in twips.
struct Retangulo
{
    float left;
    float top;
    float width;
    float height;
};

/// What every dialog that is its own picture has round its body.
struct Contorno
{
    const char16_t *titulo;
    Retangulo lugarDoTitulo;
    Retangulo tiraDeArrasto;
    Retangulo zonaDeFechar;
    float ajustadorLeft;
    float ajustadorTop;
};

/// The invisible strip by which the form is dragged. In a table it stands before the title, so that
/// the title's letters drag as well.
constexpr DefControle TiraDeArrasto(const Contorno &c)
{
    return {.tipo = Tipo::Image,
            .nome = u"Image3",
            .left = c.tiraDeArrasto.left,
            .top = c.tiraDeArrasto.top,
            .width = c.tiraDeArrasto.width,
            .height = c.tiraDeArrasto.height};
}

/// The click zone on the close button of the picture.
constexpr DefControle ZonaDeFechar(const Contorno &c)
{
    return {.tipo = Tipo::Image,
            .nome = u"Image1",
            .left = c.zonaDeFechar.left,
            .top = c.zonaDeFechar.top,
            .width = c.zonaDeFechar.width,
            .height = c.zonaDeFechar.height};
}

/// The title, Label1 or member `indice` of that array.
constexpr DefControle Titulo(const Contorno &c, int indice = -1)
{
    return {.tipo = Tipo::Label,
            .nome = u"Label1",
            .indice = indice,
            .left = c.lugarDoTitulo.left,
            .top = c.lugarDoTitulo.top,
            .width = c.lugarDoTitulo.width,
            .height = c.lugarDoTitulo.height,
            .texto = c.titulo,
            .fonte = {toolkit::Familia::ArialBlack, 12},
            .cor = toolkit::kBranco,
            .transparente = true,
            .autoSize = true};
}

/// The place of the form's adjuster; it shows nothing.
constexpr DefControle Ajustador(const Contorno &c)
{
    return {.tipo = Tipo::Helper,
            .nome = u"PPP1",
            .left = c.ajustadorLeft,
            .top = c.ajustadorTop,
            .width = 615,
            .height = 555};
}

} // namespace forms
