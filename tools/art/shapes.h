#pragma once

#include "tools/art/lettering.h"
#include <QColor>
#include <QPainter>
#include <QRectF>

/// The parts that the pictures are put together from. All lengths are pixels at natural size; the
/// light falls from the upper left, so that raised things are lighter above and have a hard shadow
/// below.

/// The one corner radius of buttons and panels.
inline constexpr double kRaio = 4;

QPainterPath CaminhoRedondo(const QRectF &area, double raio);

/// A rounded rectangle, `cima` at its top running into `baixo` at its foot.
void Retangulo(QPainter &p, const QRectF &area, double raio, QRgb cima, QRgb baixo);

/// `texto` with its capitals' baseline at `y` and the middle of its ink at `x`.
void TextoNoMeio(QPainter &p, double x, double y, QStringView texto, const EstiloLetra &estilo,
                 QRgb cor);

/// Colours of a button that stands out of its ground.
struct CoresBotao
{
    QRgb luz, cima, baixo, labio;
};
inline constexpr CoresBotao kBotaoAzul = {qRgb(96, 172, 230), qRgb(18, 98, 174), qRgb(0, 70, 140),
                                          qRgb(0, 38, 80)};
inline constexpr CoresBotao kBotaoLaranja = {qRgb(246, 168, 110), qRgb(196, 82, 18),
                                             qRgb(164, 60, 6), qRgb(92, 30, 0)};

/// A button that looks pressable, with its word in white. It fills `area` to the last pixel.
void Botao(QPainter &p, const QRectF &area, const CoresBotao &cores, QStringView texto);

enum class SinalRedondo { Cruz, Informacao };

/// One of the small round buttons of a title strip; `area` is a square.
void BotaoRedondo(QPainter &p, const QRectF &area, SinalRedondo sinal);

/// The game's mark, a square Q whose tail is a yellow box, in a square of side `lado`. The ring is
/// drawn in `cor`; the ground shows through.
void Marca(QPainter &p, double x, double y, double lado, QRgb cor);

/// Outlines of the mark in a square of side 12: the ring and the tail.
QPainterPath AnelDaMarca();
QPainterPath CaudaDaMarca();

/// A box of the item strip.
void Caixa(QPainter &p, const QRectF &area);
