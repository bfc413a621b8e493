#include "tools/own_list.h"

#include "core/bank/question_bank.h"
#include "core/files/codepage.h"
#include "core/machine/shared_routines.h"
#include <algorithm>
#include <memory>
#include <QList>
#include <QStringDecoder>

namespace {

constexpr QStringView kSeparadores = u"\t;,";

/// One line of a list, read field by field.
class LeitorDeLinha
{
public:
    explicit LeitorDeLinha(QStringView linha) : m_linha(linha) {}

    /// The fields without blanks round them; empty ones at the end do not count.
    QStringList Campos()
    {
        QStringList campos;
        for (m_lugar = 0; m_lugar <= m_linha.size(); ++m_lugar) {
            campos << Campo();
            m_separador = m_lugar < m_linha.size() ? m_linha[m_lugar] : m_separador;
        }
        while (!campos.isEmpty() && campos.last().isEmpty()) {
            campos.removeLast();
        }
        return campos;
    }

    /// A field began with a quotation mark that nothing closes.
    [[nodiscard]] bool AspasAbertas() const { return m_aspasAbertas; }

private:
    [[nodiscard]] bool Separa(QChar letra) const
    {
        return m_separador.isNull() ? kSeparadores.contains(letra) : letra == m_separador;
    }

    /// The field at m_lugar, which moves on to the separator behind it or to the end.
    QString Campo()
    {
        const qsizetype inicio = m_lugar;
        while (m_lugar < m_linha.size() && m_linha[m_lugar] == u' ') {
            ++m_lugar;
        }
        QString citado;
        if (m_lugar < m_linha.size() && m_linha[m_lugar] == u'"' && LeCitado(citado)) {
            return citado.trimmed();
        }
        for (m_lugar = inicio; m_lugar < m_linha.size() && !Separa(m_linha[m_lugar]);) {
            ++m_lugar;
        }
        return m_linha.mid(inicio, m_lugar - inicio).trimmed().toString();
    }

    /// Reads a field in quotes. False where the quotes are part of the text: `"O" ou "uma"`.
    bool LeCitado(QString &texto)
    {
        for (++m_lugar; m_lugar < m_linha.size(); ++m_lugar) {
            if (m_linha[m_lugar] == u'"') {
                if (m_linha.mid(m_lugar + 1, 1) != u"\"") {
                    return FimDoCitado();
                }
                ++m_lugar;
            }
            texto += m_linha[m_lugar];
        }
        m_aspasAbertas = true;
        return false;
    }

    /// From the closing quotation mark on: only blanks may stand before the next separator.
    bool FimDoCitado()
    {
        do {
            ++m_lugar;
        } while (m_lugar < m_linha.size() && m_linha[m_lugar] == u' ');
        return m_lugar == m_linha.size() || Separa(m_linha[m_lugar]);
    }

    QStringView m_linha;
    qsizetype m_lugar = 0;
    /// The first separator of the line parts all of it, so that a clue may hold the others.
    QChar m_separador;
    bool m_aspasAbertas = false;
};

/// A character in words for a message: as it is, or by its number where nobody could see it.
QString NomeDaLetra(const QString &letra)
{
    const char32_t numero = letra.toUcs4().first();
    return QChar::isPrint(numero) ? u'"' + letra + u'"'
                                  : QStringLiteral("um caractere invisível (U+%1)")
                                        .arg(uint{numero}, 4, 16, QLatin1Char('0'));
}

QStringList FaltasDaPalavra(const QString &palavra)
{
    QStringList faltas;
    if (palavra.size() < kMenorPalavra || palavra.size() > kBytesPalavra) {
        faltas << QStringLiteral("a palavra \"%1\" tem %2 letras; use uma de %3 a %4")
                      .arg(palavra, QString::number(palavra.size()), QString::number(kMenorPalavra),
                           QString::number(kBytesPalavra));
    }
    if (const QString letra = LetraRecusada(palavra); !letra.isEmpty()) {
        faltas << QStringLiteral("a palavra \"%1\" tem %2, que não cabe numa casa; use só letras "
                                 "do português e algarismos, sem espaço nem hífen")
                      .arg(palavra, NomeDaLetra(letra));
    }
    return faltas;
}

/// The first character of a clue that the game could not show, or "".
QString LetraSemCodigo(const QString &dica)
{
    for (const char32_t letra : dica.toUcs4()) {
        const QString texto = QStringView(QChar::fromUcs4(letra)).toString();
        if (QChar::category(letra) == QChar::Other_Control || !CabeNoCodePage(texto)) {
            return texto;
        }
    }
    return {};
}

QStringList FaltasDaDica(const QString &dica)
{
    QStringList faltas;
    if (dica.size() > kBytesDica) {
        faltas << QStringLiteral("a dica tem %1 caracteres; encurte-a para %2, no máximo")
                      .arg(dica.size())
                      .arg(kBytesDica);
    }
    if (const QString letra = LetraSemCodigo(dica); !letra.isEmpty()) {
        faltas << QStringLiteral("a dica tem %1, que o jogo não mostra; troque-o ou apague-o")
                      .arg(NomeDaLetra(letra));
    }
    return faltas;
}

bool Cabecalho(const QStringList &campos)
{
    return campos.size() == 2 && campos[0].compare(u"palavra", Qt::CaseInsensitive) == 0 &&
           campos[1].compare(u"dica", Qt::CaseInsensitive) == 0;
}

class LeitorDeLista
{
public:
    ListaPropria lista;

    void LeLinha(int numero, const QString &texto)
    {
        LeitorDeLinha linha(texto);
        const QStringList campos = linha.Campos();
        if (campos.isEmpty() || campos[0].startsWith(u'#') || (numero == 1 && Cabecalho(campos))) {
            return;
        }
        ++m_pares;
        QStringList faltas = linha.AspasAbertas()
                                 ? QStringList{QStringLiteral(
                                       "as aspas não se fecham; feche-as ou tire-as, e escreva "
                                       "cada dica numa linha só")}
                                 : FaltasDosCampos(campos);
        if (faltas.isEmpty()) {
            const EntradaFonte entrada{numero, Maiusculas(campos[0]),
                                       campos[1].normalized(QString::NormalizationForm_C)};
            faltas = FaltasDaPalavra(entrada.palavra) + FaltasDaDica(entrada.dica);
            lista.entradas.push_back(entrada);
        }
        for (const QString &falta : faltas) {
            lista.faltas << QStringLiteral("linha %1: %2").arg(numero).arg(falta);
        }
    }

    void Termina()
    {
        if (m_pares == 0) {
            lista.faltas << QStringLiteral("a lista não tem nenhuma palavra; escreva em cada linha "
                                           "uma palavra, um ponto e vírgula (;) e a dica");
        } else if (m_pares > kMaxPerguntas) {
            lista.faltas << QStringLiteral("a lista tem %1 palavras, e um jogo usa %2 no máximo; "
                                           "tire %3")
                                .arg(m_pares)
                                .arg(kMaxPerguntas)
                                .arg(m_pares - kMaxPerguntas);
        }
    }

private:
    static QStringList FaltasDosCampos(const QStringList &campos)
    {
        if (campos.size() < 2) {
            return {QStringLiteral("falta a dica de \"%1\"; escreva-a depois da palavra e de um "
                                   "ponto e vírgula (;)")
                        .arg(campos[0].left(40))};
        }
        if (campos[0].isEmpty()) {
            return {QStringLiteral("falta a palavra; escreva-a antes da dica")};
        }
        if (campos.size() > 2) {
            return {QStringLiteral("há %1 colunas, e a lista só tem duas, palavra e dica; se a "
                                   "dica tem o sinal que separa as colunas, ponha-a entre aspas")
                        .arg(campos.size())};
        }
        return {};
    }

    int m_pares = 0;
};

/// Why the file is no text at all that a list could be, or "".
QString FaltaDoArquivo(const QByteArray &bytes)
{
    if (bytes.size() > kMaximoDaLista) {
        return QStringLiteral("o arquivo é grande demais para uma lista de palavras");
    }
    if (bytes.startsWith("PK\x03\x04") || bytes.startsWith("\xD0\xCF\x11\xE0")) {
        return QStringLiteral("o arquivo é uma planilha ou um documento; abra-o e salve-o como "
                              "\"CSV UTF-8\"");
    }
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        return QStringLiteral("o texto está em UTF-16; salve-o como \"CSV UTF-8\" ou em UTF-8");
    }
    if (bytes.contains('\0')) {
        return QStringLiteral("o arquivo não é um texto; escolha a lista de palavras e dicas");
    }
    return {};
}

} // namespace

ListaPropria LeLista(const QByteArray &bytes)
{
    LeitorDeLista leitor;
    if (const QString falta = FaltaDoArquivo(bytes); !falta.isEmpty()) {
        leitor.lista.faltas << falta;
        return leitor.lista;
    }
    QByteArray plano = bytes.mid(bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0);
    plano.replace("\r\n", "\n").replace('\r', '\n');
    int numero = 0;
    for (const QByteArray &linha : plano.split('\n')) {
        ++numero;
        QStringDecoder decodificador(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString texto = decodificador.decode(linha);
        if (decodificador.hasError()) {
            // The whole file is in another encoding; what else it lacks would be noise.
            leitor.lista.faltas = {QStringLiteral("linha %1: o texto não está em UTF-8; na "
                                                  "planilha, salve a lista como \"CSV UTF-8\"")
                                       .arg(numero)};
            return leitor.lista;
        }
        leitor.LeLinha(numero, texto);
    }
    leitor.Termina();
    return leitor.lista;
}

bool PareceBanco(const QByteArray &bytes)
{
    // The last byte of a record is nobody's and may be anything.
    for (qsizetype k = 0; k < bytes.size(); ++k) {
        if (static_cast<unsigned char>(bytes[k]) < 0x20 &&
            k % kBytesRegistro < kBytesRegistro - 1) {
            return false;
        }
    }
    return bytes.size() >= kBytesRegistro;
}

QByteArray ExtraiLista(const QByteArray &registros)
{
    const auto banco = std::make_unique<BancoPerguntas>();
    CarregaRegistros(*banco, registros);
    QByteArray lista;
    for (size_t k = 1; k <= static_cast<size_t>(banco->QtdPerguntas); ++k) {
        if (banco->BancoPalavra[k].isEmpty()) {
            continue;
        }
        const QString dica = banco->BancoDica[k];
        const QString linha = banco->BancoPalavra[k] + u'\t';
        const QString citada = u'"' + QString(dica).replace(u'"', QStringLiteral("\"\"")) + u'"';
        // Quotes only where the clue would not be read back as it stands.
        const QString simples = linha + dica;
        LeitorDeLinha leitor(simples);
        const bool clara = leitor.Campos().value(1) == dica && !leitor.AspasAbertas();
        lista += (clara ? simples : linha + citada).toUtf8() + '\n';
    }
    return lista;
}
