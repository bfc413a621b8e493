#include "tests/ui/support/player.h"

#include <QTest>
#include <QWindow>

namespace {

QPoint MeioNaJanela(const toolkit::Control &controle)
{
    const QWidget *widget = controle.Widget();
    return widget->mapTo(widget->window(), widget->rect().center());
}

QWindow *JanelaDe(const toolkit::Control &controle)
{
    return controle.Widget()->window()->windowHandle();
}

} // namespace

void ClicaNaJanela(const toolkit::Control &controle)
{
    QTest::mouseClick(JanelaDe(controle), Qt::LeftButton, {}, MeioNaJanela(controle));
}

void ClicaNaJanela(toolkit::Form &form, QPoint lugar)
{
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, lugar);
}

void PoeMouse(const toolkit::Control &controle)
{
    QTest::mouseMove(JanelaDe(controle), MeioNaJanela(controle));
}

void Digita(toolkit::Form &form, const QString &texto)
{
    for (const QChar letra : texto) {
        QTest::sendKeyEvent(QTest::Click, form.windowHandle(),
                            static_cast<Qt::Key>(letra.toUpper().unicode()), QString(letra), {});
    }
}

void Tecla(toolkit::Form &form, Qt::Key tecla, Qt::KeyboardModifiers com)
{
    QTest::keyClick(form.windowHandle(), tecla, com);
}
