#pragma once

#include "tests/ui/support/dialog_script.h"
#include "tests/ui/support/player.h"
#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QTest>

/// A test that opens dialogs from a game in play.
class TesteComDialogos : public ::testing::Test
{
protected:
    /// Starts a game on a screen of `dpi` dots per inch, with an empty ranking; what the start has
    /// sounded is forgotten.
    explicit TesteComDialogos(int dpi = toolkit::kDpiPadrao) : jogo(1, BancoInventado(600), dpi)
    {
        jogo.Comeca();
        if (!QTest::qWaitForWindowActive(&jogo.form->Janela())) {
            qFatal("the main form does not become active");
        }
        jogo.maquina.sons.clear();
        QFile::remove(Dados(kArquivoRanking));
    }

    /// Path of a file among those that the program writes.
    [[nodiscard]] QString Dados(QStringView nome) const
    {
        return Caminho(jogo.valores.PastaDados, nome);
    }
    /// A click on menu entry `k`, 0 to 5.
    void Menu(int k) { ClicaNaJanela(*jogo.c().Label3[static_cast<size_t>(k)]); }
    /// Lets the clock tick and gives what it shows.
    QString Relogio()
    {
        jogo.c().Timer1.Tique();
        return jogo.c().Label2.Caption();
    }

    PartidaDeTeste jogo;
    RoteiroDialogos dialogos;
};
