#pragma once

#include <array>
#include <QString>

inline constexpr int kMaxUsadas = 520;

struct MemoriaUsadas
{
    std::array<QString, kMaxUsadas + 1> PalavrasUsadas;
    int QtdUsadas = 0;
};

struct Tabuleiro;
void EmpurraUsadas(MemoriaUsadas &memoria, const Tabuleiro &tabuleiro);
