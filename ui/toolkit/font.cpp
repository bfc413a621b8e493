#include "ui/toolkit/font.h"

#include <QStringList>

namespace toolkit {

namespace {

constexpr float kPontosPorPolegada = 72.0F;

QStringList Familias(Familia nome)
{
    const QString liberation = QStringLiteral("Liberation Sans");
    const QString dejavu = QStringLiteral("DejaVu Sans");
    switch (nome) {
    case Familia::MSSansSerif:
        return {QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"), liberation,
                dejavu};
    case Familia::Arial:
        return {QStringLiteral("Arial"), liberation, dejavu};
    case Familia::ArialBlack:
        return {QStringLiteral("Arial Black"), liberation, dejavu};
    case Familia::Verdana:
        return {QStringLiteral("Verdana"), dejavu, liberation};
    case Familia::Tahoma:
        return {QStringLiteral("Tahoma"), liberation, dejavu};
    }
    return {liberation};
}

} // namespace

QFont ParaQt(const Font &fonte, int dpi)
{
    QFont qt;
    qt.setFamilies(Familias(fonte.Nome));
    qt.setPixelSize(qMax(1, qRound(fonte.Tamanho * static_cast<float>(dpi) / kPontosPorPolegada)));
    qt.setBold(fonte.Bold || fonte.Nome == Familia::ArialBlack);
    qt.setUnderline(fonte.Underline);
    return qt;
}

} // namespace toolkit
