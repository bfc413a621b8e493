#include "core/records/save_slot.h"

#include <gtest/gtest.h>

#include "core/files/ini_file.h"
#include "tests/core/test_board.h"
#include "tests/core/test_files.h"

namespace {

const QString ponto = QStringLiteral(".");

/// A file with a good game in slot 4.
QString ArquivoBom(const PastaDeTeste &pasta)
{
    const auto arquivo = pasta.Caminho("save.ini");
    EXPECT_TRUE(SalvaSlot(arquivo, 4, QStringLiteral("bom"), TabuleiroDeTeste(), 300.25, ponto));
    return arquivo;
}

void Troca(const QString &arquivo, const char16_t *chave, const char16_t *valor)
{
    WritePrivateProfileStringA(QStringLiteral("jogo4"), QString::fromUtf16(chave),
                               QString::fromUtf16(valor), arquivo);
}

} // namespace

TEST(Slot, ComesBackAsItWasSaved)
{
    PastaDeTeste pasta;
    const auto arquivo = ArquivoBom(pasta);
    const auto tabuleiro = TabuleiroDeTeste();
    const auto lido = LeSlot(arquivo, 4);
    ASSERT_TRUE(std::holds_alternative<JogoSalvo>(lido));
    const auto &jogo = std::get<JogoSalvo>(lido);
    EXPECT_EQ(jogo.tempo, 300.25);
    for (size_t n = 1; n <= kItens; ++n) {
        const auto &item = jogo.itens[n];
        const auto &salvo = tabuleiro.ItemPalavra[n];
        EXPECT_EQ(item.Palavra, salvo.Palavra);
        EXPECT_EQ(item.Dica, salvo.Dica);
        EXPECT_EQ(item.Sentido, salvo.Sentido);
        EXPECT_EQ(item.Ponto, salvo.Ponto);
        EXPECT_EQ(item.ItemResolvido, salvo.ItemResolvido);
    }
    EXPECT_TRUE(std::holds_alternative<FalhaDoSlot>(LeSlot(arquivo, 5)));
}

TEST(Slot, IsWrittenInItsOrderAndLeavesTheOthers)
{
    PastaDeTeste pasta;
    const auto arquivo = ArquivoBom(pasta);
    const auto quatro = pasta.Conteudo(arquivo);
    EXPECT_TRUE(quatro.startsWith("[jogo4]\r\nNome=bom\r\nPalavra1=\xC1\xC7\xC3O"
                                  "DE\r\nDica1=Dica 1 do jogo 1\r\nPonto1=1\r\nSentido1=H\r\n"
                                  "ItemResolvido1=False\r\nPalavra2="));
    EXPECT_TRUE(quatro.endsWith("Sentido26=V\r\nItemResolvido26=False\r\nTempo=300.25\r\n"));

    const auto jogo = TabuleiroDeTeste(2);
    EXPECT_TRUE(SalvaSlot(arquivo, 10, QStringLiteral("   "), jogo, 7, QStringLiteral(",")));
    EXPECT_TRUE(SalvaSlot(arquivo, 10, QStringLiteral("Zé"), jogo, 0.5, QStringLiteral(",")));
    const auto dez = pasta.Conteudo(arquivo);
    EXPECT_TRUE(dez.startsWith(quatro + "[jogo10]\r\nNome=Z\xE9\r\n"));
    EXPECT_TRUE(dez.endsWith("\r\nTempo=0,5\r\n"));
    EXPECT_EQ(dez.count('\n'), 2 * quatro.count('\n')) << "each key once";
    EXPECT_EQ(std::get<JogoSalvo>(LeSlot(arquivo, 10)).tempo, 0.5);
}

TEST(Slot, GivesItsNameWithoutBlanks)
{
    PastaDeTeste pasta;
    const auto nomes =
        NomesDosSlots(
            pasta.Arquivo(
                "save.ini",
                "[jogo1]\nNome=um  \n[jogo3]\nNome=   \n[jogo10]\nnome=\"dez\"\n[jogo11]\nNome=x"))
            .nome;
    EXPECT_EQ(nomes[1], u"um");
    EXPECT_EQ(nomes[2] + nomes[3] + nomes[0], QString());
    EXPECT_EQ(nomes[10], u"dez");
}

TEST(Slot, IsRefusedForEachKindOfDamage)
{
    struct Caso
    {
        const char16_t *chave, *valor;
        FalhaDoSlot falha;
    };
    for (const auto &[chave, valor, falha] : {
             Caso{u"Palavra26", u"", FalhaDoSlot::Palavra},
             Caso{u"Palavra1", u"ÁÇ\x01O", FalhaDoSlot::Palavra},
             Caso{u"Palavra1", u"ÁÇÃODEFGHIJKLMNO", FalhaDoSlot::Palavra},
             Caso{u"Ponto3", u"", FalhaDoSlot::Lugar},
             Caso{u"Ponto3", u"0", FalhaDoSlot::Lugar},
             Caso{u"Ponto3", u"573", FalhaDoSlot::Lugar},
             Caso{u"Ponto3", u"65589", FalhaDoSlot::Lugar},
             Caso{u"Ponto3", u"53x", FalhaDoSlot::Lugar},
             Caso{u"Ponto20", u"515", FalhaDoSlot::Lugar}, // seven letters from the 21st column
             Caso{u"Ponto26", u"370", FalhaDoSlot::Lugar}, // nine letters from the 15th row
             Caso{u"Sentido3", u"", FalhaDoSlot::Lugar},
             Caso{u"Sentido3", u"M", FalhaDoSlot::Lugar},
             Caso{u"Sentido3", u"HV", FalhaDoSlot::Lugar},
             Caso{u"Palavra22", u"ÇÇÇÇC", FalhaDoSlot::Cruzamento},
             Caso{u"Ponto21", u"54", FalhaDoSlot::Cruzamento},
             Caso{u"Ponto2", u"1", FalhaDoSlot::Sobreposicao},
             Caso{u"ItemResolvido9", u"", FalhaDoSlot::Resolvido},
             Caso{u"ItemResolvido9", u"2", FalhaDoSlot::Resolvido},
             Caso{u"Tempo", u"", FalhaDoSlot::Tempo},
             Caso{u"Tempo", u"-1", FalhaDoSlot::Tempo},
             Caso{u"Tempo", u"nan", FalhaDoSlot::Tempo},
             Caso{u"Tempo", u"inf", FalhaDoSlot::Tempo},
             Caso{u"Tempo", u"1e300", FalhaDoSlot::Tempo},
             Caso{u"Tempo", u"1.000,5", FalhaDoSlot::Tempo},
         }) {
        PastaDeTeste pasta;
        const auto arquivo = ArquivoBom(pasta);
        Troca(arquivo, chave, valor);
        const auto lido = LeSlot(arquivo, 4);
        const auto *motivo = std::get_if<FalhaDoSlot>(&lido);
        EXPECT_TRUE(motivo && *motivo == falha) << QString::fromUtf16(chave).toStdString() << '='
                                                << QString::fromUtf16(valor).toStdString();
    }
}

TEST(Slot, IsAcceptedAtTheLimitsAndInOtherForms)
{
    PastaDeTeste pasta;
    const auto arquivo = ArquivoBom(pasta);
    Troca(arquivo, u"Palavra1", u"ÁÇÃODEFGHIJKLMN"); // fifteen letters
    Troca(arquivo, u"Ponto20", u"566");              // seven letters up to cell 572
    Troca(arquivo, u"Ponto26", u"354");              // nine letters down to the last row
    Troca(arquivo, u"ItemResolvido1", u"TRUE");
    Troca(arquivo, u"ItemResolvido2", u"-1");
    Troca(arquivo, u"ItemResolvido3", u"0");
    Troca(arquivo, u"Dica1", u"");
    Troca(arquivo, u"Tempo", u"0");
    const auto lido = LeSlot(arquivo, 4);
    ASSERT_TRUE(std::holds_alternative<JogoSalvo>(lido));
    const auto &itens = std::get<JogoSalvo>(lido).itens;
    EXPECT_TRUE(itens[1].ItemResolvido && itens[2].ItemResolvido && !itens[3].ItemResolvido);
}
