#pragma once

#include "tools/bank_source.h"
#include <QStringList>

/// A person's own list of words and clues, as it is typed or as a spreadsheet saves it: one pair a
/// line, UTF-8, parted by a tab, a semicolon or a comma (the first of them in the line), with or
/// without quotes. Blank lines, lines that begin with "#" and a first line "palavra; dica" do not
/// count.

struct ListaPropria
{
    /// The words in capitals, the clues without blanks at their ends, in the order of the list.
    std::vector<EntradaFonte> entradas;
    /// Everything that keeps the list from becoming a bank, in Portuguese, with the line and what
    /// to do. Empty where the list is sound.
    QStringList faltas;
};

/// Largest list that is worth reading, in bytes. A larger file is something else.
inline constexpr qint64 kMaximoDaLista = 16 << 20;

/// Reads a list. It asks for what the game needs and for nothing more: 3 to 15 letters that a cell
/// accepts, a clue of 1 to 60 characters that the bank's code page has, no more words than a bank
/// holds.
ListaPropria LeLista(const QByteArray &bytes);

/// Whether `bytes` can be a bank: at least one record, and no control characters.
bool PareceBanco(const QByteArray &bytes);

/// The list of a bank's words, parted by tabs, which LeLista reads back as they are. Entries
/// without a word are left out.
QByteArray ExtraiLista(const QByteArray &registros);
