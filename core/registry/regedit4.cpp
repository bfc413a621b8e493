#include "core/registry/regedit4.h"

#include "core/files/codepage.h"
#include "core/registry/registry_text.h"
#include <algorithm>

namespace {

constexpr QStringView kCabecalho = u"REGEDIT4";
constexpr char kFimDeLinha[] = "\r\n";
constexpr QStringView kPrefixoHex = u"hex:";
constexpr QStringView kPrefixoDword = u"dword:";

QString Limpa(QString linha)
{
    linha.remove(u'"');
    return AparaBrancos(linha);
}

/// The number of a DWORD, or nothing if `texto` is not 1 to 8 hexadecimal digits.
std::optional<std::uint32_t> LeDword(const QString &texto)
{
    const auto vale = [](QChar letra) { return DigitoHexadecimal(letra) >= 0; };
    const bool numero =
        !texto.isEmpty() && texto.size() <= 8 && std::all_of(texto.cbegin(), texto.cend(), vale);
    return numero ? std::optional(texto.toUInt(nullptr, 16)) : std::nullopt;
}

/// Reads a value line without quotes and outer blanks; nothing if it is none.
std::optional<LinhaReg4> LeLinha(const QString &linha)
{
    const auto igual = linha.indexOf(u'=');
    if (linha.startsWith(u';') || igual < 0) {
        return std::nullopt;
    }
    // What follows a second "=" is dropped.
    const auto segundo = linha.indexOf(u'=', igual + 1);
    const QString valor = linha.mid(igual + 1, segundo < 0 ? -1 : segundo - igual - 1);
    LinhaReg4 lida{linha.first(igual), valor};
    if (AparaBrancos(valor) == u"-") {
        lida.valor = ApagaReg4();
    } else if (valor.startsWith(kPrefixoHex, Qt::CaseInsensitive)) {
        lida.valor = BinarioReg4{valor.sliced(kPrefixoHex.size()).replace(u',', u' ')};
    } else if (valor.startsWith(kPrefixoDword, Qt::CaseInsensitive)) {
        const auto numero = LeDword(AparaBrancos(QStringView(valor).sliced(kPrefixoDword.size())));
        if (!numero) {
            return std::nullopt;
        }
        lida.valor = *numero;
    }
    return lida;
}

/// The section of the key line `linha`, which starts with "[".
SecaoReg4 LeSecao(const QString &linha)
{
    const QString nome = linha.mid(1, qMax(qsizetype{0}, linha.size() - 2));
    const bool apaga = nome.startsWith(u'-');
    return {apaga ? nome.sliced(1) : nome, apaga};
}

QString EntreAspas(const QString &texto)
{
    return u'"' + texto + u'"';
}

QString ComFim(const QString &linha)
{
    return linha + QLatin1String(kFimDeLinha);
}

} // namespace

LeitorReg4::LeitorReg4(const QByteArray &bytes) : m_bytes(bytes)
{
    m_cabecalhoServe = ProximaLinha().toUpper() == kCabecalho;
}

QString LeitorReg4::ProximaLinha()
{
    auto fim = m_bytes.indexOf(kFimDeLinha, m_inicio);
    fim = fim < 0 ? m_bytes.size() : fim;
    QString linha = DeCodePage(m_bytes.sliced(m_inicio, fim - m_inicio));
    m_inicio = qMin(m_bytes.size(), fim + 2);
    return linha;
}

std::optional<std::variant<SecaoReg4, LinhaReg4>> LeitorReg4::Proximo()
{
    while (m_inicio < m_bytes.size()) {
        const QString linha = Limpa(ProximaLinha());
        if (linha.startsWith(u'[')) {
            SecaoReg4 secao = LeSecao(linha);
            m_dentroDeChave = !secao.apaga;
            return secao;
        }
        if (auto lida = m_dentroDeChave ? LeLinha(linha) : std::nullopt) {
            return *lida;
        }
    }
    return std::nullopt;
}

QString CabecalhoReg4()
{
    return ComFim(ComFim(kCabecalho.toString()));
}

QString ChaveReg4(const QString &caminho)
{
    return ComFim(u'[' + caminho + u']');
}

QString PadraoReg4(const QString &texto)
{
    return ComFim(QStringLiteral("@=") + EntreAspas(texto));
}

QString TextoReg4(const QString &nome, const QString &texto)
{
    return ComFim(EntreAspas(nome) + u'=' + EntreAspas(texto));
}

QString BinarioComoReg4(const QString &nome, const QString &hexadecimal)
{
    return ComFim(EntreAspas(nome) + u'=' + kPrefixoHex.toString() +
                  QString(hexadecimal).replace(u' ', u','));
}

QString DwordReg4(const QString &nome, std::int32_t numero)
{
    const QString digitos = QString::number(static_cast<std::uint32_t>(numero), 16).toUpper();
    return ComFim(EntreAspas(nome) + u'=' + kPrefixoDword.toString() +
                  digitos.rightJustified(8, u'0'));
}

QString FimDaChaveReg4()
{
    return ComFim(QString());
}
