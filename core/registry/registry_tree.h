#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QHash>
#include <utility>
#include <vector>

/// The portable registry's tree of keys and values, and its form as a file.

/// Levels of keys below a root, and bytes of a name, that the tree holds at most.
inline constexpr int kNiveisMaximos = 512;
inline constexpr qsizetype kNomeDeChaveMaximo = 255;
inline constexpr qsizetype kNomeDeValorMaximo = 16383;

/// `nome` up to its first NUL, in the form in which names that differ in letter case only are the
/// same.
QByteArray DobraNome(const QByteArray &nome);

/// Things with a name, in the order in which they came; found by name without regard to letter
/// case.
///
/// A removal leaves a hole, so that it costs no more than a search; the holes go at the next look
/// by index.
template <typename T>
class ListaPorNome
{
public:
    /// The thing called `nome`, or nullptr.
    [[nodiscard]] T *Acha(const QByteArray &nome)
    {
        const auto achado = m_indice.constFind(DobraNome(nome));
        return achado == m_indice.cend() ? nullptr : &m_itens[*achado]->second;
    }

    /// Adds a thing at the end. The list must not have the name yet.
    T &Acrescenta(const QByteArray &nome, T item)
    {
        if (m_itens.size() / 2 > static_cast<std::size_t>(m_indice.size())) {
            Compacta();
        }
        QByteArray dobrado = DobraNome(nome);
        m_indice.insert(dobrado, m_itens.size());
        m_itens.emplace_back(std::in_place, std::move(dobrado), std::move(item));
        return m_itens.back()->second;
    }

    /// Whether there was a thing of this name to remove.
    bool Tira(const QByteArray &nome)
    {
        const auto achado = m_indice.constFind(DobraNome(nome));
        if (achado == m_indice.cend()) {
            return false;
        }
        m_itens[*achado].reset();
        m_indice.erase(achado);
        return true;
    }

    /// Thing number `indice` (from 0), or nullptr behind the last one.
    [[nodiscard]] T *NoIndice(std::size_t indice)
    {
        Compacta();
        return indice < m_itens.size() ? &m_itens[indice]->second : nullptr;
    }

    [[nodiscard]] std::size_t Tamanho() const { return static_cast<std::size_t>(m_indice.size()); }

private:
    void Compacta()
    {
        if (m_itens.size() == Tamanho()) {
            return;
        }
        std::erase_if(m_itens, [](const auto &item) { return !item; });
        for (std::size_t k = 0; k < m_itens.size(); ++k) {
            m_indice[m_itens[k]->first] = k;
        }
    }

    std::vector<std::optional<std::pair<QByteArray, T>>> m_itens;
    QHash<QByteArray, std::size_t> m_indice;
};

struct ValorGuardado
{
    QByteArray nome;
    std::uint32_t tipo = 0;
    QByteArray dados;
};

struct NoRegistro
{
    QByteArray nome;
    /// nullptr for a root.
    NoRegistro *pai = nullptr;
    /// 0 for a root.
    int nivel = 0;
    /// Taken out of the tree while somebody still had it open; `pai` counts no longer.
    bool apagado = false;
    ListaPorNome<std::shared_ptr<NoRegistro>> chaves;
    ListaPorNome<ValorGuardado> valores;
};

/// The key at `sub` below `base`, or nullptr. Empty parts of the path count for nothing.
std::shared_ptr<NoRegistro> AchaNo(const std::shared_ptr<NoRegistro> &base, const QByteArray &sub);

/// As AchaNo, but makes what is missing. nullptr, with nothing made, for a path that is too deep or
/// has too long a name in it.
std::shared_ptr<NoRegistro> CriaNo(const std::shared_ptr<NoRegistro> &base, const QByteArray &sub);

/// Sets a value. False for a name that is too long.
bool GuardaValor(NoRegistro &no, const QByteArray &nome, std::uint32_t tipo,
                 const QByteArray &dados);

/// The trees below `raizes` as the bytes of a file: a line for each key with its whole path, a line
/// for each of its values behind it, so that damage to one line spoils no other key.
QByteArray EscreveArvores(const std::vector<std::shared_ptr<NoRegistro>> &raizes);

/// Adds to `raizes` all that can be read of `bytes`; what is damaged is left out.
void LeArvores(const QByteArray &bytes, const std::vector<std::shared_ptr<NoRegistro>> &raizes);
