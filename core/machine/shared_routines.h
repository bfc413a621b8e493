#pragma once

#include <QString>

/// Small routines without state that the whole program shares.

/// Compares a typed word with the bank's, blind to accents that the player left out.
///
/// `a` is the typed word, `b` the bank's; both come back in capitals. For an accented letter of `b`
/// the player may type it or its plain letter; a plain letter admits only itself. Words of
/// different length never match; two empty words do.
bool ComparaPalavra(QString &a, QString &b);

/// Capitals by the system's character tables, composed first: "a" followed by a combining tilde
/// gives the one letter Ã, as a typed ã does.
QString Maiusculas(const QString &texto);

/// Formats whole seconds as hours:minutes:seconds, two digits each at least; hours have no upper
/// limit. `segundos` is expected at 0 or above.
QString FormataTempo(int segundos);

/// Field number `n` (from 1) of `texto`, split at `separador`; "" if there is no such field. A
/// separator at the start or the end is only a boundary; an empty field between two separators is a
/// field.
QString CampoTexto(const QString &texto, const QString &separador, int n);

/// `texto` with every occurrence of `velho` replaced by `novo`, searching anew from the start after
/// each replacement. A `novo` that holds `velho` would never end, so there each occurrence is
/// replaced once.
QString TrocaTexto(const QString &texto, const QString &velho, const QString &novo);

/// Whether version `vRemota` counts as greater than `vLocal`, both written major.minor.revision.
///
/// Each version becomes the number major*100 + minor*10 + revision, written as decimal text, and
/// the texts are compared character by character: so 10.0.0 (1000) counts as less than 1.5.1 (151).
bool MaiorVersion(const QString &vLocal, const QString &vRemota);
