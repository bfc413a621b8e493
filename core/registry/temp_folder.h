#pragma once

#include <functional>
#include <QString>

class clsRegistryAccess;

/// The directory for temporary files, with the platform's separator at its end.
///
/// It is what `ambiente` gives for the environment variable "TEMP"; where that is no existing
/// directory, the user's cache directory that the registry names ("" if it names none, so that the
/// separator alone is left).
QString PastaTemporaria(clsRegistryAccess &registro,
                        const std::function<QString(const QString &)> &ambiente);
