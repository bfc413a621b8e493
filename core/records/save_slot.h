#pragma once

#include "core/board/board.h"
#include <QString>
#include <variant>

/// The data half of the saved games: ten slots in one INI file, section jogo<n> for slot n. A slot
/// holds its name, the 26 words with clues, cells and directions, which of them are solved, and the
/// time played. What stands in unsolved cells is not kept.

inline constexpr int kSlots = 10;

/// Longest time that a slot can hold, in seconds.
inline constexpr double kMaximoDoTempo = 2'000'000'000;

/// Writes slot `n` (1 to kSlots) whole, or leaves it as it was.
///
/// `tabuleiro` is a complete game of 26 items. `tempoSegundos` is the time played, from 0 to
/// kMaximoDoTempo. It is written with "," where `separadorDecimal`, the system's, is ",", and with
/// "." otherwise. `nome` is stored as given; one of blanks only reads as no name. The result says
/// whether the slot was written; the program does not care.
bool SalvaSlot(const QString &arquivo, int n, const QString &nome, const Tabuleiro &tabuleiro,
               double tempoSegundos, const QString &separadorDecimal);

/// A saved game that has passed every check: laid in order on an empty board, its words fit.
struct JogoSalvo
{
    /// Entries 1 to kItens.
    TabelaDe<RegistroItem, kItens> itens;
    /// Seconds played, from 0 to kMaximoDoTempo, with fractions.
    double tempo = 0;
};

/// Why a slot cannot be opened: the first thing found wrong, items in order.
enum class FalhaDoSlot {
    /// A word is missing, longer than 15 characters, or holds a control character.
    Palavra,
    /// Ponto or Sentido is missing, unreadable, or lets a letter fall off the board.
    Lugar,
    /// Two words differ in the letter of a cell where they cross.
    Cruzamento,
    /// Two words of one direction share a cell.
    Sobreposicao,
    /// ItemResolvido is neither True nor False. Small letters, -1, 1 and 0 are read too.
    Resolvido,
    /// Tempo is missing, not a number, negative or beyond kMaximoDoTempo. Both "," and "." are
    /// read.
    Tempo,
};

/// Reads and checks slot `n` (1 to kSlots), its name apart.
std::variant<JogoSalvo, FalhaDoSlot> LeSlot(const QString &arquivo, int n);

/// The names of slots 1 to kSlots, entry 0 unused. A slot without a name is free.
struct NomesSalvos
{
    TabelaDe<QString, kSlots> nome;
    /// False where the file is there and cannot be read: the names are empty, the slots perhaps
    /// not.
    bool lidos = true;
};

NomesSalvos NomesDosSlots(const QString &arquivo);
