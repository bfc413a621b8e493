#pragma once

#include "core/registry/registry_store.h"
#include <utility>

/// A key that is open as long as the object lives, or none. Private to the registry class.
class ChaveAberta
{
public:
    ChaveAberta(ArmazemRegistro &armazem, ChaveRegistro chave) : m_armazem(&armazem), m_chave(chave)
    {
    }
    ChaveAberta(ChaveAberta &&outra) noexcept
        : m_armazem(outra.m_armazem), m_chave(std::exchange(outra.m_chave, 0))
    {
    }
    ChaveAberta &operator=(ChaveAberta &&outra) noexcept
    {
        std::swap(m_armazem, outra.m_armazem);
        std::swap(m_chave, outra.m_chave);
        return *this;
    }
    ~ChaveAberta()
    {
        if (m_chave != 0) {
            m_armazem->RegCloseKey(m_chave);
        }
    }

    explicit operator bool() const { return m_chave != 0; }

    /// False if the value cannot be set or there is no key.
    bool GravaTexto(const QString &nome, const QString &texto);
    bool GravaBinario(const QString &nome, const QByteArray &bytes);
    bool GravaDword(const QString &nome, std::int32_t numero);
    void Apaga(const QString &nome);

    /// Nothing if there is no key, no such value, or if it is not of the kind that can be read so.
    [[nodiscard]] std::optional<QString> LeTexto(const QByteArray &nome) const;
    [[nodiscard]] std::optional<std::int32_t> LeDword(const QByteArray &nome) const;
    [[nodiscard]] std::optional<QByteArray> LeBinario(const QByteArray &nome) const;
    [[nodiscard]] bool TemValor(const QByteArray &nome) const;

    /// The subkey or value number `indice`, with room for names and data of 255 bytes.
    CodigoRegistro Subchave(std::uint32_t indice, QByteArray &nome) const;
    CodigoRegistro Valor(std::uint32_t indice, ValorEnumerado &valor) const;

private:
    [[nodiscard]] std::optional<QByteArray> Le(const QByteArray &nome, std::uint32_t espaco) const;
    bool Grava(const QByteArray &nome, std::uint32_t tipo, const QByteArray &dados);

    ArmazemRegistro *m_armazem;
    ChaveRegistro m_chave;
};
