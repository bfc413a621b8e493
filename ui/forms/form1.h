#pragma once

#include "core/board/board.h"
#include "ui/forms/control_table.h"
#include "ui/toolkit/control_array.h"

namespace forms {

/// The main form's definition.
extern const DefForm kForm1;

/// The controls of the main form, by their names. The form must have been given kForm1.
struct ControlesForm1
{
    explicit ControlesForm1(toolkit::Form &dono);

    toolkit::Form &form;
    /// The board's frame on the form; counts in pixels.
    toolkit::PictureBox &Pic_q1;
    /// The sheet that the cells lie on; moved so that the crossword stands in the middle.
    toolkit::PictureBox &Pic_q2;
    /// The waiting panel, up while a board is built or loaded.
    toolkit::PictureBox &Picespere;
    /// The progress bar on the panel.
    toolkit::PictureBox &PicUpdate;
    /// Outside the visible area: holds the focus when no cell has the cursor.
    toolkit::PictureBox &Picture1;
    /// The hint bubble.
    toolkit::PictureBox &Picture2;
    /// Holds the background picture for the DPI adjuster to measure.
    toolkit::PictureBox &Picture3;
    /// The clue line.
    toolkit::Label &Label1;
    /// The clock.
    toolkit::Label &Label2;
    /// "Socorro".
    toolkit::Label &Label4;
    /// The text in the hint bubble.
    toolkit::Label &LbHint;
    /// The marker behind the selected item's button.
    toolkit::Image &Image1;
    /// The cross in the title strip.
    toolkit::Image &Image2;
    /// The title strip, by which the window is dragged.
    toolkit::Image &Image3;
    /// The shield over the menu while a board is built or loaded.
    toolkit::Image &Image4;
    /// Carries the hand pointer.
    toolkit::Image &Image5;
    /// "Desistir", over the first menu entry.
    toolkit::Image &Image6;
    /// About, in the title strip.
    toolkit::Image &Image8;
    /// The bubble's arrow to the right above one downwards.
    toolkit::Image &ImgHintDire;
    /// The bubble's small arrow downwards.
    toolkit::Image &ImgHintDire2;
    /// Shows the clock.
    toolkit::Timer &Timer1;
    /// Hides the bubble.
    toolkit::Timer &Timer2;
    /// Shows the bubble.
    toolkit::Timer &Timer3;
    /// Writes the words of a new puzzle to the memory, once.
    toolkit::Timer &Timer4;
    /// The six menu entries: Novo Jogo, Reiniciar, Abrir, Salvar, Ranking, Sair.
    TabelaDe<toolkit::Label *, 5> Label3;

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
