#pragma once

#include <functional>
#include <QByteArray>
#include <QString>
#include <random>
#include <vector>

/// Feeds the readers of stored files with good files that were damaged by chance, always the same
/// for the same seed. A reader must not crash on any of them, and must keep the promises that its
/// target checks.

using Dado = std::mt19937_64;

/// A whole number from 0 to `n` - 1, for n >= 1.
inline size_t Lanca(Dado &dado, size_t n)
{
    return static_cast<size_t>(dado() % n);
}

/// One reader under test. A further reader joins by a further entry in Alvos().
struct Alvo
{
    const char *nome = "";
    /// Good files to begin with.
    std::vector<QByteArray> sementes;
    /// Bits of text that this reader cares for, to be put in anywhere.
    std::vector<QByteArray> pedacos;
    /// Reads `dados` and checks. The result is empty, or names the promise that was broken.
    std::function<QString(const QByteArray &dados, Dado &dado)> prova;
};

/// All targets.
std::vector<Alvo> Alvos();
