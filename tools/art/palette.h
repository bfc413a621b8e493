#pragma once

#include <QColor>

/// The colours of the game's pictures. Those of the form bodies and of the item boxes are fixed by
/// the controls that lie on them; the others are chosen so that painted words keep a contrast
/// of 4.5:1.

/// Pixels of exactly this colour lie outside a shaped window.
inline constexpr QRgb kCorChave = qRgb(255, 0, 0);

inline constexpr QRgb kCorpoPrincipal = qRgb(0, 130, 198);
inline constexpr QRgb kCorpoAbertura = qRgb(75, 119, 176);
inline constexpr QRgb kCorpoLista = qRgb(255, 255, 223);
inline constexpr QRgb kCorpoNome = qRgb(47, 182, 255);
inline constexpr QRgb kCorpoRanking = qRgb(0, 0, 0);
inline constexpr QRgb kCaixa = qRgb(222, 199, 24);

inline constexpr QRgb kBranco = qRgb(255, 255, 255);
/// Outermost line of every window.
inline constexpr QRgb kBorda = qRgb(0, 46, 96);
/// Second line of the frame, and the foot of the title strip.
inline constexpr QRgb kMoldura = qRgb(0, 84, 156);
inline constexpr QRgb kFaixaCima = qRgb(16, 106, 188);
inline constexpr QRgb kFaixaBaixo = qRgb(0, 68, 136);
inline constexpr QRgb kFaixaLuz = qRgb(88, 168, 228);
/// Hard shadow on the main body.
inline constexpr QRgb kSombra = qRgb(0, 96, 156);
/// Sunken ground behind the menu.
inline constexpr QRgb kBandeja = qRgb(0, 116, 182);
inline constexpr QRgb kMarinho = qRgb(0, 44, 92);
inline constexpr QRgb kAmbar = qRgb(255, 176, 32);
