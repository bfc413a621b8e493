#pragma once

#include "core/registry/registry_store.h"

/// Paths of registry keys as text: root, backslash, sub-path.

/// What a path names.
struct CaminhoRegistro
{
    /// The root's short name in capitals, such as "HKCU"; any other text where the path has no
    /// known root.
    QString raiz;
    /// The root; 0 where it is not known.
    ChaveRegistro chave = 0;
    /// All behind the first backslash.
    QByteArray sub;
};

/// Reads a path. The root may be written short or long, in any case; long root names are turned
/// into short ones wherever they stand in the path.
CaminhoRegistro LeCaminho(const QString &sPath);

/// The key of the same sub-path under HKEY_CURRENT_USER.
CaminhoRegistro SobUsuario(const CaminhoRegistro &caminho);

/// Whether the path's root is HKEY_LOCAL_MACHINE.
bool EhDaMaquina(const CaminhoRegistro &caminho);

/// `sPath` with every short root name in its long form, wherever it stands and whatever its case.
QString RaizesPorExtenso(const QString &sPath);
