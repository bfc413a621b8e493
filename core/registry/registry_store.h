#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>

/// The registry as the platform offers it: keys in a tree, typed values in each key.
///
/// Names and texts are bytes in Windows-1252 here. A sub-path is key names joined by backslashes;
/// an empty one names the key that it is taken from. Letter case never matters.

/// An open key or one of the roots; 0 is none.
using ChaveRegistro = std::uintptr_t;

/// The roots are always open; their values follow one another from here.
inline constexpr ChaveRegistro kPrimeiraRaiz = 0x80000000;
inline constexpr int kQtdRaizes = 7;

/// Answer of an operation. The platform may answer with further codes; all but Sucesso are
/// failures.
enum class CodigoRegistro : std::int32_t {
    Sucesso = 0,
    NaoAchado = 2,
    AcessoNegado = 5,
    ChaveInvalida = 6,
    ParametroInvalido = 87,
    MaisDados = 234,
    FimDaLista = 259,
    ChaveApagada = 1018,
};

inline constexpr std::uint32_t kAcessoTotal = 0xF003F;
inline constexpr std::uint32_t kAcessoEscrita = 0x20006;
inline constexpr std::uint32_t kAcessoLeitura = 0x20019;

inline constexpr std::uint32_t kTipoTexto = 1;
inline constexpr std::uint32_t kTipoBinario = 3;
inline constexpr std::uint32_t kTipoDword = 4;

/// What a value holds. `tipo` and `tamanho` (bytes) are right for Sucesso and MaisDados, `dados`
/// for Sucesso alone.
struct DadosRegistro
{
    std::uint32_t tipo = 0;
    std::uint32_t tamanho = 0;
    QByteArray dados;
};

/// Room for an enumerated value, in bytes: the name with a NUL behind it, and the data.
struct EspacoRegistro
{
    std::uint32_t nome = 0;
    std::uint32_t dados = 0;
};

/// An enumerated value. `nome` is empty where the room does not hold it.
struct ValorEnumerado
{
    std::optional<QByteArray> nome;
    DadosRegistro conteudo;
};

/// The ten operations of a registry, under the platform's names. Every key that an operation opened
/// is closed by the caller. No operation throws.
class ArmazemRegistro
{
public:
    ArmazemRegistro() = default;
    ArmazemRegistro(const ArmazemRegistro &) = delete;
    ArmazemRegistro &operator=(const ArmazemRegistro &) = delete;
    virtual ~ArmazemRegistro() = default;

    /// Opens the key with all rights that the user has; makes it and its parents where they are
    /// missing.
    virtual CodigoRegistro RegCreateKeyA(ChaveRegistro base, const QByteArray &sub,
                                         ChaveRegistro &chave) = 0;

    /// Opens an existing key with all rights that the user has.
    virtual CodigoRegistro RegOpenKeyA(ChaveRegistro base, const QByteArray &sub,
                                       ChaveRegistro &chave) = 0;

    /// Opens an existing key with the rights of the mask `acesso`, all of them or not at all.
    virtual CodigoRegistro RegOpenKeyExA(ChaveRegistro base, const QByteArray &sub,
                                         std::uint32_t acesso, ChaveRegistro &chave) = 0;

    virtual CodigoRegistro RegCloseKey(ChaveRegistro chave) = 0;

    /// Deletes a key with its values. A key with subkeys stays (AcessoNegado).
    virtual CodigoRegistro RegDeleteKeyA(ChaveRegistro base, const QByteArray &sub) = 0;

    virtual CodigoRegistro RegDeleteValueA(ChaveRegistro chave, const QByteArray &nome) = 0;

    /// Name of subkey number `indice` (from 0). FimDaLista behind the last one; MaisDados, with
    /// `nome` empty, for a name that does not fit in `espaco` bytes with a NUL behind it.
    virtual CodigoRegistro RegEnumKeyExA(ChaveRegistro chave, std::uint32_t indice,
                                         std::uint32_t espaco, QByteArray &nome) = 0;

    /// Value number `indice` (from 0). FimDaLista behind the last one; MaisDados where the name or
    /// the data do not fit, with whatever of the two does.
    virtual CodigoRegistro RegEnumValueA(ChaveRegistro chave, std::uint32_t indice,
                                         const EspacoRegistro &espaco, ValorEnumerado &valor) = 0;

    /// The value `nome`, of at most `espaco` bytes; MaisDados if it is longer. Without `espaco`
    /// only the type and the size are asked for, and any size will do.
    virtual CodigoRegistro RegQueryValueExA(ChaveRegistro chave, const QByteArray &nome,
                                            std::optional<std::uint32_t> espaco,
                                            DadosRegistro &conteudo) = 0;

    /// Sets the value `nome`, whatever it held before.
    virtual CodigoRegistro RegSetValueExA(ChaveRegistro chave, const QByteArray &nome,
                                          std::uint32_t tipo, const QByteArray &dados) = 0;
};

/// What the program reads of a registry, for a system that has none.
struct ValoresIniciais
{
    /// Logical dots per inch of the primary screen.
    int AppliedDPI = 96;
    /// The user's cache directory.
    QString Cache;
};

/// The system's registry. Where the system has none: one in memory that holds the two values
/// `iniciais`, lasts as long as the object and leaves no file behind.
std::unique_ptr<ArmazemRegistro> AbreRegistroDoSistema(const ValoresIniciais &iniciais);
