#include "tools/house_rules.h"

#include "core/bank/question_bank.h"
#include "core/files/codepage.h"
#include <QHash>
#include <QRegularExpression>
#include <QStringDecoder>

namespace {

constexpr int kMenorDica = 6;

QString FaltaDaPalavra(const QString &palavra)
{
    if (palavra.size() < kMenorPalavra || palavra.size() > kBytesPalavra) {
        return QStringLiteral("the word has %1 letters, not 3 to 15").arg(palavra.size());
    }
    const QString recusada = LetraRecusada(palavra);
    return recusada.isEmpty()
               ? QString()
               : QStringLiteral("the word holds \"%1\", which no cell accepts").arg(recusada);
}

QString FaltaDaDica(const QString &dica)
{
    if (!CabeNoCodePage(dica)) {
        return QStringLiteral("the clue holds a character outside Windows-1252");
    }
    if (dica.size() < kMenorDica || dica.size() > kBytesDica) {
        return QStringLiteral("the clue has %1 characters, not 6 to 60").arg(dica.size());
    }
    if (dica != dica.simplified()) {
        return QStringLiteral(
            "the clue has a blank at an end, a double blank or a control character");
    }
    if (dica.startsWith(u'"') && dica.endsWith(u'"')) {
        return QStringLiteral("the clue begins and ends with a quotation mark, and would come back "
                              "from a saved game without the two");
    }
    return {};
}

QString FaltaDoPar(const QString &palavra, const QString &dica)
{
    const QString inteira = SemAcentos(palavra);
    const QString radical = RadicalDe(palavra);
    for (const QString &termo : PalavrasDaDica(dica)) {
        if (termo == inteira || (radical.size() > kMenorPalavra && termo.contains(radical))) {
            return QStringLiteral("the clue holds the answer or its stem: \"%1\"").arg(termo);
        }
    }
    return {};
}

class Leitor
{
public:
    FonteBanco fonte;

    void LeLinha(int linha, const QString &texto)
    {
        const auto campos = texto.split(u'\t');
        if (campos.size() != 2) {
            Anota(linha, QStringLiteral("not a word, one tab and a clue"));
            return;
        }
        const EntradaFonte entrada{linha, campos[0], campos[1]};
        for (const QString &falta : {FaltaDaPalavra(entrada.palavra), FaltaDaDica(entrada.dica),
                                     FaltaDoPar(entrada.palavra, entrada.dica)}) {
            Anota(linha, falta);
        }
        Repetida(m_palavras, entrada.palavra, linha, QStringLiteral("the word"));
        Repetida(m_dicas, entrada.dica, linha, QStringLiteral("the clue"));
        if (!fonte.entradas.empty() &&
            entrada.palavra.toUtf8() < fonte.entradas.back().palavra.toUtf8()) {
            Anota(linha,
                  QStringLiteral("out of order behind \"%1\"").arg(fonte.entradas.back().palavra));
        }
        fonte.entradas.push_back(entrada);
    }

    void Anota(int linha, const QString &falta)
    {
        if (!falta.isEmpty()) {
            fonte.faltas << QStringLiteral("%1: %2").arg(linha).arg(falta);
        }
    }

    /// Two entries each of whose clues names the other's answer: the first solved gives the second.
    void ConferePares()
    {
        QHash<QString, const EntradaFonte *> porPalavra;
        for (const EntradaFonte &entrada : fonte.entradas) {
            porPalavra.insert(SemAcentos(entrada.palavra), &entrada);
        }
        for (const EntradaFonte &entrada : fonte.entradas) {
            for (const QString &termo : PalavrasDaDica(entrada.dica)) {
                const EntradaFonte *outra = porPalavra.value(termo);
                if (termo.size() >= kMenorCitada && outra != nullptr &&
                    outra->linha < entrada.linha &&
                    PalavrasDaDica(outra->dica).contains(SemAcentos(entrada.palavra))) {
                    Anota(entrada.linha,
                          QStringLiteral("the clue names %1, whose clue in line %2 names %3")
                              .arg(outra->palavra)
                              .arg(outra->linha)
                              .arg(entrada.palavra));
                }
            }
        }
    }

private:
    void Repetida(QHash<QString, int> &vistas, const QString &texto, int linha, const QString &oQue)
    {
        if (vistas.contains(texto)) {
            Anota(linha,
                  QStringLiteral("%1 stands in line %2 already").arg(oQue).arg(vistas[texto]));
        }
        vistas.insert(texto, linha);
    }

    QHash<QString, int> m_palavras;
    QHash<QString, int> m_dicas;
};

} // namespace

FonteBanco LeFonte(const QByteArray &utf8)
{
    Leitor leitor;
    QStringDecoder decodificador(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString texto = decodificador.decode(utf8);
    if (decodificador.hasError()) {
        leitor.Anota(1, QStringLiteral("the source is not UTF-8"));
        return leitor.fonte;
    }
    auto linhas = texto.split(u'\n');
    if (!linhas.isEmpty() && linhas.last().isEmpty()) {
        linhas.removeLast();
    }
    for (qsizetype k = 0; k < linhas.size(); ++k) {
        leitor.LeLinha(static_cast<int>(k) + 1, linhas[k]);
    }
    leitor.ConferePares();
    if (leitor.fonte.entradas.size() > size_t{kMaxPerguntas}) {
        leitor.Anota(kMaxPerguntas + 1, QStringLiteral("more than %1 entries").arg(kMaxPerguntas));
    }
    return leitor.fonte;
}

QString SemAcentos(const QString &texto)
{
    QString plano;
    for (const QChar letra : texto.toUpper().normalized(QString::NormalizationForm_D)) {
        if (!letra.isMark()) {
            plano += letra;
        }
    }
    return plano;
}

QString RadicalDe(const QString &palavra)
{
    const QString inteira = SemAcentos(palavra);
    return inteira.left(qMax<qsizetype>(4, inteira.size() - 2));
}

QStringList PalavrasDaDica(const QString &dica)
{
    static const QRegularExpression separa(QStringLiteral("[^A-Z0-9]+"));
    return SemAcentos(dica).split(separa, Qt::SkipEmptyParts);
}
