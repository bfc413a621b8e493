#pragma once

#include <cstddef>
#include <QByteArray>
#include <QHash>
#include <vector>

/// Longest value that can be read, in bytes; a longer one is cut.
inline constexpr int kMaximoDoValor = 254;

/// The text of one INI file: reads values, and changes single lines while all others stay byte for
/// byte.
///
/// Everything is bytes of the files' code page. Names of sections and keys are compared without
/// regard to ASCII case, blanks and tabs round them do not count, and a name ends at its first NUL
/// byte.
///
/// Lines end with CR LF, LF or a lone CR. A line that opens with "[" and has a "]" is a header,
/// whose name ends at the first "]"; one that opens with ";" is a comment; one of blanks is empty;
/// any other line is a key, up to its first "=", and without one a key that has no value. Blanks
/// may stand before all of these. The first section of a name counts, and in it the first key of a
/// name. Lines before the first header belong to no section.
class TextoIni
{
public:
    /// Any bytes are a text; there is no such thing as a bad one.
    explicit TextoIni(const QByteArray &bytes = {});

    /// The value of a key: blanks round it removed, cut at its first NUL byte, then freed of one
    /// matching pair of quotation marks round the whole, then cut to kMaximoDoValor. Empty where
    /// the section, the key or the value is missing.
    [[nodiscard]] QByteArray Valor(const QByteArray &secao, const QByteArray &chave) const;

    /// Gives a key a value, stored as it is. The three arguments end at their first NUL byte.
    ///
    /// An existing key's line becomes key=value in its old place, with the key spelled as it was
    /// there. A new key goes right behind the last key of its section, a new section to the end of
    /// the text. Lines are written with CR LF, and a last line without an end gets one. A value
    /// with line ends in it makes several lines, which count as any others from then on.
    void Escreve(const QByteArray &secao, const QByteArray &chave, const QByteArray &valor);

    /// The whole text.
    [[nodiscard]] QByteArray Bytes() const;

private:
    struct Secao
    {
        /// All lines with their ends, the header first.
        std::vector<QByteArray> linhas;
        /// Line of each key, by its name in small letters.
        QHash<QByteArray, size_t> chaves;
        /// One past the last key's line, or past the header where there is no key.
        size_t fimDasChaves = 0;
    };

    void AcolheLinha(const QByteArray &linha);
    Secao &SecaoParaEscrever(const QByteArray &secao);
    void TerminaUltimaLinha();

    /// Entry 0 holds the lines before the first header.
    std::vector<Secao> m_secoes;
    /// First section of each name, by the name in small letters.
    QHash<QByteArray, size_t> m_indice;
};
