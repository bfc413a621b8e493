#include "core/registry/registry_store.h"

#include <windows.h>

namespace {

HKEY ComoHkey(ChaveRegistro chave)
{
    // The roots are 32-bit numbers that the system wants sign-extended.
    const bool raiz = chave >= kPrimeiraRaiz && chave < kPrimeiraRaiz + kQtdRaizes;
    const auto numero =
        raiz ? static_cast<LONG_PTR>(static_cast<LONG>(chave)) : static_cast<LONG_PTR>(chave);
    return reinterpret_cast<HKEY>(numero);
}

ChaveRegistro ComoChave(HKEY chave)
{
    return reinterpret_cast<ChaveRegistro>(chave);
}

CodigoRegistro ComoCodigo(LSTATUS codigo)
{
    return static_cast<CodigoRegistro>(codigo);
}

/// A buffer is asked for even where it has no room, since one that is missing means another
/// question.
QByteArray FazEspaco(std::uint32_t bytes)
{
    return QByteArray(static_cast<qsizetype>(bytes) + 1, '\0');
}

BYTE *ComoBytes(QByteArray &espaco)
{
    return reinterpret_cast<BYTE *>(espaco.data());
}

/// Turns what the system has written into `espaco` into the answer of an operation.
CodigoRegistro Entrega(LSTATUS codigo, QByteArray &espaco, DadosRegistro &conteudo)
{
    if (codigo == ERROR_SUCCESS) {
        espaco.truncate(static_cast<qsizetype>(conteudo.tamanho));
        conteudo.dados = espaco;
    }
    return ComoCodigo(codigo);
}

class RegistroDoWindows final : public ArmazemRegistro
{
public:
    CodigoRegistro RegCreateKeyA(ChaveRegistro base, const QByteArray &sub,
                                 ChaveRegistro &chave) override
    {
        HKEY aberta = nullptr;
        const LSTATUS codigo = ::RegCreateKeyA(ComoHkey(base), sub.constData(), &aberta);
        chave = ComoChave(aberta);
        return ComoCodigo(codigo);
    }

    CodigoRegistro RegOpenKeyA(ChaveRegistro base, const QByteArray &sub,
                               ChaveRegistro &chave) override
    {
        HKEY aberta = nullptr;
        const LSTATUS codigo = ::RegOpenKeyA(ComoHkey(base), sub.constData(), &aberta);
        chave = ComoChave(aberta);
        return ComoCodigo(codigo);
    }

    CodigoRegistro RegOpenKeyExA(ChaveRegistro base, const QByteArray &sub, std::uint32_t acesso,
                                 ChaveRegistro &chave) override
    {
        HKEY aberta = nullptr;
        const LSTATUS codigo = ::RegOpenKeyExA(ComoHkey(base), sub.constData(), 0, acesso, &aberta);
        chave = ComoChave(aberta);
        return ComoCodigo(codigo);
    }

    CodigoRegistro RegCloseKey(ChaveRegistro chave) override
    {
        return ComoCodigo(::RegCloseKey(ComoHkey(chave)));
    }

    CodigoRegistro RegDeleteKeyA(ChaveRegistro base, const QByteArray &sub) override
    {
        return ComoCodigo(::RegDeleteKeyA(ComoHkey(base), sub.constData()));
    }

    CodigoRegistro RegDeleteValueA(ChaveRegistro chave, const QByteArray &nome) override
    {
        return ComoCodigo(::RegDeleteValueA(ComoHkey(chave), nome.constData()));
    }

    CodigoRegistro RegEnumKeyExA(ChaveRegistro chave, std::uint32_t indice, std::uint32_t espaco,
                                 QByteArray &nome) override
    {
        QByteArray lugar = FazEspaco(espaco);
        DWORD tamanho = espaco;
        const LSTATUS codigo = ::RegEnumKeyExA(ComoHkey(chave), indice, lugar.data(), &tamanho,
                                               nullptr, nullptr, nullptr, nullptr);
        nome =
            codigo == ERROR_SUCCESS ? lugar.first(static_cast<qsizetype>(tamanho)) : QByteArray();
        return ComoCodigo(codigo);
    }

    CodigoRegistro RegEnumValueA(ChaveRegistro chave, std::uint32_t indice,
                                 const EspacoRegistro &espaco, ValorEnumerado &valor) override
    {
        valor = {};
        QByteArray lugarDoNome = FazEspaco(espaco.nome);
        QByteArray lugar = FazEspaco(espaco.dados);
        DWORD tamanhoDoNome = espaco.nome;
        DWORD tipo = 0;
        DWORD tamanho = espaco.dados;
        const LSTATUS codigo =
            ::RegEnumValueA(ComoHkey(chave), indice, lugarDoNome.data(), &tamanhoDoNome, nullptr,
                            &tipo, ComoBytes(lugar), &tamanho);
        LSTATUS codigoDoNome = codigo;
        if (codigo == ERROR_MORE_DATA) {
            // Either of the two may be what does not fit: the name is asked for alone.
            tamanhoDoNome = espaco.nome;
            codigoDoNome = ::RegEnumValueA(ComoHkey(chave), indice, lugarDoNome.data(),
                                           &tamanhoDoNome, nullptr, &tipo, nullptr, &tamanho);
        }
        if (codigoDoNome == ERROR_SUCCESS) {
            valor.nome = lugarDoNome.first(static_cast<qsizetype>(tamanhoDoNome));
        }
        valor.conteudo = {
            static_cast<std::uint32_t>(tipo), static_cast<std::uint32_t>(tamanho), {}};
        return Entrega(codigo, lugar, valor.conteudo);
    }

    CodigoRegistro RegQueryValueExA(ChaveRegistro chave, const QByteArray &nome,
                                    std::optional<std::uint32_t> espaco,
                                    DadosRegistro &conteudo) override
    {
        QByteArray lugar = FazEspaco(espaco.value_or(0));
        DWORD tipo = 0;
        DWORD tamanho = espaco.value_or(0);
        const LSTATUS codigo = ::RegQueryValueExA(ComoHkey(chave), nome.constData(), nullptr, &tipo,
                                                  espaco ? ComoBytes(lugar) : nullptr, &tamanho);
        conteudo = {static_cast<std::uint32_t>(tipo), static_cast<std::uint32_t>(tamanho), {}};
        return espaco ? Entrega(codigo, lugar, conteudo) : ComoCodigo(codigo);
    }

    CodigoRegistro RegSetValueExA(ChaveRegistro chave, const QByteArray &nome, std::uint32_t tipo,
                                  const QByteArray &dados) override
    {
        return ComoCodigo(::RegSetValueExA(ComoHkey(chave), nome.constData(), 0, tipo,
                                           reinterpret_cast<const BYTE *>(dados.constData()),
                                           static_cast<DWORD>(dados.size())));
    }
};

} // namespace

std::unique_ptr<ArmazemRegistro> AbreRegistroDoSistema(const ValoresIniciais &)
{
    return std::make_unique<RegistroDoWindows>();
}
