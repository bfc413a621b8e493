#include "core/machine/command_line.h"

#include <gtest/gtest.h>

TEST(LeLinhaDeComando, TakesAScaleOrSaysSomethingInstead)
{
    struct Caso
    {
        const char *linha;
        double escala; // 0: none
        const char *diz;
        bool erro = false;
    };
    for (const Caso &caso : std::initializer_list<Caso>{
             {"", 0, ""},
             {"-platform offscreen jogo", 0, ""},
             {"--escala 1.5", 1.5, ""},
             {"--escala 1,5", 1.5, ""},
             {"--escala=2", 2, ""},
             {"--escala 0.5 --escala 4", 4, ""},
             {"--escala 0.49", 0, "\"0.49\" não serve", true},
             {"--escala 4,01", 0, "\"4,01\" não serve", true},
             {"--escala", 0, "de 0,5 a 4", true},
             {"--escala= 1", 0, "\"\" não serve", true},
             {"--escala -platform offscreen", 0, "\"-platform\" não serve", true},
             {"--escala 1.5.0", 0, "não serve", true},
             {"--escala 1e0", 0, "não serve", true},
             {"--escala .9", 0, "não serve", true},
             {"--escala 2.", 0, "não serve", true},
             {"--escala +2", 0, "não serve", true},
             {"--escala nan", 0, "não serve", true},
             {"--escala grande --ajuda", 0, "não serve", true},
             {"--escla 2", 0, "não conheço a opção --escla", true},
             {"--versao", 0, "Quadrelo 1.", false},
             {"--ajuda --escala grande", 0, "--escala NÚMERO"},
         }) {
        const QStringList argumentos =
            QString::fromUtf8(caso.linha).split(u' ', Qt::SkipEmptyParts);
        const LinhaDeComando linha = LeLinhaDeComando(argumentos);
        EXPECT_EQ(linha.escala.value_or(0), caso.escala) << caso.linha;
        EXPECT_EQ(linha.texto.isEmpty(), *caso.diz == '\0') << caso.linha;
        EXPECT_TRUE(linha.texto.contains(QString::fromUtf8(caso.diz))) << qPrintable(linha.texto);
        EXPECT_EQ(linha.erro, caso.erro) << caso.linha;
    }
}
