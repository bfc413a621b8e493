#pragma once

#include <optional>
#include <QString>
#include <QStringList>

/// Limits of the option --escala.
inline constexpr double kMenorEscala = 0.5;
inline constexpr double kMaiorEscala = 4;

/// What the player asks for when starting the program.
struct LinhaDeComando
{
    /// How many times its normal size the game is to have; none where the player does not say.
    std::optional<double> escala;
    /// What is to be said instead of playing; empty: play.
    QString texto;
    /// The text is a complaint about the arguments.
    bool erro = false;
};

/// Reads the program's arguments, without its name. They are read in order up to the first that
/// gives something to say; of several scales the last counts. Only what begins with two hyphens is
/// an option of the game: the rest is left to the windowing system.
LinhaDeComando LeLinhaDeComando(const QStringList &argumentos);
