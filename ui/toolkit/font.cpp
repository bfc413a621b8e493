#include "ui/toolkit/font.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QStringList>

#include <algorithm>

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

bool FaltaAlguma()
{
    constexpr Familia todas[] = {Familia::MSSansSerif, Familia::Arial, Familia::ArialBlack,
                                 Familia::Verdana, Familia::Tahoma};
    return std::ranges::any_of(todas, [](Familia nome) {
        return std::ranges::none_of(Familias(nome), [](const QString &familia) {
            return QFontDatabase::hasFamily(familia);
        });
    });
}

} // namespace

void TrazFontes(const QString &pasta)
{
    const QDir fontes(pasta);
    const QStringList arquivos = fontes.entryList({QStringLiteral("*.ttf")}, QDir::Files);
    if (arquivos.isEmpty() || !FaltaAlguma()) {
        return;
    }
    QStringList trazidas;
    for (const QString &arquivo : arquivos) {
        const int fonte = QFontDatabase::addApplicationFont(fontes.filePath(arquivo));
        trazidas += QFontDatabase::applicationFontFamilies(fonte);
    }
    if (!trazidas.isEmpty()) {
        // Message boxes speak in the application's font.
        QFont propria = QApplication::font();
        propria.setFamilies({trazidas.first()});
        QApplication::setFont(propria);
    }
}

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
