#include "core/files/whole_file.h"

#include <gtest/gtest.h>

#include "core/files/ini_file.h"
#include "core/records/ranking_table.h"
#include "core/registry/registry_store_portable.h"
#include "tests/core/test_files.h"
#include <QElapsedTimer>
#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

bool Escreve(const QString &arquivo, const QString &valor)
{
    return WritePrivateProfileStringA(u"s"_s, u"a"_s, valor, arquivo);
}

QByteArray ComTamanho(qint64 bytes)
{
    const QByteArray inicio = "[s]\r\na=1\r\n;";
    return inicio + QByteArray(bytes - inicio.size(), 'x');
}

#ifdef Q_OS_LINUX
/// For as long as it lives no file of this process can grow beyond `bytes`: a disk that is full.
class DiscoCheio
{
public:
    explicit DiscoCheio(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_velho);
        const rlimit novo{bytes, m_velho.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &novo);
    }
    ~DiscoCheio() { setrlimit(RLIMIT_FSIZE, &m_velho); }
    Q_DISABLE_COPY_MOVE(DiscoCheio)

private:
    rlimit m_velho{};
};
#endif

} // namespace

#ifdef Q_OS_LINUX
TEST(TrocaArquivo, PutsNoFileInThePlaceOfADevice)
{
    const PastaDeTeste pasta;
    const QString cano = pasta.Caminho("cano");
    ASSERT_EQ(mkfifo(QFile::encodeName(cano).constData(), 0600), 0);
    EXPECT_EQ(TrocaArquivo(cano, "novo"), Troca::Falhou);
    EXPECT_FALSE(QFileInfo(cano).isFile());
}

TEST(TrocaArquivo, KeepsTheOldFileOnAFullDisk)
{
    const PastaDeTeste pasta;
    for (const int espaco : {0, 100, 4096}) {
        const QByteArray velho = ComTamanho(6000);
        const auto arquivo = pasta.Arquivo("save.ini", velho);
        const auto registro = pasta.Arquivo("r.reg", "velho");
        {
            const DiscoCheio cheio(static_cast<rlim_t>(espaco));
            EXPECT_EQ(TrocaArquivo(arquivo, QByteArray(6001, 'n')), Troca::Falhou);
            EXPECT_FALSE(Escreve(arquivo, u"2"_s));
            RegistroPortatil armazem(registro);
            ChaveRegistro chave = 0;
            armazem.RegCreateKeyA(kPrimeiraRaiz, QByteArray(200, 'k'), chave);
            EXPECT_EQ(armazem.Salva(), espaco > 200);
        }
        EXPECT_EQ(pasta.Conteudo(arquivo), velho) << espaco;
        EXPECT_EQ(pasta.Lista().size(), 2) << espaco;
    }
}
#endif

TEST(LeArquivo, TakesOnlyAMissingFileForAnEmptyOne)
{
    const PastaDeTeste pasta;
    QDir(pasta.Caminho("")).mkdir(u"pasta"_s);
    EXPECT_EQ(LeArquivo(pasta.Caminho("falta")), QByteArray());
    EXPECT_EQ(LeArquivo(pasta.Arquivo("a", "abc")), "abc");
    EXPECT_FALSE(LeArquivo(pasta.Caminho("pasta")));
    EXPECT_FALSE(LoteIni(pasta.Caminho("pasta")).Legivel());
}

TEST(Guardados, AreNeitherReadNorWrittenOverWhenTooLarge)
{
    const PastaDeTeste pasta;
    for (const qint64 tamanho : {kMaximoDoArquivo + 1, kMaximoDoArquivo}) {
        const QByteArray velho = ComTamanho(tamanho);
        const auto arquivo = pasta.Arquivo("x.ini", velho);
        const bool legivel = tamanho <= kMaximoDoArquivo;
        EXPECT_EQ(LeIni(u"s"_s, u"a"_s, arquivo, {}), legivel ? u"1"_s : QString());
        // One byte more, and the file would be too large.
        EXPECT_FALSE(Escreve(arquivo, u"22"_s));
        EXPECT_FALSE(GravaLugar(arquivo, 1, u"Ana"_s, 5));
        EXPECT_TRUE(pasta.Conteudo(arquivo) == velho);
        RegistroPortatil armazem(arquivo);
        ChaveRegistro chave = 0;
        armazem.RegCreateKeyA(kPrimeiraRaiz, "k", chave);
        EXPECT_EQ(armazem.Salva(), legivel);
    }
}

TEST(TravaDeArquivo, KeepsWritersApartForAMomentAndIsHarmlessWhereItCannotBe)
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("x.ini");
    {
        const TravaDeArquivo minha(arquivo);
        EXPECT_TRUE(minha.Minha());
        EXPECT_FALSE(TravaDeArquivo(arquivo, 0).Minha());
        QElapsedTimer relogio;
        relogio.start();
        EXPECT_TRUE(Escreve(arquivo, u"1"_s)) << "behind a writer that hangs";
        EXPECT_GT(relogio.elapsed(), 500);
        EXPECT_LT(relogio.elapsed(), 5'000);
    }
    EXPECT_EQ(pasta.Lista(), QStringList{u"x.ini"_s});
    EXPECT_TRUE(TravaDeArquivo(arquivo, 0).Minha());
    EXPECT_FALSE(TravaDeArquivo(pasta.Caminho("falta/x.ini")).Minha());
    // The lock of a process that is gone.
    pasta.Arquivo("x.ini.lock",
                  "2147483000\nquadrelo\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    EXPECT_TRUE(Escreve(arquivo, u"2"_s));
    EXPECT_EQ(pasta.Lista(), QStringList{u"x.ini"_s});
}

TEST(LimpaRestos, TakesWhatADeadWriterLeftAndNothingElse)
{
    const PastaDeTeste pasta;
    const QStringList alheios =
        u"save.ini save.ini.backup save.ini.Backup save.ini.ANTIGO save.ini.a1B2c3 "
        "save.ini.aBcDeFg jf.dat.aBcDeF xsave.ini.aBcDeF"_s.split(u' ');
    const QStringList restos = u"save.ini.aBcDeF save.ini.kkkkkQ save.ini.ZZZZZa"_s.split(u' ');
    for (const QString &nome : alheios + restos) {
        pasta.Arquivo(qPrintable(nome), "x");
    }
    {
        const TravaDeArquivo vivo(pasta.Caminho("save.ini"));
        LimpaRestos(pasta.Caminho("save.ini"));
        EXPECT_EQ(pasta.Lista().size(), alheios.size() + restos.size() + 1)
            << "while a writer lives";
    }
    LimpaRestos(pasta.Caminho("save.ini"));
    const auto lista = pasta.Lista();
    EXPECT_EQ(QSet(lista.begin(), lista.end()), QSet(alheios.begin(), alheios.end()));
}
