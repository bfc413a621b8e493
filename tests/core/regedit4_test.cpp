#include "core/registry/registry_access.h"

#include <gtest/gtest.h>

#include "core/files/codepage.h"
#include "core/machine/chance.h"
#include "core/registry/registry_store_portable.h"
#include "core/registry/registry_text.h"
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

QString T(const char16_t *texto)
{
    return QString::fromUtf16(texto);
}

class Regedit4 : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(armazem.QtdAbertas(), 0) << "a key was left open"; }

    [[nodiscard]] QString Caminho(const QString &nome) const { return pasta.filePath(nome); }

    QByteArray Exporta(clsRegistryAccess &de, const QString &sPath, bool subchaves = true)
    {
        const QString nome = Caminho(QStringLiteral("exporta"));
        QFile::remove(nome);
        EXPECT_EQ(de.ExportToReg(sPath, nome, subchaves), 1);
        QFile arquivo(nome);
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
    }

    int Importa(clsRegistryAccess &para, const QByteArray &bytes)
    {
        const QString nome = Caminho(QStringLiteral("importação"));
        QFile arquivo(nome);
        EXPECT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write(bytes);
        arquivo.close();
        return para.ImportFromReg(nome);
    }

    const QTemporaryDir pasta;
    RegistroPortatil armazem;
    clsRegistryAccess registro{armazem};
};

/// The import as plainly as it can be said, through the class's own operations.
int ImportaDevagar(clsRegistryAccess &registro, const QByteArray &bytes)
{
    const QStringList linhas = DeCodePage(bytes).split(QStringLiteral("\r\n"));
    if (linhas[0].toUpper() != u"REGEDIT4") {
        return 0;
    }
    std::optional<QString> chave;
    for (QString linha : linhas.sliced(1)) {
        linha = AparaBrancos(linha.remove(u'"'));
        if (linha.startsWith(u'[')) {
            chave = linha.size() < 2 ? QString() : linha.sliced(1).chopped(1);
            if (chave->startsWith(u'-')) {
                registro.KillKey(chave->sliced(1));
                chave.reset();
            }
            continue;
        }
        const QStringList pedacos = linha.split(u'=');
        if (!chave || linha.startsWith(u';') || pedacos.size() < 2) {
            continue;
        }
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
                registro.WriteDWORD(*chave, nome,
                                    static_cast<std::int32_t>(digitos.toUInt(nullptr, 16)));
            }
        } else {
            registro.WriteString(*chave, nome, valor);
            if (nome == u"@" && valor.isEmpty()) {
                registro.KillValue(*chave, QString());
            }
        }
    }
    return 1;
}

/// A text of letters that the format can carry in names and values.
QString TextoQualquer(Acaso &acaso)
{
    static const QString letras = QStringLiteral("abXYZ01çãé€ .,;-_[]{}@\\/:'%\n\t");
    QString texto(QStringLiteral("x"));
    for (int resto = SorteiaNumero(acaso, 20); resto > 0; --resto) {
        texto += letras[SorteiaNumero(acaso, static_cast<int>(letras.size())) - 1];
    }
    return texto + u'.';
}

/// A thousand values of all kinds in keys some levels deep below `raiz`.
void Enche(clsRegistryAccess &registro, const QString &raiz, Acaso &acaso)
{
    QString caminho = raiz;
    for (int n = 0; n < 1000; ++n) {
        if (n % 10 == 0) {
            caminho = Sorteia(acaso, 50) || caminho.size() > 150 ? raiz : caminho;
            caminho += u'\\' + QString::number(n) + TextoQualquer(acaso).remove(u'\\');
            registro.WriteString(caminho, QStringLiteral("@"), TextoQualquer(acaso));
            continue;
        }
        const QString nome = QString::number(n) + TextoQualquer(acaso);
        const int numero = SorteiaNumero(acaso, INT32_MAX) * (n % 2 == 0 ? 1 : -1);
        switch (SorteiaNumero(acaso, 4)) {
        case 1:
            registro.WriteDWORD(caminho, nome, numero);
            break;
        case 2:
            registro.WriteBinary(caminho, nome,
                                 QString::number(numero, 16).repeated(n % 80).remove(u'-'));
            break;
        case 3:
            registro.WriteString(caminho, nome, QString());
            break;
        default:
            registro.WriteString(caminho, nome, u' ' + TextoQualquer(acaso));
        }
    }
}

} // namespace

TEST_F(Regedit4, WritesEachKindOfLineByteForByte)
{
    const QString k = T(u"HKCU\\k");
    registro.WriteDWORD(k, T(u"dword"), 0xAB);
    registro.WriteDWORD(k, T(u"menos"), -1);
    registro.WriteBinary(k, T(u"vazio"), QString());
    registro.WriteBinary(k, T(u"bytes"), T(u"410aff"));
    registro.WriteString(k, T(u"ação"), T(u"C:\\Usuários\\\"João\"=1"));
    registro.WriteString(k, T(u"@"), T(u"padrão"));
    registro.WriteString(T(u"HKCU\\k\\hkcu\\fundo"), T(u"s"), QString());
    registro.WriteString(T(u"HKCU\\k\\z"), T(u"@"), QString());
    const QByteArray soAChave = ParaCodePage(T(u"REGEDIT4\r\n\r\n"
                                               u"[HKEY_CURRENT_USER\\k]\r\n"
                                               u"@=\"padrão\"\r\n"
                                               u"\"ação\"=\"C:\\Usuários\\\"João\"=1\"\r\n"
                                               u"\"vazio\"=hex:\r\n"
                                               u"\"bytes\"=hex:41,0A,FF\r\n"
                                               u"\"dword\"=dword:000000AB\r\n"
                                               u"\"menos\"=dword:FFFFFFFF\r\n\r\n"));
    EXPECT_EQ(Exporta(registro, T(u"hkcu\\k"), false), soAChave);
    EXPECT_EQ(Exporta(registro, T(u"HKEY_CURRENT_USER\\k")),
              soAChave + "[HKEY_CURRENT_USER\\k\\HKEY_CURRENT_USER]\r\n\r\n"
                         "[HKEY_CURRENT_USER\\k\\HKEY_CURRENT_USER\\fundo]\r\n\"s\"=\"\"\r\n\r\n"
                         "[HKEY_CURRENT_USER\\k\\z]\r\n@=\"\"\r\n\r\n");
    EXPECT_EQ(Exporta(registro, T(u"HKCU\\falta")),
              "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\falta]\r\n\r\n");
}

TEST_F(Regedit4, LeavesAnExistingFileAloneAndReportsEachKey)
{
    registro.WriteString(T(u"HKCU\\k\\a"), T(u"s"), T(u"1"));
    registro.CreateKey(T(u"HKCU\\k\\b"));
    QStringList chamadas;
    const SaidaDaExportacao saida{[&] { chamadas.append(T(u"eventos")); },
                                  [&](const QString &caminho) { chamadas.append(caminho); }};
    const QString nome = Caminho(T(u"saída"));
    EXPECT_EQ(registro.ExportToReg(T(u"HKCU\\k"), nome, true, saida), 1);
    EXPECT_EQ(chamadas, QStringList({T(u"eventos"), T(u"HKEY_CURRENT_USER\\k"), T(u"eventos"),
                                     T(u"HKEY_CURRENT_USER\\k\\a"), T(u"eventos"),
                                     T(u"HKEY_CURRENT_USER\\k\\b")}));
    const qint64 tamanho = QFile(nome).size();
    EXPECT_EQ(registro.ExportToReg(T(u"HKCU\\k"), nome), 0);
    EXPECT_EQ(QFile(nome).size(), tamanho);
    EXPECT_EQ(registro.ExportToReg(T(u"HKCU\\k"), Caminho(T(u"falta/saída"))), 0);
}

TEST_F(Regedit4, ImportsByTheRulesOfALine)
{
    registro.WriteString(T(u"HKCU\\velha"), T(u"s"), T(u"1"));
    registro.WriteString(T(u"HKCU\\k"), T(u"some"), T(u"1"));
    registro.WriteString(T(u"HKCU\\k"), T(u"@"), T(u"some"));
    registro.CreateKeyIfDoesntExists = false;
    EXPECT_EQ(Importa(registro,
                      "regedit4\r\n\"antes\"=\"x\"\r\n  [HKEY_CURRENT_USER\\k]\r\n"
                      "\"s\"=\"a \"b\" c\"\r\n;c=1\r\nsem igual\r\n\"i\"=\"a=b\"\r\n"
                      "some= - \r\nb=HEX:41,0a,f\r\n\"d\"=Dword:  1F\r\n\"ruim\"=dword:1G\r\n"
                      "\"forma\"=hex(2):41,00\r\n@=\"\"\r\n\"e\" = \"f\"\r\n"
                      "[-HKEY_CURRENT_USER\\velha]\r\n\"depois\"=\"x\"\r\n"
                      "[HKEY_CURRENT_USER\\vazia]\r\n[HKEY_CURRENT_USER\\kill]\r\n\"x\"=-\r\n"
                      "[HKXX\\k]\r\n\"x\"=\"1\"\r\n[\r\n\"x\"=\"1\"\r\n[HKCU\\ultima]\r\n\"corta"
                      "\"=\"da"),
              1);
    EXPECT_TRUE(registro.CreateKeyIfDoesntExists);
    EXPECT_EQ(
        Exporta(registro, T(u"HKCU")),
        "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER]\r\n\r\n"
        "[HKEY_CURRENT_USER\\k]\r\n\"s\"=\"a b c\"\r\n\"i\"=\"a\"\r\n\"forma\"=\"hex(2):41,00\"\r\n"
        "\"e\"=\" f\"\r\n\"b\"=hex:41,0A\r\n\"d\"=dword:0000001F\r\n\r\n"
        "[HKEY_CURRENT_USER\\ultima]\r\n\"corta\"=\"da\"\r\n\r\n");
    EXPECT_EQ(registro.ReadString(T(u"HKCU\\k"), T(u"e "), T(u"?")), T(u" f"));
}

TEST_F(Regedit4, ImportsOnlyFilesOfItsOwnHeader)
{
    const QByteArray resto = "\r\n[HKCU\\k]\r\n\"s\"=\"1\"\r\n";
    for (const char *inicio :
         {"", "\r\nREGEDIT4", " REGEDIT4", "REGEDIT4 ", "REGEDIT", "REGEDIT4\n",
          "Windows Registry Editor Version 5.00", "\xEF\xBB\xBFREGEDIT4"}) {
        EXPECT_EQ(Importa(registro, inicio + resto), 0) << inicio;
    }
    EXPECT_EQ(registro.ImportFromReg(Caminho(T(u"falta"))), 0);
    EXPECT_EQ(registro.ImportFromReg(pasta.path()), 0);
    EXPECT_FALSE(registro.KeyExists(T(u"HKCU\\k")));
    EXPECT_EQ(Importa(registro, "REGEDIT4"), 1);
    EXPECT_EQ(Importa(registro, "RegEdit4" + resto), 1);
    EXPECT_TRUE(registro.KeyExists(T(u"HKCU\\k")));
}

TEST_F(Regedit4, CarriesAThousandValuesIntoAnEmptyRegistry)
{
    AcasoMersenne acaso(1000);
    const QString raiz = T(u"HKLM\\Mil");
    Enche(registro, raiz, acaso);
    const QByteArray primeiro = Exporta(registro, raiz);
    RegistroPortatil outro;
    clsRegistryAccess vazio(outro);
    ASSERT_EQ(Importa(vazio, primeiro), 1);
    EXPECT_EQ(primeiro.count("\"=hex:") + primeiro.count("\"=dword:") + primeiro.count("=\""),
              1000);
    EXPECT_EQ(Exporta(vazio, raiz), primeiro);
}

TEST_F(Regedit4, CarriesValuesThroughTheSystemsRegistry)
{
    const auto sistema = AbreRegistroDoSistema({});
    clsRegistryAccess doSistema(*sistema);
    const QString k =
        T(u"HKCU\\Software\\Quadrelo-teste-") + QString::number(QCoreApplication::applicationPid());
    for (clsRegistryAccess *cada : {&registro, &doSistema}) {
        EXPECT_NE(cada->WriteString(k, T(u"@"), T(u"padrão")), 0);
        EXPECT_NE(cada->WriteString(k, T(u"ação"), QString()), 0);
        EXPECT_NE(cada->WriteString(k + T(u"\\É"), T(u"s"), QString(300, u'ç')), 0);
        EXPECT_NE(cada->WriteBinary(k + T(u"\\É"), T(u"b"), T(u"00 ff ").repeated(200)), 0);
        EXPECT_NE(cada->WriteBinary(k + T(u"\\É"), T(u"nada"), QString()), 0);
        EXPECT_NE(cada->WriteDWORD(k + T(u"\\É\\fundo"), T(u"d"), -2), 0);
    }
    const QByteArray esperado = Exporta(registro, k);
    EXPECT_EQ(Exporta(doSistema, k), esperado);
    for (const char16_t *sub : {u"\\É\\fundo", u"\\É", u""}) {
        EXPECT_NE(doSistema.KillKey(k + T(sub)), 0);
    }
    EXPECT_FALSE(doSistema.KeyExists(k));
    EXPECT_EQ(Importa(doSistema, esperado + "[-" + k.toLatin1() + "\\\xC9\\fundo]\r\n"), 1);
    EXPECT_EQ(Exporta(doSistema, k), esperado.first(esperado.lastIndexOf('[')));
    doSistema.KillKey(k + T(u"\\É"));
    doSistema.KillKey(k);
    EXPECT_FALSE(doSistema.KeyExists(k));
}

TEST_F(Regedit4, ImportsDamagedFilesAsThePlainWayDoes)
{
    AcasoMersenne acaso(4);
    Enche(registro, T(u"HKCU\\Mil"), acaso);
    const QByteArray inteiro = Exporta(registro, T(u"HKCU")).first(6000);
    const QList<QByteArray> pedacos = {
        "\r\n", "\"",        "=",  "[", "]", "[-HKCU\\Mil\\",     "-",
        "hex:", "dword:",    "@=", ";", " ", QByteArray(1, '\0'), "\xFF",
        "\\",   "HKEY_USERS"};
    for (int jogo = 0; jogo < 300; ++jogo) {
        QByteArray bytes = inteiro;
        for (int danos = SorteiaNumero(acaso, 30); danos > 0; --danos) {
            const int onde = SorteiaNumero(acaso, static_cast<int>(bytes.size())) - 1;
            const int quanto =
                Sorteia(acaso, 90) ? SorteiaNumero(acaso, 4) - 1 : SorteiaNumero(acaso, 500);
            bytes.replace(onde, quanto,
                          pedacos[SorteiaNumero(acaso, static_cast<int>(pedacos.size())) - 1]);
        }
        bytes.truncate(Sorteia(acaso, 50) ? bytes.size()
                                          : SorteiaNumero(acaso, static_cast<int>(bytes.size())));
        RegistroPortatil rapido;
        RegistroPortatil devagar;
        clsRegistryAccess umRegistro(rapido);
        clsRegistryAccess outroRegistro(devagar);
        ASSERT_EQ(Importa(umRegistro, bytes), ImportaDevagar(outroRegistro, bytes)) << jogo;
        ASSERT_EQ(rapido.QtdAbertas(), 0);
        for (const char16_t *raiz : {u"HKCU", u"HKUS"}) {
            ASSERT_EQ(Exporta(umRegistro, T(raiz)), Exporta(outroRegistro, T(raiz))) << jogo;
        }
    }
}
