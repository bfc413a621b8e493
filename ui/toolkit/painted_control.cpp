#include "ui/toolkit/painted_control.h"

#include <QPainter>

namespace toolkit {

namespace {

class Superficie final : public QWidget, public WidgetDeControle
{
public:
    Superficie(QWidget *pai, PaintedControl &dono)
        : QWidget(pai), WidgetDeControle(dono), m_dono(dono)
    {
    }

protected:
    void paintEvent(QPaintEvent * /*evento*/) override
    {
        QPainter pintor(this);
        m_dono.Pinta(pintor, size());
    }

private:
    PaintedControl &m_dono;
};

} // namespace

PaintedControl::PaintedControl(const Origem &origem) : Control(origem)
{
    UsaWidget(new Superficie(origem.pai, *this));
}

} // namespace toolkit
