#include "core/registry/registry_access.h"

#include "core/files/codepage.h"
#include "core/registry/registry_key.h"
#include "core/registry/registry_text.h"
#include <algorithm>

namespace {

/// Byte of one or two hexadecimal digits, read as far as they are digits.
char ByteDoPedaco(QStringView pedaco)
{
    int byte = 0;
    for (const QChar letra : pedaco) {
        const int digito = DigitoHexadecimal(letra);
        if (digito < 0) {
            break;
        }
        byte = byte * 16 + digito;
    }
    return static_cast<char>(byte);
}

/// What an enumeration lists of a value; the value is read by its name, since a list has less room
/// for data.
ValorListado ListaValor(const ChaveAberta &chave, const QByteArray &nome, std::uint32_t tipo)
{
    switch (tipo) {
    case kTipoTexto:
        return chave.LeTexto(nome).value_or(QString());
    case kTipoBinario:
        return AparaBrancos(
            clsRegistryAccess::BinToStr(chave.LeBinario(nome).value_or(QByteArray())));
    case kTipoDword:
        return chave.LeDword(nome).value_or(0);
    default:
        return std::monostate();
    }
}

/// Whether an enumeration goes on: a thing that has no room is only passed over.
bool Continua(CodigoRegistro codigo)
{
    return codigo == CodigoRegistro::Sucesso || codigo == CodigoRegistro::MaisDados;
}

} // namespace

ChaveAberta clsRegistryAccess::Abre(const CaminhoRegistro &caminho, std::uint32_t acesso)
{
    ChaveRegistro chave = 0;
    const auto codigo = m_armazem.RegOpenKeyExA(caminho.chave, caminho.sub, acesso, chave);
    return {m_armazem, codigo == CodigoRegistro::Sucesso ? chave : 0};
}

ChaveAberta clsRegistryAccess::AbreParaListar(const CaminhoRegistro &caminho)
{
    ChaveRegistro chave = 0;
    const auto codigo = m_armazem.RegOpenKeyA(caminho.chave, caminho.sub, chave);
    return {m_armazem, codigo == CodigoRegistro::Sucesso ? chave : 0};
}

ChaveAberta clsRegistryAccess::AbreParaGravar(const CaminhoRegistro &caminho, bool criar)
{
    if (Existe(caminho) || (criar && Cria(caminho))) {
        return Abre(caminho, kAcessoEscrita);
    }
    return {m_armazem, 0};
}

bool clsRegistryAccess::Existe(const CaminhoRegistro &caminho)
{
    return static_cast<bool>(Abre(caminho, kAcessoTotal));
}

bool clsRegistryAccess::Cria(const CaminhoRegistro &caminho)
{
    ChaveRegistro chave = 0;
    const auto codigo = m_armazem.RegCreateKeyA(caminho.chave, caminho.sub, chave);
    const ChaveAberta criada(m_armazem, codigo == CodigoRegistro::Sucesso ? chave : 0);
    return static_cast<bool>(criada);
}

int clsRegistryAccess::CreateKey(const QString &sPath)
{
    return Cria(LeCaminho(sPath)) ? 1 : 0;
}

int clsRegistryAccess::KillKey(const QString &sPath)
{
    const CaminhoRegistro caminho = LeCaminho(sPath);
    if (!Existe(caminho)) {
        return 0;
    }
    m_armazem.RegDeleteKeyA(caminho.chave, caminho.sub);
    return 1;
}

bool clsRegistryAccess::KeyExists(const QString &sPath)
{
    return Existe(LeCaminho(sPath));
}

int clsRegistryAccess::EnumKeys(const QString &sPath, QStringList &Key)
{
    Key.clear();
    const ChaveAberta chave = AbreParaListar(LeCaminho(sPath));
    if (!chave) {
        return -1;
    }
    QByteArray nome;
    CodigoRegistro codigo = chave.Subchave(0, nome);
    for (std::uint32_t k = 1; Continua(codigo); ++k) {
        if (codigo == CodigoRegistro::Sucesso) {
            Key.append(DeCodePage(nome));
        }
        codigo = chave.Subchave(k, nome);
    }
    return static_cast<int>(Key.size());
}

bool clsRegistryAccess::HaveSubkey(const QString &sPath)
{
    const ChaveAberta chave = AbreParaListar(LeCaminho(sPath));
    QByteArray nome;
    return chave && chave.Subchave(0, nome) != CodigoRegistro::FimDaLista;
}

int clsRegistryAccess::WriteString(const QString &sPath, const QString &sName,
                                   const QString &sValue, bool hkcu)
{
    const CaminhoRegistro caminho = LeCaminho(sPath);
    if (AbreParaGravar(caminho, true).GravaTexto(sName, sValue)) {
        return 1;
    }
    const bool outra = hkcu && EhDaMaquina(caminho);
    return outra && AbreParaGravar(SobUsuario(caminho), true).GravaTexto(sName, sValue) ? 1 : 0;
}

QString clsRegistryAccess::ReadString(const QString &sPath, const QString &sName,
                                      const QString &sDefault, bool hkcu, bool AllAcess)
{
    const CaminhoRegistro caminho = LeCaminho(sPath);
    const std::uint32_t acesso = AllAcess ? kAcessoTotal : kAcessoLeitura;
    const QByteArray nome = ParaCodePage(sName);
    auto texto = Abre(caminho, acesso).LeTexto(nome);
    if (!texto && hkcu && EhDaMaquina(caminho)) {
        texto = Abre(SobUsuario(caminho), acesso).LeTexto(nome);
    }
    return texto.value_or(sDefault);
}

int clsRegistryAccess::WriteDWORD(const QString &sPath, const QString &sName, std::int32_t lValue)
{
    return AbreParaGravar(LeCaminho(sPath), CreateKeyIfDoesntExists).GravaDword(sName, lValue) ? 1
                                                                                               : 0;
}

std::int32_t clsRegistryAccess::ReadDWORD(const QString &sPath, const QString &sName,
                                          std::int32_t lDefault)
{
    return Abre(LeCaminho(sPath), kAcessoLeitura).LeDword(ParaCodePage(sName)).value_or(lDefault);
}

int clsRegistryAccess::WriteBinary(const QString &sPath, const QString &sName,
                                   const QString &sValue)
{
    ChaveAberta chave = AbreParaGravar(LeCaminho(sPath), CreateKeyIfDoesntExists);
    return chave.GravaBinario(sName, StrToBin(sValue)) ? 1 : 0;
}

QString clsRegistryAccess::ReadBinary(const QString &sPath, const QString &sName,
                                      const QString &sDefault)
{
    const auto bytes = Abre(LeCaminho(sPath), kAcessoLeitura).LeBinario(ParaCodePage(sName));
    return bytes ? AparaBrancos(BinToStr(*bytes)) : sDefault;
}

int clsRegistryAccess::KillValue(const QString &sPath, const QString &sName)
{
    ChaveAberta chave = Abre(LeCaminho(sPath), kAcessoEscrita);
    chave.Apaga(sName);
    return chave ? 1 : 0;
}

bool clsRegistryAccess::ValueExists(const QString &sPath, const QString &sName)
{
    return Abre(LeCaminho(sPath), kAcessoLeitura).TemValor(ParaCodePage(sName));
}

int clsRegistryAccess::EnumValues(const QString &sPath, QStringList &sName,
                                  std::vector<ValorListado> &sValue, int OnlyType)
{
    sName.clear();
    sValue.clear();
    const ChaveAberta chave = AbreParaListar(LeCaminho(sPath));
    if (!chave) {
        return -1;
    }
    ValorEnumerado valor;
    CodigoRegistro codigo = chave.Valor(0, valor);
    for (std::uint32_t k = 1; Continua(codigo); ++k) {
        const std::uint32_t tipo = valor.conteudo.tipo;
        if (valor.nome && (OnlyType == -1 || tipo == static_cast<std::uint32_t>(OnlyType))) {
            sName.append(AparaBrancos(DeCodePage(*valor.nome)));
            sValue.push_back(ListaValor(chave, *valor.nome, tipo));
        }
        codigo = chave.Valor(k, valor);
    }
    return static_cast<int>(sName.size());
}

QByteArray clsRegistryAccess::StrToBin(const QString &sBin)
{
    QString digitos = sBin;
    digitos.remove(u' ');
    const auto inteiros = digitos.size() / 2;
    const bool meio = digitos.size() % 2 != 0;
    const auto pedacos = inteiros + (meio && inteiros % 2 != 0 ? 1 : 0);
    QByteArray bytes;
    bytes.reserve(pedacos);
    for (qsizetype k = 0; k < pedacos; ++k) {
        bytes.append(ByteDoPedaco(QStringView(digitos).mid(2 * k, 2)));
    }
    return bytes;
}

QString clsRegistryAccess::BinToStr(const QByteArray &sStr)
{
    const QByteArray digitos = sStr.toHex(' ').toUpper();
    return digitos.isEmpty() ? QString() : u' ' + QString::fromLatin1(digitos);
}

bool clsRegistryAccess::isBinValid(const QString &sBin)
{
    const auto vale = [](QChar letra) { return letra == u' ' || DigitoHexadecimal(letra) >= 0; };
    return !AparaBrancos(sBin).isEmpty() && std::all_of(sBin.cbegin(), sBin.cend(), vale);
}
