#include "core/records/ranking_table.h"
#include "tests/ui/support/dialogs.h"
#include "ui/records/ranking_check.h"

#include <QInputMethodEvent>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMenuRanking = 4;

class Ranking : public TesteComDialogos
{
protected:
    using TesteComDialogos::TesteComDialogos;

    void EsperaRanking(const RoteiroDialogos::Passos &passos)
    {
        dialogos.Espera(u"FrmHanking"_s, passos);
    }
    [[nodiscard]] QString Primeiro() const { return LeRanking(Dados(kArquivoRanking))[1].Nome; }
};

struct RankingEm120Dpi : Ranking
{
    RankingEm120Dpi() : Ranking(120) {}
};

RoteiroDialogos::Passos Tecle(Qt::Key tecla)
{
    return [tecla](toolkit::Form &form) { Tecla(form, tecla); };
}

} // namespace

TEST_F(Ranking, OpensBehindTheInputMethodThatGaveTheLastLetter)
{
    jogo.ResolveAte(kItens - 1);
    const int ultimo = PrimeiroAberto(jogo.d().tabuleiro);
    const QString letras = jogo.LetrasLivres(ultimo);
    jogo.Seleciona(ultimo);
    jogo.Digita(letras.chopped(1));
    jogo.valores.RegiaoJanela = 0;
    dialogos.Espera(u"FrmSeuNome"_s, [this](toolkit::Form &form) {
        EXPECT_EQ(jogo.valores.RegiaoJanela, 1) << "its corners are not cut";
        // The picture's close button has no action there; the keyboard reaches the button.
        Clica(forms::Acha<toolkit::Image>(form, u"Image1"));
        EXPECT_TRUE(form.isVisible());
        Digita(form, u"José"_s);
        Tecla(form, Qt::Key_Tab);
        Tecla(form, Qt::Key_Space);
    });
    EsperaRanking(Tecle(Qt::Key_Escape));
    QInputMethodEvent letra;
    letra.setCommitString(letras.last(1));
    QApplication::sendEvent(jogo.form->Janela().focusWidget(), &letra);
    EXPECT_EQ(dialogos.Pendentes(), 2U);
    QCoreApplication::processEvents();
    EXPECT_EQ(Primeiro(), u"José"_s);
}

TEST_F(Ranking, TakesANameOnEveryWayOfClosing)
{
    struct Caso
    {
        QString digitado, noArquivo;
        Qt::Key tecla;
    };
    int t = 1000;
    for (const Caso &caso : {Caso{u"Ana"_s, u"Ana"_s, Qt::Key_Escape},
                             {u"abcdefghijklmnop"_s, u"abcdefghijklmn"_s, Qt::Key_Return},
                             {u"   "_s, u"Sem Nome"_s, Qt::Key_Enter}}) {
        dialogos.Espera(u"FrmSeuNome"_s, [caso](toolkit::Form &form) {
            Digita(form, caso.digitado);
            Tecla(form, caso.tecla);
        });
        EsperaRanking(Tecle(Qt::Key_Enter));
        EXPECT_TRUE(VerificaRecords(jogo.Dialogo(), --t));
        EXPECT_EQ(Primeiro(), caso.noArquivo);
    }
}

TEST_F(Ranking, ClosesByAClickAnywhereButNotByADragOrAKeyHeldFromTheFormBefore)
{
    const auto label = [](const char16_t *nome, int p) {
        return [=](toolkit::Form &form) { Clica(forms::Acha<toolkit::Label>(form, nome, p)); };
    };
    const auto arrasta = [](toolkit::Form &form) {
        const QPoint naTira(200, 15), ondeEstava = form.pos();
        QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, naTira);
        QTest::mouseMove(form.windowHandle(), naTira + QPoint(20, 10));
        QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, naTira);
        EXPECT_TRUE(form.isVisible());
        EXPECT_NE(form.pos(), ondeEstava);
        Clica(form, naTira);
    };
    const auto segura = [](toolkit::Form &form) {
        QKeyEvent segurada(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
        QCoreApplication::sendEvent(&form, &segurada);
        EXPECT_TRUE(form.isVisible());
        Tecla(form, Qt::Key_Return);
    };
    const std::vector<RoteiroDialogos::Passos> fechos = {
        label(u"Label1", 1),
        label(u"Label2", 3),
        label(u"Label3", 5),
        [](toolkit::Form &form) {
            Clica(form, {192, 195});
        },
        [](toolkit::Form &form) { Clica(forms::Acha<toolkit::Image>(form, u"Image1")); },
        arrasta,
        segura};
    for (const auto &fecho : fechos) {
        EsperaRanking(fecho);
        jogo.Menu(kMenuRanking);
    }
}

TEST_F(Ranking, StandsInTheMiddleOfItsOwnerAndStopsNoTimer)
{
    jogo.form->Janela().SetLeft(450);
    jogo.form->Janela().SetTop(300);
    jogo.c().Timer1.SetInterval(0);
    EsperaRanking([this](toolkit::Form &form) {
        const QPoint desvio = form.geometry().center() - jogo.form->Janela().geometry().center();
        EXPECT_LE(desvio.manhattanLength(), 2);
        jogo.maquina.agora += 61;
        EXPECT_TRUE(QTest::qWaitFor([this] { return jogo.c().Label2.Caption() == u"00:01:01"; }));
        Tecla(form, Qt::Key_Escape);
    });
    jogo.Menu(kMenuRanking);
}

TEST_F(RankingEm120Dpi, FitsTheDialogsToTheirPictures)
{
    const auto mede = [](const QSize &tamanho) {
        return [tamanho](toolkit::Form &form) {
            EXPECT_EQ(form.size(), tamanho) << qPrintable(form.objectName());
            // Text1 lies at 885 of 1485 twips.
            EXPECT_TRUE(form.objectName() != u"FrmSeuNome" || form.focusWidget()->y() == 59);
            Tecla(form, form.objectName() == u"FrmCarregar" ? Qt::Key_Escape : Qt::Key_Return);
        };
    };
    dialogos.Espera(u"FrmCarregar"_s, mede({251, 373}));
    jogo.Menu(2);
    dialogos.Espera(u"FrmSeuNome"_s, mede({283, 99}));
    EsperaRanking(mede({385, 206}));
    EXPECT_TRUE(VerificaRecords(jogo.Dialogo(), 10));
}
