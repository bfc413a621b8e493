#pragma once

#include <QPoint>
#include <QString>

/// The game's pictures as they lie in the program.

/// Hot spot of the hand pointer ("Mao"), in pixels of its natural size: the tip of the finger.
inline constexpr QPoint kPontoMao{11, 2};

/// Resource name of the picture `nome` ("Form1", "ImgR", ...) at its natural size. Qt finds the
/// larger companions "@2x" and "@3x" by itself.
QString CaminhoFigura(QStringView nome);
