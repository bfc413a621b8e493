#pragma once

#include <array>
#include <concepts>
#include <QtGlobal>
#include <utility>

/// A table of entries 0 to N, of which 1 to N are the game's. An index outside of it is a broken
/// precondition.
template <class T, int N>
struct TabelaDe : std::array<T, N + 1>
{
    [[nodiscard]] constexpr T &operator[](std::integral auto i)
    {
        Q_ASSERT(std::cmp_greater_equal(i, 0) && std::cmp_less_equal(i, N));
        return std::array<T, N + 1>::operator[](static_cast<std::size_t>(i));
    }
    [[nodiscard]] constexpr const T &operator[](std::integral auto i) const
    {
        Q_ASSERT(std::cmp_greater_equal(i, 0) && std::cmp_less_equal(i, N));
        return std::array<T, N + 1>::operator[](static_cast<std::size_t>(i));
    }
};
