// Only on Windows: the stored files against the system's own INI functions.

#include "core/bank/used_words.h"
#include "core/files/ini_file.h"
#include "core/records/ranking_table.h"
#include "core/records/save_slot.h"

#include <gtest/gtest.h>

#include "tests/core/test_board.h"
#include "tests/core/test_files.h"

#include <windows.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray NomeDoSistema(const QString &arquivo)
{
    return QDir::toNativeSeparators(arquivo).toLocal8Bit();
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
    for (const QByteArray &inteira :
         PastaDeTeste::Conteudo(arquivo).replace('\r', '\n').split('\n')) {
        const QByteArray linha = inteira.trimmed();
        const qsizetype igual = linha.indexOf('=');
        if (linha.startsWith('[') && linha.contains(']')) {
            secao = linha.mid(1, linha.indexOf(']') - 1).trimmed();
        } else if (igual > 0 && !linha.startsWith(';') && !secao.isEmpty()) {
            const QByteArray chave = linha.first(igual).trimmed();
            std::array<char, 255> lugar{};
            const DWORD lidos = ::GetPrivateProfileStringA(secao, chave, "", lugar.data(),
                                                           lugar.size(), NomeDoSistema(arquivo));
            EXPECT_EQ(LeIni(Texto(secao), Texto(chave), arquivo, {}),
                      Texto(QByteArray(lugar.data(), static_cast<qsizetype>(lidos))))
                << secao.constData() << "/" << chave.constData();
            ++chaves;
        }
    }
    return chaves;
}

} // namespace

TEST(PerfilDoWindows, ReadsTheGamesFilesAsTheGameDoes)
{
    const PastaDeTeste pasta;
    MemoriaUsadas memoria;
    GravaUsadas(memoria, pasta.Caminho("jf.dat"), TabuleiroDeTeste());
    EXPECT_EQ(Compara(pasta.Caminho("jf.dat")), kUsadas);
    const auto salvos = pasta.Caminho("save.ini");
    EXPECT_TRUE(SalvaSlot(salvos, 3, u"Zé da Conceição"_s, TabuleiroDeTeste(), 61.5, u","_s));
    EXPECT_TRUE(SalvaSlot(salvos, 10, u"\"a b\""_s, TabuleiroDeTeste(2), 0.25, u","_s));
    EXPECT_EQ(Compara(salvos), 2 * (2 + 5 * kItens));
    const auto ranking = pasta.Caminho("Ranking.dat");
    EXPECT_TRUE(GravaLugar(ranking, 1, u"João          "_s, 754));
    EXPECT_TRUE(GravaLugar(ranking, 1, u"              "_s, 3));
    EXPECT_GE(Compara(ranking), 4);
}

TEST(PerfilDoWindows, WritesTheSameBytesAndIsReadTheSame)
{
    // No blanks round a value: Windows stores them, Wine does not.
    const QByteArray escritas[][3] = {{"Indice", "Palavra2", "A\xC7\xC3O"},
                                      {"Indice", "Palavra1", ""},
                                      {"outra", "a", "1"},
                                      {"indice", "PALAVRA2", "cora\xE7\xE3o maior"},
                                      {"Indice", "Palavra3", "b"},
                                      {"outra", "a", "\"x y\""},
                                      {"outra", "b", "c=d;e"},
                                      {"Indice", "Palavra1", QByteArray(300, 'x')}};
    const PastaDeTeste pasta;
    const auto doJogo = pasta.Caminho("jogo.ini");
    const auto doSistema = pasta.Caminho("sistema.ini");
    const QByteArray nome = NomeDoSistema(doSistema);
    for (const auto &[secao, chave, valor] : escritas) {
        EXPECT_TRUE(WritePrivateProfileStringA(Texto(secao), Texto(chave), Texto(valor), doJogo));
        ::WritePrivateProfileStringA(secao.constData(), chave.constData(), valor.constData(), nome);
        // Older systems keep the file in memory until they are asked to write it.
        ::WritePrivateProfileStringA(nullptr, nullptr, nullptr, nome);
    }
    EXPECT_EQ(PastaDeTeste::Conteudo(doJogo), PastaDeTeste::Conteudo(doSistema));
    EXPECT_EQ(Compara(doSistema), 5);
}

TEST(PerfilDoWindows, ReadsFilesThatAPlayerHasEditedAsTheGameDoes)
{
    const PastaDeTeste pasta;
    const std::pair<QByteArray, int> casos[] = {
        {"[ s ]\r\n  a  =  b  \r\n\tc\t=\td\t\r\n", 2},
        {"[s]\r\na=\"b\"\r\nc='d'\r\ne=\"f\r\ng=\" h \"\r\ni=\"\"\r\nj=\"k\" l\r\n", 6},
        {";[s]\r\n[s]\r\n;a=1\r\na=2;3\r\n", 1},
        {"[s]\r\na=1\r\nA=2\r\n[t]\r\na=3\r\n[S]\r\na=4\r\n", 4},
        {"[s]\na=1\nb=2\n\nc=3", 3},
        {"[s]\r\na==b=c\r\nd=\r\n", 2},
    };
    for (size_t k = 0; k < std::size(casos); ++k) {
        // A name of its own for each: Windows remembers files by their names.
        const QByteArray nome = QByteArray::number(k) + ".ini";
        EXPECT_EQ(Compara(pasta.Arquivo(nome, casos[k].first)), casos[k].second)
            << nome.constData();
    }
}
