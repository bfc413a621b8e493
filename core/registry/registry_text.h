#pragma once

#include <QString>

/// Small routines on the texts of the registry class.

/// Value of a hexadecimal digit in either case, or -1 for any other character.
inline int DigitoHexadecimal(QChar letra)
{
    constexpr QStringView kDigitos = u"0123456789ABCDEF";
    return letra.unicode() < 0x80 ? static_cast<int>(kDigitos.indexOf(letra.toUpper())) : -1;
}

/// `texto` without the blanks at both ends. Only the character U+0020 is one; tabs stay.
inline QString AparaBrancos(QStringView texto)
{
    while (texto.startsWith(u' ')) {
        texto = texto.sliced(1);
    }
    while (texto.endsWith(u' ')) {
        texto.chop(1);
    }
    return texto.toString();
}
