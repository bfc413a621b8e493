#include "core/files/ini_file.h"

#include "core/files/codepage.h"
#include <optional>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// How often a batch starts over because somebody else wrote the file while it was being written.
constexpr int kTentativas = 20;

/// The bytes of a file, none for a missing one; no value where something is there that cannot be
/// read.
std::optional<QByteArray> LeBytes(const QString &arquivo)
{
    const QFileInfo info(arquivo);
    if (!info.exists()) {
        return QByteArray();
    }
    QFile leitor(arquivo);
    if (!info.isFile() || !leitor.open(QIODevice::ReadOnly)) {
        return {};
    }
    const auto bytes = leitor.readAll();
    return leitor.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

/// A file that nobody may write stays, also where its owner has the power to replace it.
bool SoLeitura(const QString &arquivo)
{
    constexpr auto kEscrita =
        QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    const QFileInfo info(arquivo);
    return info.exists() && (!(info.permissions() & kEscrita) || !info.isWritable());
}

enum class Troca { Feita, Falhou, ArquivoMudou };

/// Puts `novo` in the place of the file, provided that this still holds `base`.
Troca TrocaArquivo(const QString &arquivo, const QByteArray &base, const QByteArray &novo)
{
    if (SoLeitura(arquivo)) {
        return Troca::Falhou;
    }
    QSaveFile escritor(arquivo);
    if (!escritor.open(QIODevice::WriteOnly) || escritor.write(novo) != novo.size()) {
        return Troca::Falhou;
    }
    if (LeBytes(arquivo) != base) {
        return Troca::ArquivoMudou;
    }
    return escritor.commit() ? Troca::Feita : Troca::Falhou;
}

} // namespace

QString LeIni(const QString &secao, const QString &chave, const QString &arquivo,
              const QString &padrao)
{
    return LoteIni(arquivo).Le(secao, chave, padrao);
}

bool WritePrivateProfileStringA(const QString &secao, const QString &chave, const QString &valor,
                                const QString &arquivo)
{
    LoteIni lote(arquivo);
    lote.Escreve(secao, chave, valor);
    return lote.Grava();
}

LoteIni::LoteIni(const QString &arquivo)
    : m_arquivo(arquivo), m_base(LeBytes(arquivo).value_or(QByteArray())), m_texto(m_base)
{
}

QString LoteIni::Le(const QString &secao, const QString &chave, const QString &padrao) const
{
    const auto valor = m_texto.Valor(ParaCodePage(secao), ParaCodePage(chave));
    return valor.isEmpty() ? padrao : DeCodePage(valor);
}

void LoteIni::Escreve(const QString &secao, const QString &chave, const QString &valor)
{
    m_escritas.push_back({ParaCodePage(secao), ParaCodePage(chave), ParaCodePage(valor)});
    const auto &escrita = m_escritas.back();
    m_texto.Escreve(escrita.secao, escrita.chave, escrita.valor);
}

bool LoteIni::Grava()
{
    if (m_escritas.empty()) {
        return true;
    }
    for (int tentativa = 0; tentativa < kTentativas; ++tentativa) {
        const auto noDisco = LeBytes(m_arquivo);
        if (!noDisco) {
            return false;
        }
        if (*noDisco != m_base) {
            RefazSobre(*noDisco);
        }
        const auto novo = m_texto.Bytes();
        const auto troca = TrocaArquivo(m_arquivo, m_base, novo);
        if (troca == Troca::Feita) {
            m_base = novo;
            m_escritas.clear();
        }
        if (troca != Troca::ArquivoMudou) {
            return troca == Troca::Feita;
        }
    }
    return false;
}

void LoteIni::RefazSobre(const QByteArray &bytes)
{
    m_base = bytes;
    m_texto = TextoIni(bytes);
    for (const auto &escrita : m_escritas) {
        m_texto.Escreve(escrita.secao, escrita.chave, escrita.valor);
    }
}
