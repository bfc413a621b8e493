#include "core/machine/shared_routines.h"

#include <QStringList>

namespace {

constexpr QStringView kAcentuadas = u"ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜÇ";
constexpr QStringView kSimples = u"AEIOUAEIOUAOAEIOUUC";
static_assert(kAcentuadas.size() == kSimples.size());

bool CombinaLetra(QChar digitada, QChar doBanco)
{
    if (digitada == doBanco) {
        return true;
    }
    const auto posicao = kAcentuadas.indexOf(doBanco);
    return posicao >= 0 && digitada == kSimples[posicao];
}

QString DoisDigitos(int numero)
{
    return QString::number(numero).rightJustified(2, u'0');
}

/// The leading digits of `texto` as a number, 0 without any. Larger numbers than fit are held at
/// the limit.
qint64 DigitosIniciais(const QString &texto)
{
    constexpr qint64 kLimite = 1'000'000'000;
    qint64 numero = 0;
    for (const QChar letra : texto.trimmed()) {
        if (letra < u'0' || letra > u'9') {
            break;
        }
        numero = qMin(kLimite, numero * 10 + (letra.unicode() - u'0'));
    }
    return numero;
}

QString Pontuacao(const QString &versao)
{
    const QString ponto = QStringLiteral(".");
    return QString::number(DigitosIniciais(CampoTexto(versao, ponto, 1)) * 100 +
                           DigitosIniciais(CampoTexto(versao, ponto, 2)) * 10 +
                           DigitosIniciais(CampoTexto(versao, ponto, 3)));
}

} // namespace

bool ComparaPalavra(QString &a, QString &b)
{
    a = Maiusculas(a);
    b = Maiusculas(b);
    if (a.size() != b.size()) {
        return false;
    }
    for (qsizetype i = 0; i < b.size(); ++i) {
        if (!CombinaLetra(a[i], b[i])) {
            return false;
        }
    }
    return true;
}

QString Maiusculas(const QString &texto)
{
    return texto.normalized(QString::NormalizationForm_C).toUpper();
}

QString FormataTempo(int segundos)
{
    const int minutos = segundos / 60;
    return DoisDigitos(minutos / 60) + u':' + DoisDigitos(minutos % 60) + u':' +
           DoisDigitos(segundos % 60);
}

QString CampoTexto(const QString &texto, const QString &separador, int n)
{
    if (separador.isEmpty() || n < 1) {
        return {};
    }
    QString inteiro = texto;
    if (!inteiro.startsWith(separador)) {
        inteiro.prepend(separador);
    }
    if (!inteiro.endsWith(separador)) {
        inteiro.append(separador);
    }
    qsizetype inicio = 0;
    for (int campo = 1;; ++campo) {
        inicio += separador.size();
        const auto fim = inteiro.indexOf(separador, inicio);
        if (fim < 0) {
            return {};
        }
        if (campo == n) {
            return inteiro.sliced(inicio, fim - inicio);
        }
        inicio = fim;
    }
}

QString TrocaTexto(const QString &texto, const QString &velho, const QString &novo)
{
    QString resultado = texto;
    if (velho.isEmpty()) {
        return resultado;
    }
    if (novo.contains(velho)) {
        return resultado.replace(velho, novo);
    }
    for (auto posicao = resultado.indexOf(velho); posicao >= 0;
         posicao = resultado.indexOf(velho)) {
        resultado.replace(posicao, velho.size(), novo);
    }
    return resultado;
}

bool MaiorVersion(const QString &vLocal, const QString &vRemota)
{
    return Pontuacao(vRemota) > Pontuacao(vLocal);
}
