#pragma once

#include "tools/paper/sheet.h"
#include <QByteArray>

/// A sheet in the formats that people and other programs take. All is UTF-8.

/// For a terminal of 80 columns: the grid in box characters, then the clues. As in the game's
/// window the number of an across word stands left of its first cell, that of a down word above it.
/// `solucao`: with the letters.
QByteArray TextoDaFolha(const Folha &folha, const OrigemFolha &origem, bool solucao);

/// A page for a browser is one beginning, any number of sheets, any number of solutions, one end.
/// It loads nothing and runs no script; each sheet and each solution begins a page of its own.
QByteArray HtmlInicio(const QString &titulo);
QByteArray HtmlFolha(const Folha &folha, const OrigemFolha &origem);
QByteArray HtmlSolucao(const Folha &folha, const OrigemFolha &origem);
QByteArray HtmlFim();

/// `texto` as it may stand between two tags or in a value in quotes.
QString EscapaHtml(const QString &texto);

/// One puzzle in ipuz, version 2, in one line. A cell where two words begin is labelled "3/7";
/// cells that touch and belong to no common word have a bar between them.
QByteArray IpuzDaFolha(const Folha &folha, const OrigemFolha &origem);
