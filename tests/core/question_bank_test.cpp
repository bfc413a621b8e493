#include "core/bank/question_bank.h"

#include <gtest/gtest.h>

#include "support/sample_banks.h"
#include "tools/house_rules.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

QByteArray Registro(const QByteArray &palavra, const QByteArray &dica, char fim = ' ')
{
    return palavra.leftJustified(15, ' ') + dica.leftJustified(60, ' ') + fim;
}

} // namespace

TEST(QuestionBank, CountsWholeRecordsUpToThreeThousand)
{
    const QTemporaryDir pasta;
    const QString arquivo = pasta.filePath(QStringLiteral("Perguntas.tes"));
    const QByteArray bytes = RegistrosDe(PalavrasDeSilabas(5000, 3));
    const auto palavras = LePalavrasLento(bytes);
    for (const auto &[tamanho, perguntas] : {std::pair{0, 0},
                                             {75, 0},
                                             {76, 1},
                                             {76 * 3 + 10, 3},
                                             {76 * 3000, 3000},
                                             {76 * 3001, 3000},
                                             {76 * 5000, 3000}}) {
        QFile ficheiro(arquivo);
        ASSERT_TRUE(ficheiro.open(QIODevice::WriteOnly));
        ficheiro.write(bytes.left(tamanho));
        ficheiro.close();
        BancoPerguntas banco;
        banco.BancoPalavra.fill(QStringLiteral("VELHA"));
        CarregaLista(banco, arquivo);
        ASSERT_EQ(banco.QtdPerguntas, perguntas) << tamanho;
        for (size_t k = 0; k < banco.BancoPalavra.size(); ++k) {
            const bool lida = k <= size_t(perguntas);
            ASSERT_EQ(banco.BancoPalavra[k], lida ? palavras[k] : QString()) << k;
            ASSERT_EQ(banco.BancoDica[k],
                      lida && k > 0 ? QStringLiteral("pista %1").arg(k) : QString());
        }
        EXPECT_EQ(QFile(arquivo).size(), tamanho);
    }
}

TEST(QuestionBank, CutsBlanksAndNothingElse)
{
    struct Caso
    {
        QByteArray registro;
        QString palavra, dica;
    };
    const std::vector<Caso> casos{
        {Registro("  A\xC7\xC3O", "Feito \x80 5", '\0'), QStringLiteral("AÇÃO"),
         QStringLiteral("Feito € 5")},
        {Registro("", "", 'X'), {}, {}},
        {Registro("SOL", " dois  blanks ", '\n'), QStringLiteral("SOL"),
         QStringLiteral("dois  blanks")},
        {Registro(QByteArray("\0NU\0", 4), "\t tab \xA0", '\x1A'), QStringLiteral("\0NU\0"),
         QStringLiteral("\t tab \u00A0")},
        {Registro("QUINZELETRASSSS", QByteArray(60, 'D')), QStringLiteral("QUINZELETRASSSS"),
         QString(60, u'D')},
    };
    QByteArray bytes;
    for (const Caso &caso : casos) {
        bytes += caso.registro;
    }
    BancoPerguntas banco;
    CarregaRegistros(banco, bytes);
    ASSERT_EQ(banco.QtdPerguntas, 5);
    for (size_t k = 0; k < casos.size(); ++k) {
        EXPECT_EQ(banco.BancoPalavra[k + 1], casos[k].palavra) << k;
        EXPECT_EQ(banco.BancoDica[k + 1], casos[k].dica) << k;
    }
}

TEST(QuestionBank, AMissingFileIsCreatedEmptyAndAFolderReadsAsNoBank)
{
    const QTemporaryDir pasta;
    BancoPerguntas banco;
    CarregaRegistros(banco, RegistrosDe({"SOBRA"}));
    const QString falta = pasta.filePath(QStringLiteral("Conceição.tes"));
    CarregaLista(banco, falta);
    EXPECT_EQ(banco.QtdPerguntas, 0);
    EXPECT_EQ(banco.BancoPalavra[1], QString());
    EXPECT_TRUE(QFile::exists(falta));
    EXPECT_EQ(QFile(falta).size(), 0);

    CarregaRegistros(banco, RegistrosDe({"SOBRA"}));
    CarregaLista(banco, pasta.path());
    EXPECT_EQ(banco.QtdPerguntas, 0);
    CarregaLista(banco, pasta.filePath(QStringLiteral("sem/pasta.tes")));
    EXPECT_EQ(banco.QtdPerguntas, 0);
}

TEST(BankSource, RefusesEachBrokenRuleWithItsLineAndReason)
{
    struct Caso
    {
        const char *segunda;
        /// What the one complaint, about line 2, holds.
        const char *motivo;
    };
    const QByteArray antes("CASA\tOnde se mora\n");
    for (const Caso &caso : {
             Caso{"DE\tDuas letras apenas", "2 letters"},
             {"DEZESSEISLETRASS\tPalavra longa demais", "16 letters"},
             {"D\xC3\x8AixE\tLetra pequena no meio", "\"i\""},
             {"GUARDA SOL\tAbre na praia", "\" \""},
             {"GUARDA-SOL\tAbre na praia", "\"-\""},
             {"PI\xC3\x91"
              "A\tFesta alheia",
              "no cell accepts"},
             {"DOIS Um par", "one tab"},
             {"DOIS\tUm par\tSobra", "one tab"},
             {"", "one tab"},
             {"DOIS\tCurta", "5 characters"},
             {"DOIS\tUm texto que, contado com todo o cuidado, tem sessenta e um.ab", "6 to 60"},
             {"DOIS\t Antes do tr\xC3\xAAs", "blank"},
             {"DOIS\tAntes do tr\xC3\xAAs ", "blank"},
             {"DOIS\tAntes  do tr\xC3\xAAs", "blank"},
             {"DOIS\tAntes do tr\xC3\xAAs\r", "blank"},
             {"DOIS\tDepois do \xD0\xB6 russo", "Windows-1252"},
             {"\xC3\x8DNDIO\tO dia do indio", "answer"},
             {"PADARIA\tVende o que o padario faz", "stem"},
             {"DOIS\t\"Antes do terceiro\"", "quotation mark"},
             {"MORA\tFica em casa", "names CASA, whose clue in line 1 names MORA"},
             {"CASA\tOutra pista da palavra", "word stands in line 1"},
             {"DOIS\tOnde se mora", "clue stands in line 1"},
             {"BOLA\tRola no campo", "out of order behind \"CASA\""},
         }) {
        SCOPED_TRACE(caso.segunda);
        const FonteBanco fonte = LeFonte(antes + caso.segunda + '\n');
        ASSERT_EQ(fonte.faltas.size(), 1) << fonte.faltas.join(u'\n').toStdString();
        EXPECT_TRUE(fonte.faltas[0].startsWith(u"2: ")) << fonte.faltas[0].toStdString();
        EXPECT_TRUE(fonte.faltas[0].contains(QString::fromUtf8(caso.motivo)))
            << fonte.faltas[0].toStdString();
    }
    EXPECT_EQ(LeFonte("CASA\tOnde se mor\xE1 sempre\n").faltas.size(), 1);
}

TEST(BankSource, TakesThreeThousandEntriesAndNoMore)
{
    const auto faltas = [](int quantas) {
        QByteArray fonte;
        for (int k = 0; k < quantas; ++k) {
            const QByteArray numero = QByteArray::number(100000 + k);
            fonte += 'W' + numero + "\tPista de numero " + QByteArray::number(k) + '\n';
        }
        return LeFonte(fonte).faltas;
    };
    EXPECT_EQ(faltas(3000), QStringList());
    EXPECT_EQ(faltas(3001).join(u'|'), QStringLiteral("3001: more than 3000 entries"));
}

TEST(BankSource, CompilesASoundSourceToItsExactBytes)
{
    const FonteBanco fonte = LeFonte(
        "A\xC3\x87\xC3\x83O\tFilme de correria \xE2\x82\xAC 5\nCASA4567890ABCD\tOnde se mora");
    ASSERT_EQ(fonte.faltas, QStringList());
    EXPECT_EQ(CompilaBanco(fonte.entradas), Registro("A\xC7\xC3O", "Filme de correria \x80 5") +
                                                Registro("CASA4567890ABCD", "Onde se mora"));
    EXPECT_EQ(CompilaBanco({}), QByteArray());
}
