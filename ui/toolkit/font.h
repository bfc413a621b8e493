#pragma once

#include <QFont>

namespace toolkit {

/// Type faces of the forms; each stands for a list of families, the named one first.
enum class Familia { MSSansSerif, Arial, ArialBlack, Verdana, Tahoma };

/// A control's font. `Tamanho` is in points.
struct Font
{
    Familia Nome = Familia::MSSansSerif;
    float Tamanho = 8.25F;
    bool Bold = false;
    bool Underline = false;
};

/// The font as Qt wants it, its size fixed to pixels at `dpi`, so that no setting of the system
/// breaks the layout.
QFont ParaQt(const Font &fonte, int dpi);

/// Where the system has no family at all for one of the type faces, takes the fonts that lie in
/// `pasta`, if any do, and makes the first of them the application's font. Called once, before the
/// first form is made.
void TrazFontes(const QString &pasta);

} // namespace toolkit
