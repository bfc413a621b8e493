#pragma once

#include "core/registry/registry_store.h"

#include <QHash>
#include <vector>

struct NoRegistro;

/// A registry of the program's own, in memory or kept in a file.
///
/// Keys and values stand in the order in which they came; a value set anew keeps its place. It
/// refuses what the platform refuses: a handle without the right that an operation needs, a key
/// deleted meanwhile, the deletion of a root or of a key with subkeys, key names above 255 bytes,
/// value names above 16,383, more than 512 levels.
class RegistroPortatil : public ArmazemRegistro
{
public:
    /// In memory alone. All roots stand, empty.
    RegistroPortatil();

    /// Kept in the file `arquivo`: holds what can be read of it. A missing file is an empty
    /// registry; one that is there and cannot be read is never written over.
    explicit RegistroPortatil(const QString &arquivo);

    /// Saves what has not been saved.
    ~RegistroPortatil() override;

    /// Writes the file, whole or not at all, if anything changed since it was read or written.
    /// False if that failed; True without a file.
    bool Salva();

    /// Number of keys opened and not closed.
    [[nodiscard]] qsizetype QtdAbertas() const { return m_abertas.size(); }

    CodigoRegistro RegCreateKeyA(ChaveRegistro base, const QByteArray &sub,
                                 ChaveRegistro &chave) override;
    CodigoRegistro RegOpenKeyA(ChaveRegistro base, const QByteArray &sub,
                               ChaveRegistro &chave) override;
    CodigoRegistro RegOpenKeyExA(ChaveRegistro base, const QByteArray &sub, std::uint32_t acesso,
                                 ChaveRegistro &chave) override;
    CodigoRegistro RegCloseKey(ChaveRegistro chave) override;
    CodigoRegistro RegDeleteKeyA(ChaveRegistro base, const QByteArray &sub) override;
    CodigoRegistro RegDeleteValueA(ChaveRegistro chave, const QByteArray &nome) override;
    CodigoRegistro RegEnumKeyExA(ChaveRegistro chave, std::uint32_t indice, std::uint32_t espaco,
                                 QByteArray &nome) override;
    CodigoRegistro RegEnumValueA(ChaveRegistro chave, std::uint32_t indice,
                                 const EspacoRegistro &espaco, ValorEnumerado &valor) override;
    CodigoRegistro RegQueryValueExA(ChaveRegistro chave, const QByteArray &nome,
                                    std::optional<std::uint32_t> espaco,
                                    DadosRegistro &conteudo) override;
    CodigoRegistro RegSetValueExA(ChaveRegistro chave, const QByteArray &nome, std::uint32_t tipo,
                                  const QByteArray &dados) override;

private:
    struct Aberta
    {
        std::shared_ptr<NoRegistro> no;
        std::uint32_t acesso = 0;
    };

    CodigoRegistro NoDaChave(ChaveRegistro chave, std::uint32_t direito,
                             std::shared_ptr<NoRegistro> &no) const;
    ChaveRegistro Abre(std::shared_ptr<NoRegistro> no, std::uint32_t acesso);

    QString m_arquivo;
    bool m_legivel = true;
    bool m_mudou = false;
    std::vector<std::shared_ptr<NoRegistro>> m_raizes;
    QHash<ChaveRegistro, Aberta> m_abertas;
    ChaveRegistro m_ultimaChave = 0;
};
