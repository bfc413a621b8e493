#include "ui/window/center_form.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

const QScreen *TelaDoJogador()
{
    const QScreen *tela = QGuiApplication::screenAt(QCursor::pos());
    return tela != nullptr ? tela : QGuiApplication::primaryScreen();
}

void CentralizaForm(toolkit::Form &form)
{
    const QRect area = TelaDoJogador()->geometry();
    const float porPixel = toolkit::TwipsPorPixel(form.Dpi());
    const auto twips = [porPixel](int pixels) { return static_cast<float>(pixels) * porPixel; };
    const float top = twips(area.height()) / 2 - form.Height() / 2;
    const float left = twips(area.width()) / 2 - form.Width() / 2;
    form.SetTop(twips(area.top()) + qMax(0.0F, top));
    form.SetLeft(twips(area.left()) + qMax(0.0F, left));
}
