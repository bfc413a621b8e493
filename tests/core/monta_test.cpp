#include <gtest/gtest.h>

#include "support/sample_banks.h"
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

// The puzzle printer as a program of its own.

namespace {

struct Saida
{
    int fim = -1;
    QString texto;
    QString erro;
};

class Monta : public testing::Test
{
protected:
    /// Runs the program; in `linha`, % stands for the path of `banco` in the test's folder.
    Saida Roda(const QString &linha, const QString &banco = QStringLiteral("João.tes"))
    {
        QProcess processo;
        processo.start(QStringLiteral(QUADRELO_MONTA),
                       linha.split(u' ', Qt::SkipEmptyParts)
                           .replaceInStrings(QStringLiteral("%"), m_pasta.filePath(banco)));
        EXPECT_TRUE(processo.waitForFinished());
        return {processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput()),
                QString::fromUtf8(processo.readAllStandardError())};
    }

    void GravaBanco(const QByteArray &registros)
    {
        QFile ficheiro(m_pasta.filePath(QStringLiteral("João.tes")));
        EXPECT_TRUE(ficheiro.open(QIODevice::WriteOnly));
        ficheiro.write(registros);
    }

    static void ExpectaRecusa(const Saida &saida, const QString &motivo)
    {
        EXPECT_EQ(saida.fim, 2);
        EXPECT_EQ(saida.texto, QString());
        EXPECT_TRUE(saida.erro.startsWith(u"monta: ") && saida.erro.contains(motivo))
            << saida.erro.toStdString();
    }

    int m_argc = 1;
    char m_nome[6] = "teste";
    char *m_argv[2] = {m_nome, nullptr};
    QCoreApplication m_aplicacao{m_argc, m_argv};
    QTemporaryDir m_pasta;
};

/// Words with an accent, so that the output's encoding shows.
QByteArray BancoAcentuado()
{
    return RegistrosDe(PalavrasDeSilabas(1500, 9)).replace('A', '\xC3');
}

/// What the program should print for seed 77, and its figures.
struct Esperado
{
    QString texto;
    std::uint64_t sorteios = 0;
    int falhas = 0;
};

Esperado MontaAqui(int jogos, bool lembra)
{
    Oficina oficina(BancoAcentuado());
    AcasoMersenne acaso(77);
    Esperado esperado;
    for (int jogo = 1; jogo <= jogos; ++jogo) {
        esperado.falhas += oficina.Monta(acaso);
        for (int n = 1; n <= kItens; ++n) {
            const RegistroItem &item = oficina.tabuleiro.ItemPalavra.at(size_t(n));
            esperado.texto += QStringLiteral("%1\t%2\t%3\t%4\t")
                                  .arg(jogo)
                                  .arg(n)
                                  .arg(item.Sentido)
                                  .arg(item.Ponto) +
                              item.Palavra + u'\n';
        }
        if (lembra) EmpurraUsadas(oficina.memoria, oficina.tabuleiro);
    }
    esperado.sorteios = acaso.Sorteios();
    return esperado;
}

} // namespace

TEST_F(Monta, RefusesBadArgumentsAndBanksThatCannotServe)
{
    GravaBanco(BancoAcentuado());
    for (const char *linha :
         {"", "--semente 1", "--banco %", "--banco % --semente", "--banco % --semente x",
          "--banco % --semente -1", "--banco % --semente 1.5",
          "--banco % --semente 18446744073709551616", "--banco % --semente 1 --jogos",
          "--banco % --semente 1 --jogos 0", "--banco % --semente 1 --jogos dois",
          "--banco % --semente 1 --tudo", "--banco % --semente 1 sobra",
          "--banco % --semente 1 --formato pdf", "--banco % --semente 1 --formato",
          "--banco % --semente 1 --solucao", "--banco % --semente 1 --titulo T",
          "--banco % --semente 1 --sem-solucao --formato ipuz"}) {
        SCOPED_TRACE(linha);
        ExpectaRecusa(Roda(QString::fromUtf8(linha)), QString());
    }
    const QString certa = QStringLiteral("--banco % --semente 1");
    const QString falta = QStringLiteral("falta.tes");
    ExpectaRecusa(Roda(certa, falta), m_pasta.filePath(falta));
    EXPECT_FALSE(QFile::exists(m_pasta.filePath(falta)));
    ExpectaRecusa(Roda(certa, QStringLiteral(".")), m_pasta.path());
    for (const auto &palavras : {std::vector<QByteArray>{}, {"CASA", "BOI"}, {"ABACAXI", "CAJU"}}) {
        GravaBanco(RegistrosDe(palavras));
        ExpectaRecusa(Roda(certa), QStringLiteral("João.tes"));
    }
}

TEST_F(Monta, PrintsEachItemOfEachPuzzleOfTheSeed)
{
    GravaBanco(BancoAcentuado());
    const Esperado semMemoria = MontaAqui(60, false);
    const Esperado comMemoria = MontaAqui(60, true);
    // Restarts and used words must occur, or the comparison would not show them.
    ASSERT_GT(comMemoria.falhas, 0);
    ASSERT_NE(comMemoria.texto, semMemoria.texto);

    const QString linha = QStringLiteral("--banco % --semente 77");
    const Saida saida = Roda(linha + QStringLiteral(" --jogos 60"));
    EXPECT_EQ(saida.fim, 0);
    EXPECT_EQ(saida.texto, semMemoria.texto);
    EXPECT_EQ(saida.erro, QString());
    EXPECT_EQ(Roda(linha).texto, MontaAqui(1, false).texto);
    EXPECT_EQ(Roda(linha + QStringLiteral(" --memoria --jogos 60")).texto, comMemoria.texto);

    const Saida quieta = Roda(linha + QStringLiteral(" --quieto --jogos 60 --memoria"));
    static const QRegularExpression formato(QStringLiteral(
        "^jogos 60, falhas (\\d+), sorteios (\\d+), mediana ([\\d.]+) us, p90 ([\\d.]+) us, "
        "p99 ([\\d.]+) us\n$"));
    const auto numeros = formato.match(quieta.texto);
    ASSERT_TRUE(numeros.hasMatch()) << quieta.texto.toStdString();
    EXPECT_EQ(numeros.captured(1).toInt(), comMemoria.falhas);
    EXPECT_EQ(numeros.captured(2).toULongLong(), comMemoria.sorteios);
    EXPECT_LE(numeros.captured(3).toDouble(), numeros.captured(4).toDouble());
    EXPECT_LE(numeros.captured(4).toDouble(), numeros.captured(5).toDouble());
}

TEST_F(Monta, PrintsTheSamePuzzleInEachFormat)
{
    GravaBanco(BancoAcentuado());
    const QStringList palavras = MontaAqui(2, false).texto.split(u'\n', Qt::SkipEmptyParts);
    const QString linha = QStringLiteral("--banco % --semente 77 --jogos 2 --formato ");
    const QString ipuz = Roda(linha + QStringLiteral("ipuz")).texto;
    const QString texto = Roda(linha + QStringLiteral("texto --solucao --titulo Prova")).texto;
    const QString html = Roda(linha + QStringLiteral("html")).texto;
    const QString semSolucao = Roda(linha + QStringLiteral("html --sem-solucao")).texto;
    EXPECT_EQ(ipuz.count(u'\n'), 2);
    EXPECT_EQ(texto.count(QStringLiteral("Prova\n")), 2);
    EXPECT_EQ(html.count(QStringLiteral("<section>")), 4);
    EXPECT_EQ(semSolucao.count(QStringLiteral("<section>")), 2);
    // Each across word stands in a row of the grid, behind its number.
    for (const QString &campos : palavras) {
        const QStringList item = campos.split(u'\t');
        if (item[2] == u"H") {
            QString casas;
            for (const QChar letra : item[4]) {
                casas += QString(letra) + QStringLiteral(" │");
            }
            EXPECT_TRUE(texto.contains(item[1] + u'│' + casas)) << campos.toStdString();
        }
    }
}

TEST_F(Monta, ABankDroppedOnItGetsASheetBesideIt)
{
    GravaBanco(BancoAcentuado());
    EXPECT_EQ(Roda(QStringLiteral("%")).fim, 0);
    const QDir pasta(m_pasta.path());
    const QStringList folhas = pasta.entryList({QStringLiteral("Folha-*.html")});
    ASSERT_EQ(folhas.size(), 1);
    GravaBanco("casa;Lar\n" + QByteArray(100, 'x'));
    ExpectaRecusa(Roda(QStringLiteral("%")), QStringLiteral("não é um banco"));
    EXPECT_EQ(pasta.entryList({QStringLiteral("Folha-*")}), folhas);
}

#ifdef Q_OS_LINUX
TEST_F(Monta, SaysWhenItsOutputCannotBeWritten)
{
    GravaBanco(BancoAcentuado());
    QProcess processo;
    processo.setStandardOutputFile(QStringLiteral("/dev/full"));
    processo.start(QStringLiteral(QUADRELO_MONTA),
                   {QStringLiteral("--banco"), m_pasta.filePath(QStringLiteral("João.tes")),
                    QStringLiteral("--semente"), QStringLiteral("1")});
    EXPECT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitCode(), 2);
    EXPECT_TRUE(processo.readAllStandardError().startsWith("monta: "));
}
#endif
