#pragma once

#include <QPainter>

/// The grounds of the windows, each painted from (0,0) in natural pixels over its whole size.

void PintaFrmSplash(QPainter &p);
void PintaForm1(QPainter &p);
void PintaFrmCarregar(QPainter &p);
void PintaFrmSalvar2(QPainter &p);
void PintaFrmHanking(QPainter &p);

/// The button "Desistir" with the ground round it, exactly as it covers the first menu button.
void PintaImage6(QPainter &p);
