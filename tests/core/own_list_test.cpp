#include "tools/own_list.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"
#include "tools/bank_verdict.h"
#include "tools/house_rules.h"

namespace {

QString Lida(const QByteArray &bytes)
{
    const ListaPropria lista = LeLista(bytes);
    QStringList pares = lista.faltas;
    for (const EntradaFonte &e : lista.entradas) {
        pares << QStringLiteral("%1 %2=%3").arg(QString::number(e.linha), e.palavra, e.dica);
    }
    return pares.join(u'|');
}

} // namespace

TEST(OwnList, TakesWhatPeopleAndSpreadsheetsWrite)
{
    struct Caso
    {
        QByteArray lista;
        const char *lida;
    };
    for (const Caso &caso : {
             Caso{"casa\tLar", "1 CASA=Lar"},
             {"\xEF\xBB\xBF"
              "cora\xC3\xA7\xC3\xA3o;Bate, bate\tbate\r\n",
              "linha 1: a dica tem um caractere invisível (U+0009), que o jogo não mostra; "
              "troque-o ou apague-o|1 CORAÇÃO=Bate, bate\tbate"},
             {"coração,Bate\rrim;Filtra\r", "1 CORAÇÃO=Bate|2 RIM=Filtra"},
             {"\n  # nada\n\"#;\"\n;;;\n casa ; Lar \n", "5 CASA=Lar"},
             {"Palavra;Dica\ncasa;Lar\npalavra;dica", "2 CASA=Lar|3 PALAVRA=dica"},
             {"\"casa\";\"Lar; \"\"doce\"\" lar\";;\n", "1 CASA=Lar; \"doce\" lar"},
             {"casa\t\"O\" ou \"a\", antes\ncasa;\"Lar\" ;\n",
              "1 CASA=\"O\" ou \"a\", antes|2 CASA=Lar"},
             {"a\xCC\x83o3;A\xCC\x83 \xE2\x82\xAC", "1 ÃO3=Ã €"},
         }) {
        EXPECT_EQ(Lida(caso.lista).toStdString(), caso.lida);
    }
}

TEST(OwnList, TellsAllFaultsWithTheirLines)
{
    const QByteArray lista = "de;Duas\n"                    // 1
                             "guarda-sol;Abre na praia\n"   // 2
                             "casa\n"                       // 3
                             ";Sem palavra\n"               // 4
                             "casa;Lar;doce\n"              // 5
                             "casa;\"Aberta\n"              // 6
                             "%2%1;Lar\n"                   // 7
                             "bola;Rola \xF0\x9F\x98\x80\n" // 8
                             "gato;" +
                             QByteArray(61, 'x') +
                             "\n" // 9
                             "Stra\xC3\x9F"
                             "e;" +
                             QByteArray(60, 'x') +
                             "\n"                      // 10: good
                             "ovo\xEF\xBB\xBF;Clara\n" // 11
                             "ovo;\xEF\xBB\xBF";
    const QStringList faltas = LeLista(lista).faltas;
    const std::vector<const char *> esperadas{
        "linha 1: a palavra \"DE\" tem 2 letras; use uma de 3 a 15",
        "linha 2: a palavra \"GUARDA-SOL\" tem \"-\"",
        "linha 3: falta a dica de \"casa\"",
        "linha 4: falta a palavra",
        "linha 5: há 3 colunas",
        "linha 6: as aspas não se fecham",
        "linha 7: a palavra \"%2%1\" tem \"%\"",
        "linha 8: a dica tem \"\xF0\x9F\x98\x80\"",
        "linha 9: a dica tem 61 caracteres",
        "linha 11: a palavra \"OVO\xEF\xBB\xBF\" tem um caractere invisível (U+feff)",
        "linha 12: a dica tem um caractere invisível (U+feff)",
    };
    ASSERT_EQ(size_t(faltas.size()), esperadas.size()) << faltas.join(u'\n').toStdString();
    for (qsizetype k = 0; k < faltas.size(); ++k) {
        EXPECT_TRUE(faltas[k].startsWith(QString::fromUtf8(esperadas[size_t(k)])))
            << faltas[k].toStdString();
    }
}

TEST(OwnList, RefusesWhatIsNoListInOneSentence)
{
    const QByteArray cheia = QByteArray("casa;Lar\n").repeated(3001);
    for (const auto &[bytes, motivo] : std::vector<std::pair<QByteArray, const char *>>{
             {"", "nenhuma palavra"},
             {"\xEF\xBB\xBF# nada\n", "nenhuma palavra"},
             {"casa;Lar\ncora\xE7\xE3o;Bate\na;b\n", "linha 2: o texto não está em UTF-8"},
             {"PK\x03\x04xlsx", "planilha"},
             {QByteArray("\xFF\xFE"
                         "c\0a\0",
                         6),
              "UTF-16"},
             {QByteArray("GIF\0", 4), "não é um texto"},
             {QByteArray(int(kMaximoDaLista) + 1, 'a'), "grande demais"},
             {cheia, "tire 1"},
         }) {
        const QStringList faltas = LeLista(bytes).faltas;
        ASSERT_EQ(faltas.size(), 1) << motivo;
        EXPECT_TRUE(faltas[0].contains(QString::fromUtf8(motivo))) << faltas[0].toStdString();
    }
    EXPECT_EQ(LeLista(cheia.chopped(9)).faltas, QStringList());
}

TEST(OwnList, GivesABankBackAsTheListItCameFrom)
{
    const QByteArray fonte = PastaDeTeste::Conteudo(QStringLiteral(QUADRELO_FONTE));
    const QByteArray banco = CompilaBanco(LeFonte(fonte).entradas);
    const QByteArray lista = ExtraiLista(banco);
    const ListaPropria lida = LeLista(lista);
    EXPECT_EQ(lida.faltas, QStringList());
    EXPECT_EQ(CompilaBanco(lida.entradas), banco);
    // A clue that begins and ends with a quotation mark, and one that has no other.
    EXPECT_EQ(
        ExtraiLista(CompilaBanco({{1, QStringLiteral("AVO"), QStringLiteral("\"a\" \"b\"")}})),
        "AVO\t\"\"\"a\"\" \"\"b\"\"\"\n");
    EXPECT_EQ(ExtraiLista(CompilaBanco({{1, QStringLiteral("AVO"), QStringLiteral("\"o")}})),
              "AVO\t\"\"\"o\"\n");
    EXPECT_EQ(ExtraiLista(QByteArray(76, ' ') + "CASA" + QByteArray(72, ' ')), "CASA\t\n");

    EXPECT_TRUE(PareceBanco(banco));
    EXPECT_FALSE(PareceBanco(fonte));
    EXPECT_FALSE(PareceBanco(banco.left(75)));
}

TEST(BankVerdict, SaysHowSoonWordsComeBackAndWhatIsTooSmall)
{
    const ListaPropria exemplo = LeLista(PastaDeTeste::Conteudo(QStringLiteral(QUADRELO_EXEMPLO)));
    ASSERT_EQ(exemplo.faltas, QStringList());
    EXPECT_EQ(exemplo.entradas.size(), 60u);
    const JulgamentoBanco bom = JulgaBanco(CompilaBanco(exemplo.entradas), 3);
    EXPECT_TRUE(bom.serve);
    EXPECT_EQ(bom.jogos, 3);
    EXPECT_EQ(bom.palavras, 60);
    // Three puzzles of 26 need 78 words: some must have come back, none more than two games later.
    EXPECT_GE(bom.volta, 1);
    EXPECT_LE(bom.volta, 2);

    for (const size_t quantas : {1, 25}) {
        const auto inicio = exemplo.entradas.begin();
        const JulgamentoBanco curto =
            JulgaBanco(CompilaBanco({inicio, inicio + static_cast<std::ptrdiff_t>(quantas)}), 3);
        EXPECT_FALSE(curto.serve);
        EXPECT_EQ(curto.jogos, 0);
        EXPECT_TRUE(FalaJulgamentoBanco(curto).last().startsWith(u"pequeno demais, com "));
    }
}
