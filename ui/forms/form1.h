#pragma once

#include "core/board/board.h"
#include "ui/forms/control_table.h"
#include "ui/toolkit/control_array.h"

#include <array>

namespace forms {

/// The main form's definition.
extern const DefForm kForm1;

/// The controls of the main form, by their names. The form must have been given kForm1.
struct ControlesForm1
{
    explicit ControlesForm1(toolkit::Form &dono);

    toolkit::Form &form;
    toolkit::PictureBox &Pic_q1;
    toolkit::PictureBox &Pic_q2;
    toolkit::PictureBox &Picespere;
    toolkit::PictureBox &PicUpdate;
    toolkit::PictureBox &Picture1;
    toolkit::PictureBox &Picture2;
    toolkit::PictureBox &Picture3;
    toolkit::Label &Label1;
    toolkit::Label &Label2;
    toolkit::Label &Label4;
    toolkit::Label &LbHint;
    toolkit::Image &Image1;
    toolkit::Image &Image2;
    toolkit::Image &Image3;
    toolkit::Image &Image4;
    toolkit::Image &Image5;
    toolkit::Image &Image6;
    toolkit::Image &Image8;
    toolkit::Image &ImgHintDire;
    toolkit::Image &ImgHintDire2;
    toolkit::Timer &Timer1;
    toolkit::Timer &Timer2;
    toolkit::Timer &Timer3;
    toolkit::Timer &Timer4;
    std::array<toolkit::Label *, 6> Label3;

    /// Letter boxes of the cells, 1 to kCelulas.
    toolkit::ControlArray<toolkit::TextBox> Text1;
    /// Shadows of the cells in use, 1 to kCelulas.
    toolkit::ControlArray<toolkit::PictureBox> PicSombra;
    /// Numbers of the items on the board, 1 to kItens.
    toolkit::ControlArray<toolkit::Label> LB;
    /// Item buttons on the strip, 1 to kItens.
    toolkit::ControlArray<toolkit::Label> Lbt;
    /// Marks of the solved items, 1 to kItens.
    toolkit::ControlArray<toolkit::Image> ImgR;
};

} // namespace forms
