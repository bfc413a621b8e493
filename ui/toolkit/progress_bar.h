#pragma once

#include "ui/toolkit/picture_box.h"

/// Paints `pic` as a progress bar that grows from its left edge. `fracao`: share done, 1 for all; 0
/// and below leave the bar empty. What was painted before goes.
void MostraProgresso(toolkit::PictureBox &pic, float fracao);
