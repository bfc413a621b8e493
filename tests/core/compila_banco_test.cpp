#include <gtest/gtest.h>

#include "tests/core/test_files.h"
#include <QCoreApplication>
#include <QProcess>

// The bank compiler as a program of its own.

namespace {

class CompilaBancoPrograma : public testing::Test
{
protected:
    /// Exit status; what the program says stands in m_fala.
    int Roda(const QStringList &argumentos)
    {
        QProcess processo;
        processo.setProcessChannelMode(QProcess::MergedChannels);
        processo.start(QStringLiteral(QUADRELO_COMPILA_BANCO), argumentos);
        EXPECT_TRUE(processo.waitForFinished(-1));
        m_fala = QString::fromUtf8(processo.readAll());
        return processo.exitCode();
    }

    int m_argc = 1;
    char m_nome[6] = "teste";
    char *m_argv[2] = {m_nome, nullptr};
    QCoreApplication m_aplicacao{m_argc, m_argv};
    PastaDeTeste m_pasta;
    QString m_fala;
};

} // namespace

TEST_F(CompilaBancoPrograma, MakesABankBesideAListDroppedOnItAndAListOfTheBank)
{
    const QByteArray fonte = PastaDeTeste::Conteudo(QStringLiteral(QUADRELO_FONTE));
    const QString lista = m_pasta.Arquivo("João & cia.tsv", fonte);
    EXPECT_EQ(Roda({lista}), 0) << m_fala.toStdString();
    EXPECT_TRUE(m_fala.contains(u"Palavras diferentes: 3000.")) << m_fala.toStdString();
    const QString banco = m_pasta.Caminho("Perguntas.tes");
    const QByteArray registros = PastaDeTeste::Conteudo(banco);
    EXPECT_EQ(registros.size(), 3000 * 76);

    EXPECT_EQ(Roda({QStringLiteral("--extrai"), banco, m_pasta.Caminho("volta.tsv")}), 0);
    EXPECT_EQ(Roda({m_pasta.Caminho("volta.tsv"), m_pasta.Caminho("volta.tes")}), 0);
    EXPECT_EQ(PastaDeTeste::Conteudo(m_pasta.Caminho("volta.tes")), registros);
}

TEST_F(CompilaBancoPrograma, RefusesInPortugueseAndLeavesTheOldBankAlone)
{
    const QString banco = m_pasta.Arquivo("Perguntas.tes", "velho");
    const QString faltosa = m_pasta.Arquivo("faltosa.csv", "de;Duas\ncasa;Lar\nx-y;Hífen\n");
    const QString uma = m_pasta.Arquivo("uma.csv", "casas;Lar\n");
    const QString folha = m_pasta.Arquivo("mesma.csv", "casas;Lar\n");
    const QString extrai = QStringLiteral("--extrai");
    const QString casa = QStringLiteral("--regras-da-casa");
    struct Caso
    {
        QStringList argumentos;
        const char *fala;
    };
    for (const Caso &caso :
         {Caso{{}, "uso: "},
          {{QStringLiteral("--tudo"), uma}, "uso: "},
          {{uma, banco, banco}, "uso: "},
          {{casa, uma}, "uso: "},
          {{faltosa}, "linha 3: "},
          {{uma}, "pequeno demais, com 1 "},
          {{m_pasta.Caminho("falta.csv")}, "não existe"},
          {{m_pasta.Caminho("."), banco}, "é uma pasta"},
          {{extrai, uma}, "não é um banco"},
          {{casa, uma, banco}, "uma.csv:1: "},
          {{QStringLiteral(QUADRELO_FONTE), m_pasta.Caminho("sem/pasta.tes")},
           "não pôde ser gravado"},
          {{QStringLiteral(QUADRELO_FONTE), m_pasta.Caminho(".")}, "não pôde ser gravado"}}) {
        EXPECT_EQ(Roda(caso.argumentos), 2) << caso.fala;
        EXPECT_TRUE(m_fala.contains(QString::fromUtf8(caso.fala))) << m_fala.toStdString();
    }
    EXPECT_EQ(PastaDeTeste::Conteudo(banco), "velho");
    EXPECT_EQ(m_pasta.Lista().size(), 4);
}

TEST_F(CompilaBancoPrograma, DoesNotWriteOverTheListItReads)
{
    const QByteArray fonte = PastaDeTeste::Conteudo(QStringLiteral(QUADRELO_FONTE));
    const QString lista = m_pasta.Arquivo("Perguntas.tes", fonte);
    EXPECT_EQ(Roda({lista}), 2);
    EXPECT_TRUE(m_fala.contains(u"apagaria")) << m_fala.toStdString();
    EXPECT_EQ(PastaDeTeste::Conteudo(lista), fonte);
}
