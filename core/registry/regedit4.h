#pragma once

#include <cstdint>
#include <optional>
#include <QByteArray>
#include <QString>
#include <variant>

/// The text format REGEDIT4: lines in Windows-1252, parted by CR LF, that name keys and their
/// values.
///
/// Nothing is escaped, so the format cannot carry all that a registry can: not a double quote or a
/// line end in a name or a value, "=" in a string, blanks at its end, an empty default value, a
/// string that reads like another kind of value ("-", "hex:", "dword:"), values of further types,
/// or a key without values.

/// The value is to be deleted.
struct ApagaReg4
{
};

/// Hexadecimal text, parted by blanks.
struct BinarioReg4
{
    QString texto;
};

/// One value line: the name ("@" for the default value), and what is to be done with it.
struct LinhaReg4
{
    QString nome;
    std::variant<QString, BinarioReg4, std::uint32_t, ApagaReg4> valor;
};

/// A key's line: the path of the key that the value lines behind it are for, or that is to be
/// deleted.
struct SecaoReg4
{
    QString chave;
    bool apaga = false;
};

/// Reads a file's bytes line by line. Lines that make no sense are passed over, also in a file that
/// ends in the middle of one. Time grows with the size alone.
class LeitorReg4
{
public:
    /// `bytes` must outlive the object.
    explicit LeitorReg4(const QByteArray &bytes);

    /// Whether the first line is REGEDIT4, in any case.
    [[nodiscard]] bool CabecalhoServe() const { return m_cabecalhoServe; }

    /// The next key or value line, or nothing at the end. Value lines come behind a key that is not
    /// to be deleted only.
    std::optional<std::variant<SecaoReg4, LinhaReg4>> Proximo();

private:
    QString ProximaLinha();

    const QByteArray &m_bytes;
    qsizetype m_inicio = 0;
    bool m_cabecalhoServe = false;
    bool m_dentroDeChave = false;
};

/// The lines of a file, each with its CR LF. `hexadecimal` is as BinarioReg4 has it.
QString CabecalhoReg4();
QString ChaveReg4(const QString &caminho);
QString PadraoReg4(const QString &texto);
QString TextoReg4(const QString &nome, const QString &texto);
QString BinarioComoReg4(const QString &nome, const QString &hexadecimal);
QString DwordReg4(const QString &nome, std::int32_t numero);
QString FimDaChaveReg4();
