#include "core/records/ranking_table.h"
#include "tests/core/test_files.h"
#include "tests/ui/support/dialog_game.h"
#include "ui/records/ranking_check.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {

constexpr int kMenuRanking = 4;

/// Tempo and Nome of a place as the ranking's form shows them.
QString Linha(const toolkit::Form &form, int p)
{
    const auto legenda = [&form, p](const char16_t *coluna) {
        return forms::Acha<toolkit::Label>(form, coluna, p).Caption();
    };
    return legenda(u"Label1") + u' ' + legenda(u"Label2") + u' ' + legenda(u"Label3");
}

class Ranking : public TesteComDialogos
{
protected:
    QString Arquivo() { return Dados(kArquivoRanking); }

    /// Five places with 100 to 500 seconds, held by A to E.
    void CincoLugares()
    {
        QFile::remove(Arquivo());
        for (int p = 1; p <= kLugares; ++p) {
            ASSERT_TRUE(GravaLugar(Arquivo(), p, QString(QChar(u'@' + p)), 100 * p));
        }
    }

    QString Nomes()
    {
        QString nomes;
        for (const LinhaRanking &linha : LeRanking(Arquivo())) {
            nomes += linha.Nome;
        }
        return nomes;
    }

    /// The name's dialog gets `texto` and is closed by `tecla`, the ranking by Enter.
    void EsperaNome(const QString &texto, Qt::Key tecla = Qt::Key_Return)
    {
        dialogos.Espera(QStringLiteral("FrmSeuNome"), [texto, tecla](toolkit::Form &form) {
            Digita(form, texto);
            EXPECT_LE(forms::Acha<toolkit::TextBox>(form, u"Text1").Text().size(), kTamanhoNome);
            Tecla(form, tecla);
        });
        dialogos.Espera(QStringLiteral("FrmHanking"),
                        [](toolkit::Form &form) { Tecla(form, Qt::Key_Enter); });
    }
};

} // namespace

TEST_F(Ranking, TakesTheTimeOfAFinishedGame)
{
    jogo.maquina.agora += 3723.9;
    dialogos.Espera(QStringLiteral("FrmSeuNome"), [this](toolkit::Form &form) {
        // No place has been written yet.
        EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), QByteArray("(missing)"));
        Digita(form, QStringLiteral("  José "));
        Tecla(form, Qt::Key_Return);
    });
    dialogos.Espera(QStringLiteral("FrmHanking"), [](toolkit::Form &form) {
        EXPECT_EQ(Linha(form, 1), QStringLiteral("01 01:02:03 José"));
        for (int p = 2; p <= kLugares; ++p) {
            EXPECT_EQ(Linha(form, p), QStringLiteral("0%1 . .").arg(p));
        }
        Tecla(form, Qt::Key_Escape);
    });
    jogo.ResolveAte(kItens - 1);
    const int ultimo = PrimeiroAberto(jogo.d().tabuleiro);
    jogo.Seleciona(ultimo);
    const QString letras = jogo.LetrasLivres(ultimo);
    jogo.Digita(letras.chopped(1));
    // The last letter comes from an input method, which must have finished before a form opens.
    QInputMethodEvent letra;
    letra.setCommitString(letras.last(1));
    QApplication::sendEvent(jogo.form->Janela().focusWidget(), &letra);
    EXPECT_EQ(dialogos.Pendentes(), 2U);
    QCoreApplication::processEvents();
    EXPECT_TRUE(PastaDeTeste::Conteudo(Arquivo()).contains(
        "[Ranking1]\r\nNome=Jos\xE9          \r\nTempo=3723"));
    EXPECT_TRUE(jogo.maquina.mensagens.isEmpty());
    EXPECT_EQ(dialogos.Pendentes(), 0U);
}

TEST_F(Ranking, TakesANameOnEveryWayOfClosing)
{
    struct Caso
    {
        const char *nome;
        QString digitado;
        Qt::Key tecla;
        QString noArquivo;
    };
    const std::array casos = {
        Caso{"Esc takes it too", QStringLiteral("Ana"), Qt::Key_Escape, QStringLiteral("Ana")},
        Caso{"fourteen characters", QStringLiteral("abcdefghijklmnop"), Qt::Key_Return,
             QStringLiteral("abcdefghijklmn")},
        Caso{"empty", {}, Qt::Key_Return, QStringLiteral("Sem Nome")},
        Caso{"blanks only", QStringLiteral("   "), Qt::Key_Escape, QStringLiteral("Sem Nome")},
    };
    int t = 1000;
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.nome);
        EsperaNome(caso.digitado, caso.tecla);
        EXPECT_TRUE(VerificaRecords(jogo.Dialogo(), --t));
        EXPECT_EQ(LeRanking(Arquivo())[1].Nome, caso.noArquivo);
    }
    // The picture's close button has no action there; the keyboard reaches the button.
    dialogos.Espera(QStringLiteral("FrmSeuNome"), [](toolkit::Form &form) {
        ClicaNaJanela(forms::Acha<toolkit::Image>(form, u"Image1"));
        EXPECT_TRUE(form.isVisible());
        Tecla(form, Qt::Key_Tab);
        Tecla(form, Qt::Key_Space);
    });
    dialogos.Espera(QStringLiteral("FrmHanking"),
                    [](toolkit::Form &form) { Tecla(form, Qt::Key_Escape); });
    EXPECT_TRUE(VerificaRecords(jogo.Dialogo(), --t));
}

TEST_F(Ranking, ClosesByAClickAnywhereButNotByADrag)
{
    const auto label = [](const char16_t *nome, int p) {
        return [nome, p](toolkit::Form &form) {
            ClicaNaJanela(forms::Acha<toolkit::Label>(form, nome, p));
        };
    };
    const std::array<RoteiroDialogos::Passos, 6> fechos = {
        label(u"Label1", 1),
        label(u"Label2", 3),
        label(u"Label3", 5),
        [](toolkit::Form &form) {
            ClicaNaJanela(form, {192, 195});
        },
        [](toolkit::Form &form) { ClicaNaJanela(forms::Acha<toolkit::Image>(form, u"Image1")); },
        [](toolkit::Form &form) {
            const QPoint naTira(200, 15);
            const QPoint ondeEstava = form.pos();
            QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, naTira);
            QTest::mouseMove(form.windowHandle(), naTira + QPoint(20, 10));
            QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, naTira);
            EXPECT_TRUE(form.isVisible());
            EXPECT_NE(form.pos(), ondeEstava);
            ClicaNaJanela(form, naTira);
        },
    };
    for (size_t k = 0; k < fechos.size(); ++k) {
        SCOPED_TRACE(k);
        dialogos.Espera(QStringLiteral("FrmHanking"), fechos[k]);
        Menu(kMenuRanking);
    }
}

TEST_F(Ranking, IsNotClosedByAKeyHeldFromTheFormBefore)
{
    dialogos.Espera(QStringLiteral("FrmHanking"), [](toolkit::Form &form) {
        QKeyEvent segurada(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
        QCoreApplication::sendEvent(&form, &segurada);
        EXPECT_TRUE(form.isVisible());
        Tecla(form, Qt::Key_Return);
    });
    Menu(kMenuRanking);
}

TEST_F(Ranking, StandsInTheMiddleOfItsOwnerAndStopsNoTimer)
{
    jogo.form->Janela().SetLeft(450);
    jogo.form->Janela().SetTop(300);
    jogo.c().Timer1.SetInterval(0);
    dialogos.Espera(QStringLiteral("FrmHanking"), [this](toolkit::Form &form) {
        const QPoint desvio = form.geometry().center() - jogo.form->Janela().geometry().center();
        EXPECT_LE(desvio.manhattanLength(), 2);
        jogo.maquina.agora += 61;
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return jogo.c().Label2.Caption() == QStringLiteral("00:01:01"); }));
        Tecla(form, Qt::Key_Escape);
    });
    Menu(kMenuRanking);
}

namespace {

class DialogsAtAnotherDpi : public TesteComDialogos
{
protected:
    DialogsAtAnotherDpi() : TesteComDialogos(120) {}
};

} // namespace

TEST_F(DialogsAtAnotherDpi, FitTheirPictures)
{
    dialogos.Espera(QStringLiteral("FrmCarregar"), [](toolkit::Form &form) {
        EXPECT_EQ(form.size(), QSize(251, 373));
        Tecla(form, Qt::Key_Escape);
    });
    Menu(2);
    dialogos.Espera(QStringLiteral("FrmSeuNome"), [](toolkit::Form &form) {
        EXPECT_EQ(form.size(), QSize(283, 99));
        // Text1 lies at 885 of 1485 twips.
        EXPECT_EQ(form.focusWidget()->y(), 59);
        Tecla(form, Qt::Key_Return);
    });
    dialogos.Espera(QStringLiteral("FrmHanking"), [](toolkit::Form &form) {
        EXPECT_EQ(form.size(), QSize(385, 206));
        Tecla(form, Qt::Key_Return);
    });
    EXPECT_TRUE(VerificaRecords(jogo.Dialogo(), 10));
}
