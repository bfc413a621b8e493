// Only on Windows: the stored files against the system's own INI functions.

#include "core/bank/used_words.h"
#include "core/files/ini_file.h"
#include "core/records/ranking_table.h"
#include "core/records/save_slot.h"

#include <array>
#include <gtest/gtest.h>
#include <QDir>

#include "tests/core/test_board.h"
#include "tests/core/test_files.h"

#include <windows.h>

namespace {

QByteArray NomeDoSistema(const QString &arquivo)
{
    return QDir::toNativeSeparators(arquivo).toLocal8Bit();
}

QByteArray LeDoSistema(const QByteArray &secao, const QByteArray &chave, const QString &arquivo)
{
    std::array<char, 255> lugar{};
    const DWORD lidos =
        ::GetPrivateProfileStringA(secao.constData(), chave.constData(), "", lugar.data(),
                                   lugar.size(), NomeDoSistema(arquivo).constData());
    return {lugar.data(), static_cast<qsizetype>(lidos)};
}

void EscreveDoSistema(const QByteArray &secao, const QByteArray &chave, const QByteArray &valor,
                      const QString &arquivo)
{
    const QByteArray nome = NomeDoSistema(arquivo);
    ::WritePrivateProfileStringA(secao.constData(), chave.constData(), valor.constData(),
                                 nome.constData());
    // Older systems keep the file in memory until they are asked to write it.
    ::WritePrivateProfileStringA(nullptr, nullptr, nullptr, nome.constData());
}

QString Texto(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes);
}

/// Reads every key of the file by both ways. Gives the number of keys.
int Compara(const QString &arquivo)
{
    int chaves = 0;
    QByteArray secao;
    const QByteArrayList linhas = PastaDeTeste::Conteudo(arquivo).replace('\r', '\n').split('\n');
    for (const QByteArray &inteira : linhas) {
        const QByteArray linha = inteira.trimmed();
        const qsizetype igual = linha.indexOf('=');
        if (linha.startsWith('[') && linha.contains(']')) {
            secao = linha.mid(1, linha.indexOf(']') - 1).trimmed();
        } else if (igual > 0 && !linha.startsWith(';') && !secao.isEmpty()) {
            const QByteArray chave = linha.first(igual).trimmed();
            EXPECT_EQ(LeIni(Texto(secao), Texto(chave), arquivo, {}),
                      Texto(LeDoSistema(secao, chave, arquivo)))
                << secao.constData() << "/" << chave.constData();
            ++chaves;
        }
    }
    return chaves;
}

} // namespace

TEST(PerfilDoWindows, ReadsTheGamesFilesAsTheGameDoes)
{
    PastaDeTeste pasta;
    const auto usadas = pasta.Caminho("jf.dat");
    MemoriaUsadas memoria;
    GravaUsadas(memoria, usadas, TabuleiroDeTeste());
    EXPECT_EQ(Compara(usadas), kUsadas);

    const auto salvos = pasta.Caminho("save.ini");
    const auto virgula = QStringLiteral(",");
    EXPECT_TRUE(
        SalvaSlot(salvos, 3, QStringLiteral("Zé da Conceição"), TabuleiroDeTeste(), 61.5, virgula));
    EXPECT_TRUE(
        SalvaSlot(salvos, 10, QStringLiteral("\"a b\""), TabuleiroDeTeste(2), 0.25, virgula));
    EXPECT_EQ(Compara(salvos), 2 * (2 + 5 * kItens));

    const auto ranking = pasta.Caminho("Ranking.dat");
    EXPECT_TRUE(GravaLugar(ranking, 1, QStringLiteral("João          "), 754));
    EXPECT_TRUE(GravaLugar(ranking, 1, QStringLiteral("              "), 3));
    EXPECT_GE(Compara(ranking), 4);
}

TEST(PerfilDoWindows, WritesTheSameBytesAndIsReadTheSame)
{
    // No blanks round a value: Windows stores them, Wine does not.
    const struct
    {
        QByteArray secao, chave, valor;
    } escritas[] = {
        {"Indice", "Palavra2", "A\xC7\xC3O"},
        {"Indice", "Palavra1", ""},
        {"outra", "a", "1"},
        {"indice", "PALAVRA2", "cora\xE7\xE3o maior"},
        {"Indice", "Palavra3", "b"},
        {"outra", "a", "\"x y\""},
        {"outra", "b", "c=d;e"},
        {"Indice", "Palavra1", QByteArray(300, 'x')},
    };
    PastaDeTeste pasta;
    const auto doJogo = pasta.Caminho("jogo.ini");
    const auto doSistema = pasta.Caminho("sistema.ini");
    for (const auto &uma : escritas) {
        EXPECT_TRUE(WritePrivateProfileStringA(Texto(uma.secao), Texto(uma.chave), Texto(uma.valor),
                                               doJogo));
        EscreveDoSistema(uma.secao, uma.chave, uma.valor, doSistema);
    }
    EXPECT_EQ(PastaDeTeste::Conteudo(doJogo).toStdString(),
              PastaDeTeste::Conteudo(doSistema).toStdString());
    EXPECT_EQ(Compara(doSistema), 5);
}

TEST(PerfilDoWindows, ReadsFilesThatAPlayerHasEditedAsTheGameDoes)
{
    PastaDeTeste pasta;
    const struct
    {
        const char *nome;
        QByteArray conteudo;
        int chaves;
    } casos[] = {
        {"blanks.ini", "[ s ]\r\n  a  =  b  \r\n\tc\t=\td\t\r\n", 2},
        {"quotes.ini", "[s]\r\na=\"b\"\r\nc='d'\r\ne=\"f\r\ng=\" h \"\r\ni=\"\"\r\nj=\"k\" l\r\n",
         6},
        {"comments.ini", ";[s]\r\n[s]\r\n;a=1\r\na=2;3\r\n", 1},
        {"twice.ini", "[s]\r\na=1\r\nA=2\r\n[t]\r\na=3\r\n[S]\r\na=4\r\n", 4},
        {"line_ends.ini", "[s]\na=1\nb=2\n\nc=3", 3},
        {"equals.ini", "[s]\r\na==b=c\r\nd=\r\n", 2},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.nome);
        EXPECT_EQ(Compara(pasta.Arquivo(caso.nome, caso.conteudo)), caso.chaves);
    }
}
