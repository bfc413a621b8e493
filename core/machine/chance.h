#pragma once

#include <cstdint>
#include <random>

/// The seam for chance: one uniform value for each formula that draws, in the order of the rules.
class Acaso
{
public:
    Acaso() = default;
    Acaso(const Acaso &) = delete;
    Acaso &operator=(const Acaso &) = delete;
    virtual ~Acaso() = default;

    /// The next value u, 0 <= u < 1.
    virtual double Uniforme() = 0;
};

/// The program's generator: std::mt19937_64, one draw is (x >> 11) * 2^-53.
///
/// Same seed, same values, on every platform and in every version. "Reseeding" keeps the stream
/// going, so that draws made within one tick of the clock stay independent of each other.
class AcasoMersenne final : public Acaso
{
public:
    explicit AcasoMersenne(std::uint64_t semente) : m_gerador(semente) {}

    double Uniforme() override
    {
        ++m_sorteios;
        return static_cast<double>(m_gerador() >> 11) * 0x1p-53;
    }

    /// Draws made since the object was made.
    [[nodiscard]] std::uint64_t Sorteios() const { return m_sorteios; }

private:
    std::mt19937_64 m_gerador;
    std::uint64_t m_sorteios = 0;
};

/// A whole number from 1 to `n`, for n >= 1: floor(u * n) + 1. One draw.
inline int SorteiaNumero(Acaso &acaso, int n)
{
    return static_cast<int>(acaso.Uniforme() * n) + 1;
}

/// The percent draw: True if a draw from 1 to 100 is less than `p`. The test is strict, so 50 means
/// 49 times in 100, 1 never and 101 always. One draw.
inline bool Sorteia(Acaso &acaso, int p)
{
    return SorteiaNumero(acaso, 100) < p;
}
