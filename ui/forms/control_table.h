#pragma once

#include "ui/toolkit/command_button.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/image.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/line.h"
#include "ui/toolkit/picture_box.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/timer.h"

#include <span>

namespace forms {

enum class Tipo { Label, Image, PictureBox, TextBox, CommandButton, Timer, Line, Helper };

/// One control of a form's definition. Lengths are twips in the container's coordinates, also where
/// the container counts in pixels. What is left out has the toolkit's default look.
struct DefControle
{
    Tipo tipo;
    const char16_t *nome;
    int indice = -1;
    /// Name of the picture box that the control lies in; null: the form itself.
    const char16_t *dentro = nullptr;
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    /// Caption or text.
    const char16_t *texto = u"";
    toolkit::Font fonte = {};
    QColor cor = toolkit::kPreto;
    QColor fundo = QColor(240, 240, 240);
    toolkit::Alinhamento alinhamento = toolkit::Alinhamento::Esquerda;
    bool transparente = false;
    bool autoSize = false;
    bool visivel = true;
    bool habilitado = true;
    bool stretch = false;
    bool padrao = false;
    /// The picture box counts what lies in it in pixels.
    bool pixels = false;
    int borda = 0;
    /// Most characters of a text box; 0: no limit.
    int maximo = 0;
    int intervaloMs = 0;
    /// Name of a picture, or null.
    const char16_t *figura = nullptr;
};

/// A form's definition. Lengths are twips.
struct DefForm
{
    const char16_t *nome;
    const char16_t *caption;
    toolkit::Moldura moldura;
    float width;
    float height;
    /// Name of the background picture, or null.
    const char16_t *figura;
    /// The controls in front-to-back order; a container stands before what it holds.
    std::span<const DefControle> controles;
};

/// Gives `form` the size, caption, picture and controls of its definition.
void Define(toolkit::Form &form, const DefForm &def);

/// Lets the text box `campo` be known to assistive technology by the caption of the label `rotulo`.
void NomeiaCampo(const toolkit::Form &form, const char16_t *campo, const char16_t *rotulo);

/// A control of a defined form. The name and the type must be the definition's.
template <class T>
T &Acha(const toolkit::Form &form, const char16_t *nome, int indice = -1)
{
    auto *controle = dynamic_cast<T *>(form.Procura(nome, indice));
    Q_ASSERT_X(controle != nullptr, "forms::Acha", qPrintable(QString::fromUtf16(nome)));
    return *controle;
}

} // namespace forms
