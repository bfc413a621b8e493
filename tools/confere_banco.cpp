// Holds the question bank against every rule that a machine can judge:
//   confere_banco SOURCE.tsv ALLOWED.txt [--so-regras]
//
// ALLOWED.txt lists what the spelling dictionary lacks and what looks like two forms of one word
// and is not: one entry a line, "#" begins a comment; a pair is written WORD/WORD. --so-regras
// leaves the spelling out, for a machine without hunspell.

#include "core/files/whole_file.h"
#include "tools/bank_figures.h"
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
/// Puzzles built for the share of those with a telling clue.
constexpr int kJogosDeProva = 2000;

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
        ConfereFiguras();
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

    [[nodiscard]] static double Centesimos(int quantas, int de)
    {
        return 100.0 * quantas / std::max(1, de);
    }

    /// Prints a share with its aim and takes one beyond the bounds for a fault.
    void ConfereParte(const QString &nome, double parte, const QString &meta, double menor,
                      double maior)
    {
        const QString linha =
            QStringLiteral("%1: %2% (%3)").arg(nome).arg(parte, 0, 'f', 1).arg(meta);
        std::printf("%s\n", qPrintable(linha));
        if (parte < menor || parte > maior) {
            Falta(QStringLiteral("off the aim: ") + linha);
        }
    }

    void ConfereFiguras()
    {
        const FigurasDoBanco f = ContaFiguras(m_fonte.entradas, kJogosDeProva);
        for (size_t k = 0; k < kPartes.size(); ++k) {
            ConfereParte(QStringLiteral("words of %1 letters").arg(k + 3),
                         Centesimos(f.porTamanho[k], f.entradas),
                         QStringLiteral("aim %1%").arg(kPartes[k]), kPartes[k] * 2 / 3.0,
                         kPartes[k] * 4 / 3.0);
        }
        const auto parte = [&](const char16_t *nome, int quantas, const char16_t *meta,
                               double menor, double maior) {
            ConfereParte(QString::fromUtf16(nome), Centesimos(quantas, f.entradas),
                         QString::fromUtf16(meta), menor, maior);
        };
        parte(u"clues of one word", f.dicasDeUmaPalavra, u"at most 25%", 0, 25);
        parte(u"clues of three words or fewer", f.curtas, u"about 10%", 8, 15);
        parte(u"clues with an elided noun", f.elididas, u"at most 3.3%", 0, 100.0 / 30);
        parte(u"clues that are bare lists", f.listas, u"at most 3.3%", 0, 100.0 / 30);
        ConfereParte(QStringLiteral("puzzles with a telling clue, of %1").arg(f.jogos),
                     Centesimos(f.jogosQueContam, f.jogos), QStringLiteral("at most 8%"), 0, 8);
        std::printf("average clue: %.1f characters\n", f.mediaDaDica);
    }

    void ConfereDicas()
    {
        QHash<QString, int> formulas;
        for (const auto &entrada : m_fonte.entradas) {
            const QStringList palavras = PalavrasDaDica(entrada.dica);
            ++formulas[palavras.mid(0, 2).join(u' ')];
            const QString primeira = entrada.dica.left(1);
            if (primeira != primeira.toUpper()) {
                Falta(QStringLiteral("%1: no capital first").arg(entrada.linha));
            }
            if (entrada.dica.endsWith(u'.') && !entrada.dica.endsWith(QStringLiteral("..."))) {
                Falta(QStringLiteral("%1: a full stop at the end").arg(entrada.linha));
            }
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
