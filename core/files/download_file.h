#pragma once

#include <QString>

/// The name under which a file fetched from `endereco` may be kept: the address's last path
/// element, unpacked and made harmless. The query has no part in it.
///
/// What comes back is never empty, names no folder, no hidden file and no device of any system,
/// holds no control, direction or reserved character, and is short enough for every file system;
/// the extension survives the shortening.
QString NomeDeArquivo(const QString &endereco);

/// Moves the file `de` to `pasta`, a folder of the same file system, under the name `nome`, or with
/// a number before the extension where that is taken ("jogo (2).exe"), and gives back its new path.
/// Nothing that exists is touched. "" if it cannot be moved; it stays where it is then.
QString GuardaArquivo(const QString &de, const QString &pasta, const QString &nome);
