#include "core/files/codepage.h"

#include <array>

namespace {

/// Characters of the bytes 0x80 to 0x9F; all other bytes stand for the character of their own
/// number.
constexpr std::array<char16_t, 32> kMeio = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Byte of `letra`, or -1.
int ByteDe(char16_t letra)
{
    if (letra < 0x80 || (letra >= 0xA0 && letra <= 0xFF)) {
        return letra;
    }
    for (size_t k = 0; k < kMeio.size(); ++k) {
        if (kMeio[k] == letra) {
            return static_cast<int>(0x80 + k);
        }
    }
    return -1;
}

} // namespace

QString DeCodePage(const QByteArray &bytes)
{
    QString texto(bytes.size(), Qt::Uninitialized);
    for (qsizetype k = 0; k < bytes.size(); ++k) {
        const auto byte = static_cast<unsigned char>(bytes[k]);
        texto[k] = QChar(byte >= 0x80 && byte < 0xA0 ? kMeio[byte - 0x80U] : char16_t{byte});
    }
    return texto;
}

QByteArray ParaCodePage(const QString &texto)
{
    QByteArray bytes;
    bytes.reserve(texto.size());
    for (qsizetype k = 0; k < texto.size(); ++k) {
        const int byte = ByteDe(texto[k].unicode());
        bytes.append(byte < 0 ? '?' : static_cast<char>(byte));
        const bool par =
            texto[k].isHighSurrogate() && k + 1 < texto.size() && texto[k + 1].isLowSurrogate();
        k += par ? 1 : 0;
    }
    return bytes;
}

bool CabeNoCodePage(const QString &texto)
{
    for (const QChar letra : texto) {
        if (ByteDe(letra.unicode()) < 0) {
            return false;
        }
    }
    return true;
}
