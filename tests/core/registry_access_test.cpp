#include "core/registry/registry_access.h"

#include <gtest/gtest.h>

#include "core/registry/registry_store_portable.h"
#include "core/registry/registry_text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A registry of which one root can only be read by this user.
struct RegistroRestrito : RegistroPortatil
{
    ChaveRegistro soLeitura = 0;

    CodigoRegistro RegOpenKeyExA(ChaveRegistro base, const QByteArray &sub, std::uint32_t acesso,
                                 ChaveRegistro &chave) override
    {
        return base == soLeitura && acesso != kAcessoLeitura
                   ? CodigoRegistro::AcessoNegado
                   : RegistroPortatil::RegOpenKeyExA(base, sub, acesso, chave);
    }
};

class RegistryAccess : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(armazem.QtdAbertas(), 0) << "a key was left open"; }

    /// Writes a value as another program would.
    void Grava(const QByteArray &nome, std::uint32_t tipo, const QByteArray &dados)
    {
        ChaveRegistro chave = 0;
        ASSERT_EQ(armazem.RegCreateKeyA(0x80000001, "k", chave), CodigoRegistro::Sucesso);
        ASSERT_EQ(armazem.RegSetValueExA(chave, nome, tipo, dados), CodigoRegistro::Sucesso);
        armazem.RegCloseKey(chave);
    }

    RegistroRestrito armazem;
    clsRegistryAccess r{armazem};
    const QString k = u"HKCU\\k"_s;
};

} // namespace

TEST_F(RegistryAccess, NamesOneKeyByManyPathsAndReachesEachRootByBothNames)
{
    r.WriteDWORD(u"hkey_current_user\\Software\\Ação"_s, u"Número"_s, 7);
    for (const QString &caminho : {u"HKCU\\Software\\Ação"_s, u"HKCUqualquer\\software\\AÇÃO"_s,
                                   u"Hkey_Current_User\\SOFTWARE\\ação"_s}) {
        EXPECT_EQ(r.ReadDWORD(caminho, u"NÚMERO"_s), 7) << qPrintable(caminho);
    }
    for (const QString &caminho :
         {u""_s, u"HKXX\\Software\\Ação"_s, u"Software\\Ação"_s, u"\\HKCU\\Software"_s, u"HKC"_s,
          u"HKLM\\Software\\Ação"_s, u"HKCU\\Software\\Acao"_s}) {
        EXPECT_FALSE(r.KeyExists(caminho)) << qPrintable(caminho);
    }
    // In the order of the roots' numbers.
    const QStringList raizes = u"CR CLASSES_ROOT CU CURRENT_USER LM LOCAL_MACHINE US USERS "
                               "PD PERFORMANCE_DATA CC CURRENT_CONFIG DD DYN_DATA"_s.split(u' ');
    for (qsizetype n = 0; n < kQtdRaizes; ++n) {
        const QString curto = u"HK"_s + raizes[2 * n];
        const QString longo = u"HKEY_"_s + raizes[2 * n + 1];
        // A long root name is turned into the short one inside a sub-path too.
        EXPECT_NE(r.CreateKey(longo.toLower() + u"\\x"_s + longo), 0);
        ChaveRegistro chave = 0;
        EXPECT_EQ(
            armazem.RegOpenKeyA(kPrimeiraRaiz + ChaveRegistro(n), ("x" + curto.toLatin1()), chave),
            CodigoRegistro::Sucesso);
        armazem.RegCloseKey(chave);
        EXPECT_EQ(RaizesPorExtenso(curto.toLower() + u"\\HKx"_s + curto),
                  longo + u"\\HKx"_s + longo);
        EXPECT_NE(r.KillKey(curto), 0) << "a root opens, and stays";
    }
}

TEST_F(RegistryAccess, CreatesListsAndKillsKeys)
{
    QStringList nomes = {u"velho"_s};
    EXPECT_EQ(r.EnumKeys(k, nomes), -1);
    EXPECT_TRUE(nomes.isEmpty());
    EXPECT_EQ(r.KillKey(k), 0);
    EXPECT_FALSE(r.HaveSubkey(k));
    for (const QString &nome : {u"z\\fundo"_s, QString(254, u'n'), QString(255, u'm'), u"A"_s}) {
        EXPECT_NE(r.CreateKey(k + u'\\' + nome), 0); // that of 255 letters has no room in a list
    }
    EXPECT_EQ(r.EnumKeys(k, nomes), 3);
    EXPECT_EQ(nomes, QStringList({u"z"_s, QString(254, u'n'), u"A"_s}));
    EXPECT_TRUE(r.HaveSubkey(k));
    EXPECT_FALSE(r.HaveSubkey(k + u"\\A"_s));
    EXPECT_NE(r.KillKey(k + u"\\z"_s), 0); // it has a subkey, and stays
    EXPECT_TRUE(r.KeyExists(k + u"\\z\\fundo"_s));
    EXPECT_NE(r.KillKey(k + u"\\a"_s), 0);
    EXPECT_FALSE(r.KeyExists(k + u"\\A"_s));
}

TEST_F(RegistryAccess, ReadsWhatItWroteAndWhatOthersWrote)
{
    r.CreateKeyIfDoesntExists = false;
    EXPECT_EQ(r.WriteDWORD(k, u"d"_s, 1) + r.WriteBinary(k, u"b"_s, u"01"_s), 0);
    EXPECT_FALSE(r.KeyExists(k));
    EXPECT_NE(r.WriteString(k, u"s"_s, u"1"_s), 0) << "makes the key always";
    r.CreateKeyIfDoesntExists = true;
    EXPECT_NE(r.WriteBinary(u"HKCU\\b"_s, u"b"_s, u"01"_s), 0);
    EXPECT_NE(r.WriteDWORD(u"HKCU\\d"_s, u"d"_s, 1), 0);

    EXPECT_EQ(r.ReadString(k, u"falta"_s), QString(1, QChar(u'\0')));
    for (const QString &texto : {u"“É” €"_s, QString(), QString(1024, u'x')}) {
        r.WriteString(k, u"s"_s, texto);
        EXPECT_EQ(r.ReadString(k, u"S"_s), texto);
        EXPECT_EQ(r.ReadString(k, u"s"_s, u"-"_s, false, true), texto);
    }
    r.WriteString(k, u"s"_s, QString(1025, u'x'));
    EXPECT_EQ(r.ReadString(k, u"s"_s, u"-"_s), u"-");
    for (const QByteArray &ateONul : {"abc"_ba, ""_ba}) {
        Grava("nul", kTipoTexto, ateONul + "\0xyz\0"_ba);
        EXPECT_EQ(r.ReadString(k, u"nul"_s).toLatin1(), ateONul);
    }
    r.WriteString(k, u"@"_s, u"padrão"_s);
    EXPECT_EQ(r.ReadString(k, {}) + r.ReadString(k, u"@"_s, u"-"_s), u"padrão-");

    for (const std::int32_t numero : {0, 96, -2, 0x12345678, INT32_MAX, INT32_MIN}) {
        r.WriteDWORD(k, u"d"_s, numero);
        EXPECT_EQ(r.ReadDWORD(k, u"d"_s, 5), numero);
    }
    EXPECT_EQ(r.ReadDWORD(k, u"falta"_s), -1);
    for (const char *bytes : {"abc", "abcd", "abcde"}) {
        Grava("d", kTipoBinario, bytes);
        EXPECT_EQ(r.ReadDWORD(k, u"d"_s, 5), strlen(bytes) == 4 ? 0x64636261 : 5) << bytes;
    }
    EXPECT_EQ(r.ReadBinary(k, u"falta"_s, u"-"_s), u"-");
    for (const int tamanho : {0, 1, 256, 5000}) {
        const QString texto = AparaBrancos(u"00 FF 7A "_s.repeated(tamanho).left(3 * tamanho));
        EXPECT_NE(r.WriteBinary(k, u"b"_s, texto), 0);
        EXPECT_EQ(r.ReadBinary(k, u"b"_s, u"-"_s), texto);
    }
}

TEST_F(RegistryAccess, FallsBackFromTheMachineToTheUserWhereAsked)
{
    const QString maquina = u"HKLM\\k"_s;
    const auto le = [&](const QString &nome, bool hkcu, bool total = false) {
        return r.ReadString(maquina, nome, u"-"_s, hkcu, total);
    };
    r.WriteString(maquina, u"s"_s, u"da máquina"_s);
    armazem.soLeitura = 0x80000002;
    QStringList nomes;
    EXPECT_FALSE(r.KeyExists(maquina)); // it may only be read
    EXPECT_EQ(r.EnumKeys(maquina, nomes), 0);
    EXPECT_EQ(r.WriteString(maquina, u"s"_s, u"x"_s), 0);
    EXPECT_FALSE(r.KeyExists(k));
    EXPECT_NE(r.WriteString(maquina, u"s"_s, u"do usuário"_s, true), 0);
    EXPECT_NE(r.WriteString(maquina, u"só dele"_s, u"1"_s, true), 0);
    EXPECT_EQ(le(u"s"_s, true) + le(u"s"_s, true, true), u"da máquinado usuário");
    EXPECT_EQ(le(u"só dele"_s, true) + le(u"só dele"_s, false), u"1-");
    EXPECT_EQ(r.ReadString(u"HKUS\\k"_s, u"s"_s, u"-"_s, true), u"-");
    EXPECT_EQ(r.WriteString(u"HKXX\\k"_s, u"s"_s, u"x"_s, true), 0);
}

TEST_F(RegistryAccess, TurnsHexadecimalTextIntoBytesAndBack)
{
    const std::pair<QString, QByteArray> casos[] = {
        {u" 4 1 0a "_s, "A\n"},
        {u"00"_s, QByteArray(1, '\0')},
        {u"   "_s, ""},
        {u"4"_s, ""}, // half a byte: none
        {u"414"_s, "A\x04"},
        {u"41424"_s, "AB"}, // one and a half: two; two and a half: two
        {u"4142434"_s, "ABC\x04"},
        {u"FFfe"_s, "\xFF\xFE"},
        {u"4G G4"_s, "\x04\0"_ba},
    };
    for (const auto &[texto, bytes] : casos) {
        EXPECT_EQ(clsRegistryAccess::StrToBin(texto), bytes) << qPrintable(texto);
    }
    EXPECT_EQ(clsRegistryAccess::BinToStr("\0\xFF"_ba), u" 00 FF");
    EXPECT_EQ(clsRegistryAccess::BinToStr({}), QString());
    for (const QString &texto : {u"0"_s, u" 0123456789abcdefABCDEF "_s}) {
        EXPECT_TRUE(clsRegistryAccess::isBinValid(texto)) << qPrintable(texto);
    }
    for (const QString &texto : {u"  "_s, u"0G"_s, u"0a,ff"_s, u"é"_s, u"1\t2"_s, u"１"_s}) {
        EXPECT_FALSE(clsRegistryAccess::isBinValid(texto)) << qPrintable(texto);
    }
}

TEST_F(RegistryAccess, ListsAndKillsValues)
{
    QStringList nomes = {u"velho"_s};
    std::vector<ValorListado> valores(1);
    EXPECT_EQ(r.EnumValues(k, nomes, valores), -1);
    EXPECT_TRUE(nomes.isEmpty() && valores.empty());
    EXPECT_EQ(r.KillValue(k, u"s"_s), 0);
    Grava("outro", 7, "x");
    Grava(" nome ", kTipoTexto, "s");
    Grava(QByteArray(255, 'n'), kTipoTexto, "has no room in a list");
    Grava("longo", kTipoTexto, QByteArray(1025, 'x'));
    Grava("curto", kTipoDword, "abc");
    Grava("d", kTipoDword, "\xF9\xFF\xFF\xFF");
    Grava("b", kTipoBinario, QByteArray(300, 'a'));
    EXPECT_EQ(r.EnumValues(k, nomes, valores), 6);
    EXPECT_EQ(nomes.join(u' '), u"outro nome longo curto d b");
    EXPECT_EQ(valores, (std::vector<ValorListado>{std::monostate(), u"s"_s, QString(), 0, -7,
                                                  u"61 "_s.repeated(299) + u"61"_s}));
    EXPECT_EQ(r.EnumValues(k, nomes, valores, kTipoDword), 2);
    EXPECT_EQ(nomes, QStringList({u"curto"_s, u"d"_s}));

    EXPECT_TRUE(r.ValueExists(k, u"longo"_s));
    EXPECT_NE(r.KillValue(k, u"LONGO"_s), 0);
    EXPECT_NE(r.KillValue(k, u"longo"_s), 0); // the key is there, that is enough
    EXPECT_FALSE(r.ValueExists(k, u"longo"_s));
    EXPECT_FALSE(r.ValueExists(u"HKCU\\falta"_s, u"d"_s));
}

#ifndef Q_OS_WIN
// Where the system has a registry of its own, that holds what it holds.
TEST(RegistroDoSistema, StartsWithTheValuesThatTheProgramReads)
{
    const auto armazem = AbreRegistroDoSistema({120, u"/home/conceição/.cache"_s});
    clsRegistryAccess r(*armazem);
    EXPECT_EQ(r.ReadDWORD(u"HKCU\\Control Panel\\Desktop\\WindowMetrics"_s, u"AppliedDPI"_s), 120);
    const QString pastas =
        u"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s;
    EXPECT_EQ(r.ReadString(pastas, u"Cache"_s), u"/home/conceição/.cache");
}
#endif
