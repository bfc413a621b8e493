#include "core/machine/shared_routines.h"

#include <gtest/gtest.h>

#include "core/machine/chance.h"
#include <array>

namespace {

bool Combina(const char16_t *digitada, const char16_t *doBanco)
{
    QString a = QString::fromUtf16(digitada);
    QString b = QString::fromUtf16(doBanco);
    return ComparaPalavra(a, b);
}

/// Gives the same value again and again.
class AcasoFixo final : public Acaso
{
public:
    explicit AcasoFixo(double u) : m_u(u) {}
    double Uniforme() override { return m_u; }

private:
    double m_u;
};

} // namespace

TEST(ComparaPalavra, FoldsAccentsOneWayOnly)
{
    struct Caso
    {
        const char16_t *nome, *digitada, *doBanco;
        bool combina;
    };
    const std::array casos = {
        Caso{u"same", u"AÇÃO", u"AÇÃO", true},
        Caso{u"all accents left out", u"ACAO", u"AÇÃO", true},
        Caso{u"small letters", u"acão", u"AÇÃO", true},
        Caso{u"another accent", u"AÇÁO", u"AÇÃO", false},
        Caso{u"accent that the word lacks", u"CÁSA", u"CASA", false},
        Caso{u"cedilla that the word lacks", u"ÇASA", u"CASA", false},
        Caso{u"trema left out", u"MULLER", u"MÜLLER", true},
        Caso{u"too short", u"CAS", u"CASA", false},
        Caso{u"too long", u"CASAS", u"CASA", false},
        Caso{u"both empty", u"", u"", true},
        Caso{u"composed of two characters", u"ma\u0303e", u"MÃE", true},
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(Combina(caso.digitada, caso.doBanco), caso.combina)
            << QString::fromUtf16(caso.nome).toStdString();
    }
}

TEST(ComparaPalavra, PutsBothTextsInCapitals)
{
    QString a = QStringLiteral("ação");
    QString b = QStringLiteral("casa");
    ComparaPalavra(a, b);
    EXPECT_EQ(a, QStringLiteral("AÇÃO"));
    EXPECT_EQ(b, QStringLiteral("CASA"));
}

TEST(Sorteia, IsTrueForOneDrawLessThanThePercentage)
{
    AcasoFixo quarentaENove(0.489); // the draw 49
    AcasoFixo cinquenta(0.49);      // the draw 50
    EXPECT_TRUE(Sorteia(quarentaENove, 50));
    EXPECT_FALSE(Sorteia(cinquenta, 50));
    AcasoFixo menor(0.0);
    AcasoFixo maior(1.0 - 0x1p-53);
    EXPECT_FALSE(Sorteia(menor, 1));
    EXPECT_TRUE(Sorteia(maior, 101));
    EXPECT_FALSE(Sorteia(maior, 100));
}

TEST(AcasoMersenne, GivesTheStandardStreamAsFiftyThreeBits)
{
    // The ten thousandth number of the standard's generator with its default seed is known.
    AcasoMersenne acaso(5489);
    double ultimo = 0;
    for (int k = 0; k < 10000; ++k) {
        ultimo = acaso.Uniforme();
    }
    EXPECT_EQ(ultimo, static_cast<double>(9981545732273789042ULL >> 11) * 0x1p-53);
    EXPECT_EQ(acaso.Sorteios(), 10000U);
}

TEST(FormataTempo, CarriesMinutesIntoHoursWithoutLimit)
{
    struct Caso
    {
        int segundos;
        const char16_t *texto;
    };
    for (const auto &[segundos, texto] :
         {Caso{0, u"00:00:00"}, Caso{59, u"00:00:59"}, Caso{60, u"00:01:00"},
          Caso{3599, u"00:59:59"}, Caso{3600, u"01:00:00"}, Caso{86399, u"23:59:59"},
          Caso{360000, u"100:00:00"}}) {
        EXPECT_EQ(FormataTempo(segundos), QString::fromUtf16(texto));
    }
}

TEST(CampoTexto, SplitsWithBoundarySeparatorsOptional)
{
    const QString sep = QStringLiteral("!*!");
    const QString resposta = QStringLiteral("!*!x!*!1.6.0!*!!*!fim\r\n");
    EXPECT_EQ(CampoTexto(resposta, sep, 1), QStringLiteral("x"));
    EXPECT_EQ(CampoTexto(resposta, sep, 2), QStringLiteral("1.6.0"));
    EXPECT_EQ(CampoTexto(resposta, sep, 3), QString());
    EXPECT_EQ(CampoTexto(resposta, sep, 4), QStringLiteral("fim\r\n"));
    EXPECT_EQ(CampoTexto(resposta, sep, 5), QString());
    EXPECT_EQ(CampoTexto(QStringLiteral("a.b."), QStringLiteral("."), 2), QStringLiteral("b"));
    EXPECT_EQ(CampoTexto(QString(), sep, 1), QString());
    EXPECT_EQ(CampoTexto(resposta, sep, 0), QString());
}

TEST(TrocaTexto, SearchesAnewFromTheStart)
{
    const auto troca = [](const char16_t *t, const char16_t *v, const char16_t *n) {
        return TrocaTexto(QString::fromUtf16(t), QString::fromUtf16(v), QString::fromUtf16(n));
    };
    EXPECT_EQ(troca(u"a b c", u" ", u"%20"), QStringLiteral("a%20b%20c"));
    EXPECT_EQ(troca(u"aabb", u"ab", u""), QString()); // the hit that a removal makes is removed too
    EXPECT_EQ(troca(u"aa", u"a", u"aa"), QStringLiteral("aaaa"));
    EXPECT_EQ(troca(u"abc", u"", u"x"), QStringLiteral("abc"));
}

TEST(MaiorVersion, ComparesTheScoresAsText)
{
    struct Caso
    {
        const char16_t *local, *remota;
        bool maior;
    };
    for (const auto &[local, remota, maior] :
         {Caso{u"1.5.1", u"1.6.0", true}, Caso{u"1.5.1", u"1.5.1", false},
          Caso{u"1.5.1", u"1.10.0", true}, Caso{u"2.0.0", u"1.10.0", false},
          Caso{u"1.5.1", u"10.0.0", false}, Caso{u"1.5.1", u"2", true},
          Caso{u"1.5.1", u"1.5.2beta", true}, Caso{u"1.5.1", u"", false}}) {
        EXPECT_EQ(MaiorVersion(QString::fromUtf16(local), QString::fromUtf16(remota)), maior)
            << QString::fromUtf16(remota).toStdString();
    }
}
