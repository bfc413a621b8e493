#pragma once

#include <QByteArray>
#include <QString>

/// Puts a file of these bytes in the place of `arquivo`, or changes nothing and says so by False:
/// the folder is missing or closed, the disk full, the file not to be replaced.
[[nodiscard]] bool GravaInteiro(const QString &arquivo, const QByteArray &bytes);
