#pragma once

#include "core/registry/registry_path.h"
#include <functional>
#include <QStringList>
#include <variant>
#include <vector>

/// Where the program reads the screen's dots per inch and the user's cache directory.
inline constexpr QStringView kChaveDaTela = u"HKCU\\Control Panel\\Desktop\\WindowMetrics";
inline constexpr QStringView kValorAppliedDPI = u"AppliedDPI";
inline constexpr QStringView kChaveDasPastas =
    u"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
inline constexpr QStringView kValorCache = u"Cache";

/// An entry of EnumValues: the text of a string or of a binary value (hexadecimal), the number of a
/// DWORD, or nothing for a value of another type.
using ValorListado = std::variant<std::monostate, QString, std::int32_t>;

/// Where an export shows its progress. Both may be empty; `deixaEventos` is called only with
/// `mostra`.
struct SaidaDaExportacao
{
    /// Lets the program's pending events run. They may call the registry, and change it.
    std::function<void()> deixaEventos;
    /// Shows the path of the key that comes next, its root name in the long form.
    std::function<void(const QString &)> mostra;
};

class ChaveAberta;
class LeitorReg4;

/// The registry in text paths and simple types, with export to and import from REGEDIT4 files.
///
/// `sPath` is always a path as LeCaminho reads it; a path with an unknown root is as one of a
/// missing key. `sName` is the name of a value, "" that of the key's default value. Binary values
/// are hexadecimal text: two capital digits for each byte, a blank between bytes. Texts are turned
/// into Windows-1252.
///
/// No operation reports an error: reads give the default, writes and deletions 0, enumerations -1.
/// The int results that are no counts mean only zero or not zero.
class clsRegistryAccess
{
public:
    /// `armazem` must outlive the object.
    explicit clsRegistryAccess(ArmazemRegistro &armazem) : m_armazem(armazem) {}

    /// Whether WriteDWORD and WriteBinary make a key that is missing. WriteString always does.
    bool CreateKeyIfDoesntExists = true;

    /// Makes a key and its parents. Not 0 if the key now exists.
    int CreateKey(const QString &sPath);

    /// Deletes a key that has no subkeys. Not 0 if the key could be opened, whether or not it is
    /// gone.
    int KillKey(const QString &sPath);

    /// Whether the key opens with full access: a key that may only be read does not exist in this
    /// sense.
    bool KeyExists(const QString &sPath);

    /// Lists the names of the subkeys into `Key`, in the registry's order, without names of more
    /// than 254 bytes. Gives their number, or -1 if the key cannot be opened.
    int EnumKeys(const QString &sPath, QStringList &Key);

    bool HaveSubkey(const QString &sPath);

    /// Writes a string, into a new key if need be. The name "@" is the default value. With `hkcu`,
    /// what fails under HKEY_LOCAL_MACHINE is tried once more under HKEY_CURRENT_USER.
    int WriteString(const QString &sPath, const QString &sName, const QString &sValue,
                    bool hkcu = false);

    /// Reads the bytes of a value of any type as text, up to the first NUL. More than 1024 bytes
    /// cannot be read. `hkcu` as in WriteString; `AllAcess` opens the key with full access. The
    /// name "@" is one like any other.
    QString ReadString(const QString &sPath, const QString &sName,
                       const QString &sDefault = QString(1, QChar(u'\0')), bool hkcu = false,
                       bool AllAcess = false);

    int WriteDWORD(const QString &sPath, const QString &sName, std::int32_t lValue);

    /// Reads a value of 4 bytes as a number, the lowest byte first.
    std::int32_t ReadDWORD(const QString &sPath, const QString &sName, std::int32_t lDefault = -1);

    /// Writes the bytes of the hexadecimal text `sValue`; none for an empty one.
    int WriteBinary(const QString &sPath, const QString &sName, const QString &sValue);

    QString ReadBinary(const QString &sPath, const QString &sName,
                       const QString &sDefault = QString());

    /// Deletes a value. Not 0 if the key could be opened, whether or not there was such a value.
    int KillValue(const QString &sPath, const QString &sName);

    bool ValueExists(const QString &sPath, const QString &sName);

    /// Lists the values of a key, or those of the type `OnlyType` if it is not -1: the names,
    /// without the blanks round them, into `sName` and what they hold into `sValue`. Values with
    /// names of more than 254 bytes are left out. Strings of more than 1024 bytes are listed as "".
    /// Gives the number of values listed, or -1 if the key cannot be opened.
    int EnumValues(const QString &sPath, QStringList &sName, std::vector<ValorListado> &sValue,
                   int OnlyType = -1);

    /// Writes a key, and with `IncludeSubkeys` all keys below it, depth first, into the new file
    /// `sRegFile`. Gives 1; 0 if the file exists already (it stays as it is) or cannot be written
    /// to the end. A key that is missing comes out as one without values.
    int ExportToReg(const QString &sPath, const QString &sRegFile, bool IncludeSubkeys = true,
                    const SaidaDaExportacao &Output = {});

    /// Writes what the file `sRegFile` holds into the registry; sets CreateKeyIfDoesntExists. Gives
    /// 1; 0 if the file is missing or does not start with the line REGEDIT4.
    int ImportFromReg(const QString &sRegFile);

    /// The bytes of hexadecimal text; blanks count for nothing. Of an odd number of digits the last
    /// one is dropped or stands for a byte by itself, so that the number of bytes is even (5
    /// digits: 2 bytes, 7: 4). A pair counts as far as its digits go: "4G" as 4, "G4" as 0.
    static QByteArray StrToBin(const QString &sBin);

    /// Hexadecimal text with a blank before each byte; "" for no bytes.
    static QString BinToStr(const QByteArray &sStr);

    /// Whether `sBin` has hexadecimal digits and, besides blanks, nothing else. Their number does
    /// not count.
    static bool isBinValid(const QString &sBin);

private:
    ChaveAberta Abre(const CaminhoRegistro &caminho, std::uint32_t acesso);
    ChaveAberta AbreParaListar(const CaminhoRegistro &caminho);
    ChaveAberta AbreParaGravar(const CaminhoRegistro &caminho, bool criar);
    bool Existe(const CaminhoRegistro &caminho);
    bool Cria(const CaminhoRegistro &caminho);
    QString BlocoDaChave(const QString &caminho);
    bool ExportaChave(const QString &sPath, const QString &sRegFile, bool subchaves,
                      const SaidaDaExportacao &saida);
    void ImportaItens(LeitorReg4 &leitor);

    ArmazemRegistro &m_armazem;
};
