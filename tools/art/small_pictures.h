#pragma once

#include <QPainter>

/// The small pictures, each painted from (0,0) in natural pixels. All but the hand may be
/// translucent.

void PintaImage7(QPainter &p);
void PintaImgR(QPainter &p);
void PintaImage1(QPainter &p);
void PintaImgHintDire(QPainter &p);
void PintaImgHintDire2(QPainter &p);
void PintaJogo(QPainter &p);
/// The sign of a message that asks.
void PintaPergunta(QPainter &p);
/// The hand pointer, black and white without in-between tones. Its hot spot, the tip of the
/// finger, is kPontoMao of the pictures' header.
void PintaMao(QPainter &p);
