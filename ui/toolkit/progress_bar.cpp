#include "ui/toolkit/progress_bar.h"

namespace {

constexpr QColor kCorBarra(222, 199, 24);

} // namespace

void MostraProgresso(toolkit::PictureBox &pic, float fracao)
{
    pic.SetForeColor(kCorBarra);
    pic.SetBackColor(toolkit::kBranco);
    if (fracao > 0) {
        pic.PintaRetangulo(pic.Width() * fracao, pic.Height());
    }
    pic.Refresh();
}
