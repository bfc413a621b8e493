// Holds the question bank against every rule that a machine can judge:
//   confere_banco SOURCE.tsv ALLOWED.txt [--so-regras]
//
// ALLOWED.txt lists what the spelling dictionary lacks and what looks like two forms of one word
// and is not: one entry a line, "#" begins a comment; a pair is written WORD/WORD. --so-regras
// leaves the spelling out, for a machine without hunspell.

#include "core/files/whole_file.h"
#include "tools/house_rules.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int kEntradas = 3000;

/// Share of the words of 3, 4, ... letters, the last for 10 and more, in hundredths.
constexpr std::array kPartes = {4, 12, 20, 22, 18, 12, 7, 5};

/// Letters that the builder can hardly cross by; together they must stay rare.
constexpr QStringView kLetrasRaras = u"KWYQXJ";

class Conferencia
{
public:
    Conferencia(const FonteBanco &fonte, const QSet<QString> &permitidas)
        : m_fonte(fonte), m_permitidas(permitidas)
    {
    }

    /// Number of faults; each is printed.
    int Confere(bool ortografia)
    {
        for (const QString &falta : m_fonte.faltas) {
            Falta(falta);
        }
        if (static_cast<int>(m_fonte.entradas.size()) != kEntradas) {
            Falta(QStringLiteral("%1 entries, not %2").arg(m_fonte.entradas.size()).arg(kEntradas));
        }
        ConferePartes();
        ConfereDicas();
        ConfereFormas();
        ConfereLetras();
        if (ortografia) {
            ConfereOrtografia();
        }
        return m_faltas;
    }

private:
    void Falta(const QString &texto)
    {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
        ++m_faltas;
    }

    [[nodiscard]] double Centesimos(int quantas) const
    {
        return 100.0 * quantas / static_cast<double>(std::max<size_t>(1, m_fonte.entradas.size()));
    }

    void ConferePartes()
    {
        std::array<int, kPartes.size()> contagem{};
        for (const auto &entrada : m_fonte.entradas) {
            const auto faixa =
                std::clamp<qsizetype>(entrada.palavra.size() - 3, 0, kPartes.size() - 1);
            ++contagem[static_cast<size_t>(faixa)];
        }
        for (size_t k = 0; k < kPartes.size(); ++k) {
            const double parte = Centesimos(contagem[k]);
            std::printf("%zu letters: %.1f%% (aim %d%%)\n", k + 3, parte, kPartes[k]);
            if (parte < kPartes[k] * 2 / 3.0 || parte > kPartes[k] * 4 / 3.0) {
                Falta(QStringLiteral("words of %1 letters: %2%, not near %3%")
                          .arg(k + 3)
                          .arg(parte)
                          .arg(kPartes[k]));
            }
        }
    }

    void ConfereDicas()
    {
        int deUmaPalavra = 0;
        QHash<QString, int> formulas;
        for (const auto &entrada : m_fonte.entradas) {
            const QStringList palavras = PalavrasDaDica(entrada.dica);
            deUmaPalavra += palavras.size() == 1 ? 1 : 0;
            ++formulas[palavras.mid(0, 2).join(u' ')];
            const QString primeira = entrada.dica.left(1);
            if (primeira != primeira.toUpper()) {
                Falta(QStringLiteral("%1: no capital first").arg(entrada.linha));
            }
            if (entrada.dica.endsWith(u'.') && !entrada.dica.endsWith(QStringLiteral("..."))) {
                Falta(QStringLiteral("%1: a full stop at the end").arg(entrada.linha));
            }
        }
        std::printf("clues of one word: %.1f%% (at most 25%%)\n", Centesimos(deUmaPalavra));
        if (deUmaPalavra * 4 > kEntradas) {
            Falta(QStringLiteral("too many clues of one word"));
        }
        for (auto formula = formulas.cbegin(); formula != formulas.cend(); ++formula) {
            if (formula.value() > kEntradas / 30) {
                Falta(QStringLiteral("%1 clues begin with \"%2\"")
                          .arg(formula.value())
                          .arg(formula.key()));
            }
        }
    }

    /// Endings by which a plural, a gender, a participle or a diminutive differs from its word.
    void ConfereFormas()
    {
        struct Forma
        {
            const char16_t *de, *para;
        };
        constexpr std::array formas = {
            Forma{u"", u"S"},     Forma{u"O", u"A"},    Forma{u"OR", u"ORA"}, Forma{u"ÃO", u"ÕES"},
            Forma{u"AL", u"AIS"}, Forma{u"R", u"RES"},  Forma{u"AR", u"ADO"}, Forma{u"AR", u"ADA"},
            Forma{u"ER", u"IDO"}, Forma{u"IR", u"IDO"}, Forma{u"ER", u"IDA"}, Forma{u"IR", u"IDA"},
            Forma{u"O", u"INHO"}, Forma{u"A", u"INHA"}, Forma{u"ÃO", u"Ã"},   Forma{u"ÊS", u"ESA"},
            Forma{u"O", u"OS"},   Forma{u"A", u"AS"},
        };
        QSet<QString> palavras;
        for (const auto &entrada : m_fonte.entradas) {
            palavras.insert(entrada.palavra);
        }
        for (const auto &entrada : m_fonte.entradas) {
            for (const auto &[de, para] : formas) {
                const QString fim = QString::fromUtf16(de);
                if (!entrada.palavra.endsWith(fim)) {
                    continue;
                }
                const QString outra =
                    entrada.palavra.chopped(fim.size()) + QString::fromUtf16(para);
                if (palavras.contains(outra) &&
                    !m_permitidas.contains(entrada.palavra + u'/' + outra)) {
                    Falta(QStringLiteral("%1: forms of one word? %2/%3")
                              .arg(entrada.linha)
                              .arg(entrada.palavra, outra));
                }
            }
        }
    }

    void ConfereLetras()
    {
        int letras = 0;
        int raras = 0;
        for (const auto &entrada : m_fonte.entradas) {
            for (const QChar letra : entrada.palavra) {
                ++letras;
                raras += kLetrasRaras.contains(letra) ? 1 : 0;
            }
        }
        std::printf("rare letters: %.1f%%\n", 100.0 * raras / std::max(1, letras));
        if (raras * 20 > letras) {
            Falta(QStringLiteral("rare letters are more than one in twenty"));
        }
    }

    void ConfereOrtografia()
    {
        QStringList textos;
        for (const auto &entrada : m_fonte.entradas) {
            textos << entrada.palavra.toLower() << entrada.dica;
        }
        // A name is known by its capital only.
        const QStringList primeira = Desconhecidas(textos);
        QStringList comCapital;
        for (const QString &palavra : primeira) {
            comCapital << palavra.left(1).toUpper() + palavra.mid(1);
        }
        for (const QString &palavra : Desconhecidas(comCapital)) {
            if (!m_permitidas.contains(palavra.toLower())) {
                Falta(QStringLiteral("the dictionary lacks \"%1\"").arg(palavra));
            }
        }
    }

    QStringList Desconhecidas(const QStringList &textos)
    {
        QProcess hunspell;
        hunspell.start(QStringLiteral("hunspell"),
                       {QStringLiteral("-i"), QStringLiteral("utf-8"), QStringLiteral("-d"),
                        QStringLiteral("pt_BR"), QStringLiteral("-l")});
        hunspell.write(textos.join(u'\n').toUtf8());
        hunspell.closeWriteChannel();
        if (!hunspell.waitForFinished(-1) || hunspell.exitCode() != 0) {
            Falta(QStringLiteral("hunspell with the dictionary pt_BR cannot be run"));
            return {};
        }
        QStringList palavras =
            QString::fromUtf8(hunspell.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        palavras.removeDuplicates();
        return palavras;
    }

    const FonteBanco &m_fonte;
    const QSet<QString> &m_permitidas;
    int m_faltas = 0;
};

QByteArray Le(const QString &arquivo)
{
    const auto bytes = LeArquivo(arquivo);
    if (!bytes || !QFile::exists(arquivo)) {
        std::fprintf(stderr, "confere_banco: %s cannot be read\n", qPrintable(arquivo));
        std::exit(2);
    }
    return *bytes;
}

QSet<QString> LePermitidas(const QString &arquivo)
{
    QSet<QString> permitidas;
    for (const QString &linha : QString::fromUtf8(Le(arquivo)).split(u'\n')) {
        const QString entrada = linha.section(u'#', 0, 0).trimmed();
        permitidas.insert(entrada.contains(u'/') ? entrada : entrada.toLower());
    }
    return permitidas;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication aplicacao(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() < 3) {
        std::fprintf(stderr, "usage: confere_banco SOURCE.tsv ALLOWED.txt [--so-regras]\n");
        return 2;
    }
    const FonteBanco fonte = LeFonte(Le(argumentos[1]));
    const QSet<QString> permitidas = LePermitidas(argumentos[2]);
    const bool ortografia = !argumentos.contains(QStringLiteral("--so-regras"));
    return Conferencia(fonte, permitidas).Confere(ortografia) == 0 ? 0 : 1;
}
