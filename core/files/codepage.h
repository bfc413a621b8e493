#pragma once

#include <QByteArray>
#include <QString>

/// The stored files' code page, Windows-1252.

/// Text of `bytes`. Every one of the 256 bytes has a character; the five that the page leaves
/// undefined stand for the control character of the same number, so ParaCodePage gives the same
/// bytes back.
QString DeCodePage(const QByteArray &bytes);

/// `texto` in the code page; "?" for each character that the page lacks (one for a surrogate pair).
QByteArray ParaCodePage(const QString &texto);

/// Whether the code page holds every character of `texto`.
bool CabeNoCodePage(const QString &texto);
