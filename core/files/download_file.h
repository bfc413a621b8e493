#pragma once

#include <QString>

/// The name under which a file fetched from `endereco` may be kept: the address's last path
/// element, unpacked and made harmless. The query has no part in it.
///
/// What comes back is never empty, names no folder, no hidden file and no device of any system,
/// holds no control, direction or reserved character, and is short enough for every file system;
/// the extension survives the shortening.
QString NomeDeArquivo(const QString &endereco);

/// Makes an empty file called `nome` in `pasta`, or with a number before the extension where that
/// is taken ("jogo (2).exe"), and gives back its path. Nothing that exists is touched. The folder
/// is made if it is missing. "" if no file can be made.
QString ReservaArquivo(const QString &pasta, const QString &nome);
