#include "core/registry/registry_key.h"

#include "core/files/codepage.h"

namespace {

/// Bytes that a text read may have, and bytes of room for an enumerated name and its data.
constexpr std::uint32_t kEspacoDeTexto = 1024;
constexpr std::uint32_t kEspacoDeLista = 255;
constexpr int kBytesDeDword = 4;

} // namespace

bool ChaveAberta::Grava(const QByteArray &nome, std::uint32_t tipo, const QByteArray &dados)
{
    return m_chave != 0 &&
           m_armazem->RegSetValueExA(m_chave, nome, tipo, dados) == CodigoRegistro::Sucesso;
}

bool ChaveAberta::GravaTexto(const QString &nome, const QString &texto)
{
    const QByteArray nomeReal = nome == u"@" ? QByteArray() : ParaCodePage(nome);
    return Grava(nomeReal, kTipoTexto, ParaCodePage(texto));
}

bool ChaveAberta::GravaBinario(const QString &nome, const QByteArray &bytes)
{
    return Grava(ParaCodePage(nome), kTipoBinario, bytes);
}

bool ChaveAberta::GravaDword(const QString &nome, std::int32_t numero)
{
    QByteArray bytes;
    for (int k = 0; k < kBytesDeDword; ++k) {
        bytes.append(static_cast<char>(static_cast<std::uint32_t>(numero) >> (8 * k) & 0xFF));
    }
    return Grava(ParaCodePage(nome), kTipoDword, bytes);
}

void ChaveAberta::Apaga(const QString &nome)
{
    if (m_chave != 0) {
        m_armazem->RegDeleteValueA(m_chave, ParaCodePage(nome));
    }
}

std::optional<QByteArray> ChaveAberta::Le(const QByteArray &nome, std::uint32_t espaco) const
{
    DadosRegistro conteudo;
    if (m_chave == 0 ||
        m_armazem->RegQueryValueExA(m_chave, nome, espaco, conteudo) != CodigoRegistro::Sucesso) {
        return std::nullopt;
    }
    return conteudo.dados;
}

std::optional<QString> ChaveAberta::LeTexto(const QByteArray &nome) const
{
    const auto bytes = Le(nome, kEspacoDeTexto);
    if (!bytes) {
        return std::nullopt;
    }
    const auto nul = bytes->indexOf('\0');
    return DeCodePage(nul < 0 ? *bytes : bytes->first(nul));
}

std::optional<std::int32_t> ChaveAberta::LeDword(const QByteArray &nome) const
{
    const auto bytes = Le(nome, kBytesDeDword);
    if (!bytes || bytes->size() != kBytesDeDword) {
        return std::nullopt;
    }
    std::uint32_t numero = 0;
    for (int k = 0; k < kBytesDeDword; ++k) {
        numero |= static_cast<std::uint32_t>(static_cast<unsigned char>((*bytes)[k])) << (8 * k);
    }
    return static_cast<std::int32_t>(numero);
}

std::optional<QByteArray> ChaveAberta::LeBinario(const QByteArray &nome) const
{
    DadosRegistro conteudo;
    if (m_chave == 0 || m_armazem->RegQueryValueExA(m_chave, nome, std::nullopt, conteudo) !=
                            CodigoRegistro::Sucesso) {
        return std::nullopt;
    }
    return Le(nome, conteudo.tamanho);
}

bool ChaveAberta::TemValor(const QByteArray &nome) const
{
    DadosRegistro conteudo;
    return m_chave != 0 && m_armazem->RegQueryValueExA(m_chave, nome, std::nullopt, conteudo) ==
                               CodigoRegistro::Sucesso;
}

CodigoRegistro ChaveAberta::Subchave(std::uint32_t indice, QByteArray &nome) const
{
    return m_armazem->RegEnumKeyExA(m_chave, indice, kEspacoDeLista, nome);
}

CodigoRegistro ChaveAberta::Valor(std::uint32_t indice, ValorEnumerado &valor) const
{
    return m_armazem->RegEnumValueA(m_chave, indice, {kEspacoDeLista, kEspacoDeLista}, valor);
}
