#include "core/registry/registry_access.h"

#include <gtest/gtest.h>

#include "core/registry/registry_store_portable.h"
#include "core/registry/registry_text.h"
#include <array>

namespace {

QString T(const char16_t *texto)
{
    return QString::fromUtf16(texto);
}

/// A registry of which one root can only be read by this user.
class RegistroRestrito : public RegistroPortatil
{
public:
    ChaveRegistro soLeitura = 0;

    CodigoRegistro RegCreateKeyA(ChaveRegistro base, const QByteArray &sub,
                                 ChaveRegistro &chave) override
    {
        return base == soLeitura ? CodigoRegistro::AcessoNegado
                                 : RegistroPortatil::RegCreateKeyA(base, sub, chave);
    }
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
    clsRegistryAccess registro{armazem};
    const QString k = T(u"HKCU\\k");
};

} // namespace

TEST_F(RegistryAccess, NamesOneKeyByManyPaths)
{
    ASSERT_NE(registro.WriteDWORD(T(u"hkey_current_user\\Software\\Ação"), T(u"Número"), 7), 0);
    for (const char16_t *caminho :
         {u"HKCU\\Software\\Ação", u"HKEY_CURRENT_USER\\software\\AÇÃO", u"hkcu\\SOFTWARE\\ação",
          u"HKCUqualquer\\Software\\Ação", u"Hkey_Current_User\\Software\\Ação"}) {
        EXPECT_EQ(registro.ReadDWORD(T(caminho), T(u"NÚMERO")), 7) << T(caminho).toStdString();
    }
    for (const char16_t *caminho :
         {u"", u"HKXX\\Software\\Ação", u"Software\\Ação", u"\\HKCU\\Software", u"HKC",
          u"HKLM\\Software\\Ação", u"HKCU\\Software\\Acao"}) {
        EXPECT_FALSE(registro.KeyExists(T(caminho))) << T(caminho).toStdString();
        EXPECT_EQ(registro.ReadDWORD(T(caminho), T(u"NÚMERO")), -1);
    }
    // A long root name is turned into the short one inside a sub-path too.
    ASSERT_NE(registro.CreateKey(T(u"HKLM\\xHkey_Usersy\\HKEY_CLASSES_ROOT")), 0);
    EXPECT_TRUE(registro.KeyExists(T(u"HKLM\\xHKUSy\\hkcr")));
}

TEST_F(RegistryAccess, ReachesEachRootByBothNames)
{
    const std::array<std::pair<const char16_t *, const char16_t *>, 7> raizes = {{
        {u"HKCR", u"HKEY_CLASSES_ROOT"},
        {u"HKCU", u"HKEY_CURRENT_USER"},
        {u"HKLM", u"HKEY_LOCAL_MACHINE"},
        {u"HKUS", u"HKEY_USERS"},
        {u"HKPD", u"HKEY_PERFORMANCE_DATA"},
        {u"HKCC", u"HKEY_CURRENT_CONFIG"},
        {u"HKDD", u"HKEY_DYN_DATA"},
    }};
    ChaveRegistro chave = 0;
    for (std::size_t n = 0; n < raizes.size(); ++n) {
        const auto &[curto, longo] = raizes[n];
        EXPECT_NE(registro.CreateKey(T(longo) + T(u"\\") + T(curto)), 0);
        // The table stands in the order of the roots' numbers.
        EXPECT_EQ(armazem.RegOpenKeyA(0x80000000 + n, T(curto).toLatin1(), chave),
                  CodigoRegistro::Sucesso);
        armazem.RegCloseKey(chave);
        EXPECT_EQ(RaizesPorExtenso(T(curto).toLower() + T(u"\\x") + T(curto)),
                  T(longo) + T(u"\\x") + T(longo));
        EXPECT_TRUE(registro.KeyExists(T(curto)));
        EXPECT_NE(registro.KillKey(T(curto)), 0); // a root opens, and stays
    }
    EXPECT_EQ(RaizesPorExtenso(T(u"HKHKCUHKCU")), T(u"HKHKEY_CURRENT_USERHKEY_CURRENT_USER"));
}

TEST_F(RegistryAccess, CreatesListsAndKillsKeys)
{
    QStringList nomes = {T(u"velho")};
    EXPECT_EQ(registro.EnumKeys(k, nomes), -1);
    EXPECT_TRUE(nomes.isEmpty());
    EXPECT_EQ(registro.KillKey(k), 0);
    EXPECT_FALSE(registro.HaveSubkey(k));

    EXPECT_NE(registro.CreateKey(T(u"HKCU\\k\\z\\fundo")), 0);
    EXPECT_NE(registro.CreateKey(T(u"HKCU\\k\\") + QString(254, u'n')), 0);
    EXPECT_NE(registro.CreateKey(T(u"HKCU\\k\\") + QString(255, u'm')), 0); // has no room in a list
    EXPECT_NE(registro.CreateKey(T(u"HKCU\\k\\A")), 0);
    EXPECT_EQ(registro.EnumKeys(k, nomes), 3);
    EXPECT_EQ(nomes, QStringList({T(u"z"), QString(254, u'n'), T(u"A")}));
    EXPECT_TRUE(registro.HaveSubkey(k));
    EXPECT_FALSE(registro.HaveSubkey(T(u"HKCU\\k\\A")));

    EXPECT_NE(registro.KillKey(T(u"HKCU\\k\\z")), 0); // it has a subkey, and stays
    EXPECT_TRUE(registro.KeyExists(T(u"HKCU\\k\\z\\fundo")));
    EXPECT_NE(registro.KillKey(T(u"HKCU\\k\\a")), 0);
    EXPECT_FALSE(registro.KeyExists(T(u"HKCU\\k\\A")));
}

TEST_F(RegistryAccess, MakesAMissingKeyForStringsAlwaysForOthersAsTold)
{
    registro.CreateKeyIfDoesntExists = false;
    EXPECT_EQ(registro.WriteDWORD(k, T(u"d"), 1), 0);
    EXPECT_EQ(registro.WriteBinary(k, T(u"b"), T(u"01")), 0);
    EXPECT_FALSE(registro.KeyExists(k));
    EXPECT_NE(registro.WriteString(k, T(u"s"), T(u"1")), 0);
    EXPECT_NE(registro.WriteDWORD(k, T(u"d"), 1), 0);
    registro.CreateKeyIfDoesntExists = true;
    EXPECT_NE(registro.WriteBinary(T(u"HKCU\\b"), T(u"b"), T(u"01")), 0);
    EXPECT_NE(registro.WriteDWORD(T(u"HKCU\\d"), T(u"d"), 1), 0);
}

TEST_F(RegistryAccess, ReadsStringsUpToTheBuffersEnd)
{
    EXPECT_EQ(registro.ReadString(k, T(u"s")), QString(1, QChar(u'\0')));
    EXPECT_EQ(registro.ReadString(k, T(u"s"), T(u"padrão")), T(u"padrão"));
    registro.WriteString(k, T(u"s"), T(u"“É” €"));
    EXPECT_EQ(registro.ReadString(k, T(u"S")), T(u"“É” €"));
    EXPECT_EQ(registro.ReadString(k, T(u"s"), QString(), false, true), T(u"“É” €"));
    registro.WriteString(k, T(u"s"), QString());
    EXPECT_EQ(registro.ReadString(k, T(u"s")), QString());
    registro.WriteString(k, T(u"s"), QString(1024, u'x'));
    EXPECT_EQ(registro.ReadString(k, T(u"s")), QString(1024, u'x'));
    registro.WriteString(k, T(u"s"), QString(1025, u'x'));
    EXPECT_EQ(registro.ReadString(k, T(u"s"), T(u"-")), T(u"-"));
    Grava("nul", kTipoTexto, QByteArray("abc\0xyz\0", 8));
    EXPECT_EQ(registro.ReadString(k, T(u"nul")), T(u"abc"));

    registro.WriteString(k, T(u"@"), T(u"padrão"));
    EXPECT_EQ(registro.ReadString(k, QString()), T(u"padrão"));
    EXPECT_EQ(registro.ReadString(k, T(u"@"), T(u"-")), T(u"-"));
}

TEST_F(RegistryAccess, FallsBackFromTheMachineToTheUserWhereAsked)
{
    const QString daMaquina = T(u"HKLM\\k");
    registro.WriteString(daMaquina, T(u"s"), T(u"da máquina"));
    armazem.soLeitura = 0x80000002;
    QStringList nomes;
    EXPECT_FALSE(registro.KeyExists(daMaquina)); // it may only be read
    EXPECT_EQ(registro.EnumKeys(daMaquina, nomes), 0);
    EXPECT_EQ(registro.WriteString(daMaquina, T(u"s"), T(u"x")), 0);
    EXPECT_FALSE(registro.KeyExists(k));
    EXPECT_NE(registro.WriteString(daMaquina, T(u"s"), T(u"do usuário"), true), 0);
    EXPECT_NE(registro.WriteString(daMaquina, T(u"só dele"), T(u"1"), true), 0);
    EXPECT_EQ(registro.ReadString(daMaquina, T(u"s"), QString(), true), T(u"da máquina"));
    EXPECT_EQ(registro.ReadString(daMaquina, T(u"s"), QString(), true, true), T(u"do usuário"));
    EXPECT_EQ(registro.ReadString(daMaquina, T(u"só dele"), T(u"-"), true), T(u"1"));
    EXPECT_EQ(registro.ReadString(daMaquina, T(u"só dele"), T(u"-")), T(u"-"));
    EXPECT_EQ(registro.ReadString(T(u"HKUS\\k"), T(u"s"), T(u"-"), true), T(u"-"));
    EXPECT_EQ(registro.WriteString(T(u"HKXX\\k"), T(u"s"), T(u"x"), true), 0);
}

TEST_F(RegistryAccess, ReadsNumbersOfFourBytes)
{
    for (const std::int32_t numero : {0, 1, 96, -1, -2, 0x12345678, INT32_MAX, INT32_MIN}) {
        EXPECT_NE(registro.WriteDWORD(k, T(u"d"), numero), 0);
        EXPECT_EQ(registro.ReadDWORD(k, T(u"d"), 5), numero);
    }
    EXPECT_EQ(registro.ReadDWORD(k, T(u"falta")), -1);
    EXPECT_EQ(registro.ReadDWORD(k, T(u"falta"), 5), 5);
    Grava("três", kTipoDword, "abc");
    Grava("cinco", kTipoDword, "abcde");
    Grava("binario", kTipoBinario, QByteArray("\x60\x01\0\0", 4));
    EXPECT_EQ(registro.ReadDWORD(k, T(u"três"), 5), 5);
    EXPECT_EQ(registro.ReadDWORD(k, T(u"cinco"), 5), 5);
    EXPECT_EQ(registro.ReadDWORD(k, T(u"binario"), 5), 0x160);
}

TEST_F(RegistryAccess, TurnsHexadecimalTextIntoBytesAndBack)
{
    struct Caso
    {
        const char16_t *texto;
        QByteArray bytes;
    };
    const std::array casos = {
        Caso{u"41 0A", "A\n"},
        Caso{u" 4 1 0a ", "A\n"},
        Caso{u"00", QByteArray(1, '\0')},
        Caso{u"", ""},
        Caso{u"   ", ""},
        Caso{u"4", ""},              // half a byte: none
        Caso{u"414", "A\x04"},       // one and a half: two
        Caso{u"41424", "AB"},        // two and a half: two
        Caso{u"4142434", "ABC\x04"}, // three and a half: four
        Caso{u"FFfe", "\xFF\xFE"},   //
        Caso{u"4G G4", QByteArray("\x04\0", 2)},
    };
    for (const auto &[texto, bytes] : casos) {
        EXPECT_EQ(clsRegistryAccess::StrToBin(T(texto)), bytes) << T(texto).toStdString();
    }
    EXPECT_EQ(clsRegistryAccess::BinToStr("A\n"), T(u" 41 0A"));
    EXPECT_EQ(clsRegistryAccess::BinToStr(QByteArray("\0\xFF", 2)), T(u" 00 FF"));
    EXPECT_EQ(clsRegistryAccess::BinToStr({}), QString());
    for (const char16_t *texto : {u"0a ff", u"0", u" 0123456789abcdefABCDEF "}) {
        EXPECT_TRUE(clsRegistryAccess::isBinValid(T(texto))) << T(texto).toStdString();
    }
    for (const char16_t *texto : {u"", u"  ", u"0G", u"0a,ff", u"é", u"0x1", u"1\t2", u"１"}) {
        EXPECT_FALSE(clsRegistryAccess::isBinValid(T(texto))) << T(texto).toStdString();
    }
}

TEST_F(RegistryAccess, KeepsBinaryValuesOfAnyLength)
{
    EXPECT_EQ(registro.ReadBinary(k, T(u"b"), T(u"padrão")), T(u"padrão"));
    for (const int tamanho : {0, 1, 255, 256, 5000}) {
        QByteArray bytes;
        for (int n = 0; n < tamanho; ++n) {
            bytes.append(static_cast<char>(n * 7));
        }
        const QString texto = AparaBrancos(clsRegistryAccess::BinToStr(bytes));
        EXPECT_NE(registro.WriteBinary(k, T(u"b"), texto), 0);
        EXPECT_EQ(registro.ReadBinary(k, T(u"b"), T(u"padrão")), texto);
        QStringList nomes;
        std::vector<ValorListado> valores;
        ASSERT_EQ(registro.EnumValues(k, nomes, valores), 1);
        EXPECT_EQ(valores[0], ValorListado(texto));
    }
}

TEST_F(RegistryAccess, ListsAndKillsValues)
{
    QStringList nomes = {T(u"velho")};
    std::vector<ValorListado> valores(1);
    EXPECT_EQ(registro.EnumValues(k, nomes, valores), -1);
    EXPECT_TRUE(nomes.isEmpty() && valores.empty());
    EXPECT_EQ(registro.KillValue(k, T(u"s")), 0);

    Grava("outro", 7, "x");
    Grava(" nome ", kTipoTexto, "s");
    Grava(QByteArray(255, 'n'), kTipoTexto, "has no room in a list");
    Grava("longo", kTipoTexto, QByteArray(1025, 'x'));
    Grava("curto", kTipoDword, "abc");
    registro.WriteString(k, T(u"@"), T(u"padrão"));
    registro.WriteDWORD(k, T(u"d"), -7);
    registro.WriteBinary(k, T(u"b"), T(u"0AFF"));
    EXPECT_EQ(registro.EnumValues(k, nomes, valores), 7);
    EXPECT_EQ(nomes, QStringList({T(u"outro"), T(u"nome"), T(u"longo"), T(u"curto"), QString(),
                                  T(u"d"), T(u"b")}));
    const std::vector<ValorListado> esperado = {std::monostate(), T(u"s"), QString(),  0,
                                                T(u"padrão"),     -7,      T(u"0A FF")};
    EXPECT_EQ(valores, esperado);
    EXPECT_EQ(registro.EnumValues(k, nomes, valores, kTipoDword), 2);
    EXPECT_EQ(nomes, QStringList({T(u"curto"), T(u"d")}));

    EXPECT_TRUE(registro.ValueExists(k, T(u"longo")));
    EXPECT_NE(registro.KillValue(k, T(u"LONGO")), 0);
    EXPECT_NE(registro.KillValue(k, T(u"longo")), 0); // the key is there, that is enough
    EXPECT_FALSE(registro.ValueExists(k, T(u"longo")));
    EXPECT_FALSE(registro.ValueExists(T(u"HKCU\\falta"), T(u"d")));
}

#ifndef Q_OS_WIN
// Where the system has a registry of its own, that holds what it holds.
TEST(RegistroDoSistema, StartsWithTheValuesThatTheProgramReads)
{
    const auto armazem = AbreRegistroDoSistema({120, T(u"/home/conceição/.cache")});
    clsRegistryAccess registro(*armazem);
    EXPECT_EQ(
        registro.ReadDWORD(T(u"HKCU\\Control Panel\\Desktop\\WindowMetrics"), T(u"AppliedDPI")),
        120);
    const QString pastas =
        T(u"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders");
    EXPECT_EQ(registro.ReadString(pastas, T(u"Cache")), T(u"/home/conceição/.cache"));
}
#endif
