#include "core/registry/registry_access.h"

#include <gtest/gtest.h>

#include "core/files/codepage.h"
#include "core/machine/chance.h"
#include "core/registry/registry_store_portable.h"
#include "core/registry/registry_text.h"
#include "tests/core/test_files.h"
#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

class Regedit4 : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(armazem.QtdAbertas(), 0) << "a key was left open"; }

    QByteArray Exporta(clsRegistryAccess &de, const QString &sPath, bool subchaves = true)
    {
        const QString nome = pasta.Caminho("exporta");
        QFile::remove(nome);
        EXPECT_EQ(de.ExportToReg(sPath, nome, subchaves), 1);
        return pasta.Conteudo(nome);
    }

    int Importa(clsRegistryAccess &para, const QByteArray &bytes)
    {
        return para.ImportFromReg(pasta.Arquivo("importação", bytes));
    }

    const PastaDeTeste pasta;
    RegistroPortatil armazem;
    clsRegistryAccess registro{armazem};
};

/// The import as plainly as it can be said, through the class's own operations.
int ImportaDevagar(clsRegistryAccess &registro, const QByteArray &bytes)
{
    const QStringList linhas = DeCodePage(bytes).split(u"\r\n"_s);
    if (linhas[0].toUpper() != u"REGEDIT4") return 0;
    std::optional<QString> chave;
    for (QString linha : linhas.sliced(1)) {
        linha = AparaBrancos(linha.remove(u'"'));
        if (linha.startsWith(u'[')) {
            chave = linha.mid(1).chopped(linha.size() > 1 ? 1 : 0);
            if (chave->startsWith(u'-')) {
                registro.KillKey(chave->sliced(1));
                chave.reset();
            }
            continue;
        }
        const QStringList pedacos = linha.split(u'=');
        if (!chave || linha.startsWith(u';') || pedacos.size() < 2) continue;
        const QString &nome = pedacos[0];
        QString valor = pedacos[1];
        if (AparaBrancos(valor) == u"-") {
            registro.KillValue(*chave, nome);
        } else if (valor.left(4).toLower() == u"hex:") {
            registro.WriteBinary(*chave, nome, valor.mid(4).replace(u',', u' '));
        } else if (valor.left(6).toLower() == u"dword:") {
            const QString digitos = AparaBrancos(valor.mid(6));
            if (clsRegistryAccess::isBinValid(digitos) && !digitos.contains(u' ') &&
                digitos.size() <= 8) {
                registro.WriteDWORD(*chave, nome, std::int32_t(digitos.toUInt(nullptr, 16)));
            }
        } else {
            registro.WriteString(*chave, nome, valor);
            if (nome == u"@" && valor.isEmpty()) registro.KillValue(*chave, {});
        }
    }
    return 1;
}

/// A file with a line of each kind, good and bad.
constexpr char kLinhas[] =
    "regedit4\r\n\"antes\"=\"x\"\r\n  [HKEY_CURRENT_USER\\k]\r\n\"some\"=\"1\"\r\n@=\"some\"\r\n"
    "\"s\"=\"a \"b\" c\"\r\n;c=1\r\nsem igual\r\n\"i\"=\"a=b\"\r\nsome= - \r\nb=HEX:41,0a,f\r\n"
    "\"d\"=Dword:  1F\r\n\"ruim\"=dword:1G\r\n\"longo\"=dword:123456789\r\n"
    "\"forma\"=hex(2):41,00\r\n@=\"\"\r\n\"e\" = \"f\"\r\n[HKCU\\velha]\r\n\"s\"=\"1\"\r\n"
    "[-HKEY_CURRENT_USER\\velha]\r\n\"depois\"=\"x\"\r\n[HKEY_CURRENT_USER\\vazia]\r\n"
    "[HKEY_CURRENT_USER\\kill]\r\n\"x\"=-\r\n[HKXX\\k]\r\n\"x\"=\"1\"\r\n[\r\n\"x\"=\"1\"\r\n"
    "[HKCU\\ultima]\r\n\"corta\"=\"da";

} // namespace

TEST_F(Regedit4, WritesEachKindOfLineByteForByteAndReportsEachKey)
{
    const QString k = u"HKCU\\k"_s;
    registro.WriteDWORD(k, u"dword"_s, 0xAB);
    registro.WriteDWORD(k, u"menos"_s, -1);
    registro.WriteBinary(k, u"vazio"_s, {});
    registro.WriteBinary(k, u"bytes"_s, u"410aff"_s);
    registro.WriteString(k, u"ação"_s, u"C:\\Usuários\\\"João\"=1"_s);
    registro.WriteString(k, u"@"_s, u"padrão"_s);
    registro.WriteString(u"HKCU\\k\\hkcu\\fundo"_s, u"s"_s, {});
    registro.WriteString(u"HKCU\\k\\z"_s, u"@"_s, {});
    const QByteArray soAChave =
        ParaCodePage(u"REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\k]\r\n@=\"padrão\"\r\n"
                     "\"ação\"=\"C:\\Usuários\\\"João\"=1\"\r\n\"vazio\"=hex:\r\n"
                     "\"bytes\"=hex:41,0A,FF\r\n\"dword\"=dword:000000AB\r\n"
                     "\"menos\"=dword:FFFFFFFF\r\n\r\n"_s);
    EXPECT_EQ(Exporta(registro, u"hkcu\\k"_s, false), soAChave);
    EXPECT_EQ(Exporta(registro, u"HKEY_CURRENT_USER\\k"_s),
              soAChave + "[HKEY_CURRENT_USER\\k\\HKEY_CURRENT_USER]\r\n\r\n"
                         "[HKEY_CURRENT_USER\\k\\HKEY_CURRENT_USER\\fundo]\r\n\"s\"=\"\"\r\n\r\n"
                         "[HKEY_CURRENT_USER\\k\\z]\r\n@=\"\"\r\n\r\n");
    const QString nome = pasta.Caminho("exporta");
    const auto antes = pasta.Conteudo(nome);
    EXPECT_EQ(registro.ExportToReg(k, nome), 0) << "an existing file";
    EXPECT_EQ(pasta.Conteudo(nome), antes);
    EXPECT_EQ(registro.ExportToReg(k, pasta.Caminho("falta/saída")), 0);
    QStringList chamadas;
    const SaidaDaExportacao saida{[&] { chamadas.append(u"eventos"_s); },
                                  [&](const QString &caminho) { chamadas.append(caminho); }};
    registro.ExportToReg(u"HKCU\\falta"_s, pasta.Caminho("saída"), true, saida);
    EXPECT_EQ(chamadas.join(u' '), u"eventos HKEY_CURRENT_USER\\falta");
    EXPECT_EQ(pasta.Conteudo(pasta.Caminho("saída")),
              "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\falta]\r\n\r\n");
}

TEST_F(Regedit4, ImportsByTheRulesOfALineOnlyFilesOfItsOwnHeader)
{
    registro.CreateKeyIfDoesntExists = false;
    EXPECT_EQ(Importa(registro, kLinhas), 1);
    EXPECT_TRUE(registro.CreateKeyIfDoesntExists);
    EXPECT_EQ(Exporta(registro, u"HKCU"_s),
              "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER]\r\n\r\n[HKEY_CURRENT_USER\\k]\r\n"
              "\"s\"=\"a b c\"\r\n\"i\"=\"a\"\r\n\"forma\"=\"hex(2):41,00\"\r\n\"e\"=\" f\"\r\n"
              "\"b\"=hex:41,0A\r\n\"d\"=dword:0000001F\r\n\r\n"
              "[HKEY_CURRENT_USER\\ultima]\r\n\"corta\"=\"da\"\r\n\r\n");
    EXPECT_EQ(registro.ReadString(u"HKCU\\k"_s, u"e "_s, u"?"_s), u" f");
    for (const char *inicio : {"", "\r\nREGEDIT4", " REGEDIT4", "REGEDIT4 ", "REGEDIT4\n",
                               "Windows Registry Editor Version 5.00", "\xEF\xBB\xBFREGEDIT4"}) {
        EXPECT_EQ(Importa(registro, inicio + "\r\n[HKCU\\x]\r\n\"s\"=\"1\"\r\n"_ba), 0) << inicio;
    }
    EXPECT_EQ(registro.ImportFromReg(pasta.Caminho("falta")), 0);
    EXPECT_EQ(registro.ImportFromReg(pasta.Caminho("")), 0) << "a folder";
    EXPECT_FALSE(registro.KeyExists(u"HKCU\\x"_s));
    EXPECT_EQ(Importa(registro, "REGEDIT4"), 1);
}

TEST_F(Regedit4, CarriesValuesThroughTheSystemsRegistryAsThroughItsOwn)
{
    const auto sistema = AbreRegistroDoSistema({});
    clsRegistryAccess doSistema(*sistema);
    const QString k =
        u"HKCU\\Software\\Quadrelo-teste-"_s + QString::number(QCoreApplication::applicationPid());
    const QStringList subchaves = {u"\\É\\fundo"_s, u"\\É"_s, {}};
    for (const QString &sub : subchaves) {
        registro.WriteString(k + sub, u"@"_s, u"padrão"_s);
        registro.WriteString(k + sub, u"ação; [x]"_s, {});
        registro.WriteString(k + sub, u"s"_s, QString(1024, u'ç'));
        registro.WriteBinary(k + sub, u"b"_s, u"00 ff "_s.repeated(200));
        registro.WriteDWORD(k + sub, u"d"_s, -2);
    }
    const QByteArray esperado = Exporta(registro, k);
    EXPECT_EQ(Importa(doSistema, esperado), 1);
    EXPECT_EQ(Exporta(doSistema, k), esperado);
    for (const QString &sub : subchaves) {
        EXPECT_NE(doSistema.KillKey(k + sub), 0);
    }
    EXPECT_FALSE(doSistema.KeyExists(k));
}

TEST_F(Regedit4, ImportsDamagedFilesAsThePlainWayDoes)
{
    AcasoMersenne acaso(4);
    const QList<QByteArray> pedacos = {"\r\n",  "\"",   "=",      "[",         "]", "[-HKCU\\k",
                                       "-",     "hex:", "dword:", "@=",        ";", " ",
                                       "\0"_ba, "\xFF", "\\",     "HKEY_USERS"};
    for (int jogo = 0; jogo < 600; ++jogo) {
        QByteArray bytes = kLinhas;
        for (int danos = SorteiaNumero(acaso, 12) - 1; danos > 0; --danos) {
            const int onde = SorteiaNumero(acaso, static_cast<int>(bytes.size())) - 1;
            bytes.replace(onde, SorteiaNumero(acaso, 6) - 1,
                          pedacos[SorteiaNumero(acaso, static_cast<int>(pedacos.size())) - 1]);
        }
        RegistroPortatil rapido;
        RegistroPortatil devagar;
        clsRegistryAccess umRegistro(rapido);
        clsRegistryAccess outroRegistro(devagar);
        ASSERT_EQ(Importa(umRegistro, bytes), ImportaDevagar(outroRegistro, bytes)) << jogo;
        ASSERT_EQ(rapido.QtdAbertas(), 0);
        for (const QString &raiz : {u"HKCU"_s, u"HKUS"_s}) {
            ASSERT_EQ(Exporta(umRegistro, raiz), Exporta(outroRegistro, raiz)) << jogo;
        }
    }
}
