#include "core/machine/shared_routines.h"

#include <gtest/gtest.h>

#include "core/machine/chance.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Compares, and says by "x" that both texts have come back in capitals.
QString Compara(QString digitada, QString doBanco)
{
    const bool combina = ComparaPalavra(digitada, doBanco);
    return (combina ? u"= "_s : u"/ "_s) + digitada + u' ' + doBanco;
}

/// Gives the same value again and again.
struct AcasoFixo final : Acaso
{
    explicit AcasoFixo(double valor) : u(valor) {}
    double Uniforme() override { return u; }
    double u;
};

} // namespace

TEST(ComparaPalavra, FoldsAccentsOneWayOnly)
{
    const QString simples = u"AEIOUC"_s;
    const QStringList acentuadas = {u"ÁÀÃÂ"_s, u"ÉÈÊ"_s, u"ÍÌÎ"_s, u"ÓÒÕÔ"_s, u"ÚÙÛÜ"_s, u"Ç"_s};
    for (qsizetype k = 0; k < simples.size(); ++k) {
        for (const QString letra : acentuadas[k]) {
            for (const QString plana : simples) {
                EXPECT_EQ(Compara(plana, letra)[0] == u'=', plana == simples[k])
                    << qPrintable(letra);
                EXPECT_EQ(Compara(letra, plana)[0], u'/') << qPrintable(letra);
            }
        }
    }
    EXPECT_EQ(Compara(u"acão"_s, u"ação"_s), u"= ACÃO AÇÃO");
    EXPECT_EQ(Compara(u"ma\u0303e"_s, u"MÃE"_s), u"= MÃE MÃE") << "two characters for one";
    EXPECT_EQ(Compara(u"AÇÁO"_s, u"AÇÃO"_s)[0], u'/');
    EXPECT_EQ(Compara(u"CAS"_s, u"CASA"_s)[0], u'/');
    EXPECT_EQ(Compara(u"CASAS"_s, u"CASA"_s)[0], u'/');
    EXPECT_EQ(Compara({}, {})[0], u'=');
}

TEST(Acaso, DrawsByTheStandardsStreamAndIsTrueForOneDrawLessThanThePercentage)
{
    AcasoFixo quarentaENove(0.489); // the draw 49
    AcasoFixo cinquenta(0.49);      // the draw 50
    EXPECT_TRUE(Sorteia(quarentaENove, 50));
    EXPECT_FALSE(Sorteia(cinquenta, 50));
    // The ten thousandth number of the standard's generator with its default seed is known.
    AcasoMersenne acaso(5489);
    double ultimo = 0;
    for (int k = 0; k < 10000; ++k) {
        ultimo = acaso.Uniforme();
    }
    EXPECT_EQ(ultimo, static_cast<double>(9981545732273789042ULL >> 11) * 0x1p-53);
    EXPECT_EQ(acaso.Sorteios(), 10000U);
}

TEST(SharedRoutines, TurnTextsAndNumbersIntoOthers)
{
    const QString sep = u"!*!"_s;
    const QString resposta = u"!*!x!*!1.6.0!*!!*!fim\r\n"_s;
    const std::pair<QString, QString> casos[] = {
        {FormataTempo(0), u"00:00:00"_s},
        {FormataTempo(3599), u"00:59:59"_s},
        {FormataTempo(360060), u"100:01:00"_s},
        {CampoTexto(resposta, sep, 0), {}},
        {CampoTexto(resposta, sep, 1), u"x"_s},
        {CampoTexto(resposta, sep, 2), u"1.6.0"_s},
        {CampoTexto(resposta, sep, 3), {}},
        {CampoTexto(resposta, sep, 4), u"fim\r\n"_s},
        {CampoTexto(resposta, sep, 5), {}},
        {CampoTexto(u"a.b."_s, u"."_s, 2), u"b"_s},
        {TrocaTexto(u"a b c"_s, u" "_s, u"%20"_s), u"a%20b%20c"_s},
        {TrocaTexto(u"aabb"_s, u"ab"_s, {}), {}}, // what a removal makes is removed too
        {TrocaTexto(u"aa"_s, u"a"_s, u"aa"_s), u"aaaa"_s},
        {TrocaTexto(u"abc"_s, {}, u"x"_s), u"abc"_s},
    };
    for (const auto &[resultado, esperado] : casos) {
        EXPECT_EQ(resultado.toStdString(), esperado.toStdString());
    }
}

TEST(MaiorVersion, ComparesTheScoresAsText)
{
    for (const QString &caso :
         {u"1.5.1 < 1.6.0"_s, u"1.5.1 > 1.5.1"_s, u"1.5.1 < 1.10.0"_s, u"2.0.0 > 1.10.0"_s,
          u"1.5.1 > 10.0.0"_s, u"1.5.1 < 2"_s, u"1.5.1 < 1.5.2b"_s, u"1.5.1 > "_s}) {
        const QStringList partes = caso.split(u' ');
        EXPECT_EQ(MaiorVersion(partes[0], partes[2]), partes[1] == u"<") << qPrintable(caso);
    }
}
