#pragma once

#include <cstdio>
#include <QString>

/// What a tool says. On Windows a console is switched to UTF-8 for as long as this lives, and what
/// goes to a file keeps its bytes: no line end becomes two.
class Console
{
public:
    Console();
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;
    ~Console();

    /// Writes one line in UTF-8, at once.
    static void Diz(std::FILE *saida, const QString &linha);

    /// Keeps the window of a program that a file was dropped on open until a key is pressed. Does
    /// nothing where no window would close, or where the input is no console.
    static void EsperaTecla();

private:
    unsigned int m_codigoAntes = 0;
};
