#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <qpa/qwindowsysteminterface.h>
#include <QTest>

namespace {

/// The first item that is long enough to type into without ending it.
int ItemLongo(const JogoDeTeste &jogo)
{
    int n = 1;
    while (jogo.d().Item(n).Palavra.size() < 5) {
        ++n;
    }
    return n;
}

/// A game with a long item selected; `primeira` is its first cell.
struct ComItemLongo
{
    ComItemLongo()
    {
        jogo.Comeca();
        item = ItemLongo(jogo);
        jogo.Seleciona(item);
        primeira = jogo.d().Item(item).Ponto;
        passo = PassoDe(jogo.d().Item(item).Sentido);
    }

    [[nodiscard]] QString Texto(int k) const { return jogo.c().Text1(primeira + k * passo).Text(); }

    JogoDeTeste jogo;
    int item;
    int primeira;
    int passo;
};

void Compoe(QWidget *alvo, const QString &previa, const QString &texto)
{
    QInputMethodEvent evento(previa, {});
    evento.setCommitString(texto);
    QApplication::sendEvent(alvo, &evento);
    QCoreApplication::processEvents();
}

/// Entries of the menu that a right click on a cell brings up, "" if none comes.
QString Menu(JogoDeTeste &jogo, const QString &naPrancheta)
{
    QApplication::clipboard()->setText(naPrancheta);
    QContextMenuEvent evento(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(jogo.form->Janela().focusWidget(), &evento);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QStringList entradas;
    for (const QAction *entrada : menu != nullptr ? menu->actions() : QList<QAction *>()) {
        if (entrada->isVisible() && !entrada->isSeparator()) {
            entradas << entrada->text().section(u'\t', 0, 0).remove(u'&');
        }
    }
    delete menu;
    return entradas.join(u'|');
}

} // namespace

TEST(EntradaLetras, TakesLettersAsCapitalsAndMovesOn)
{
    ComItemLongo t;
    t.jogo.Digita(QStringLiteral("aÇã5"));
    EXPECT_EQ(t.Texto(0), QStringLiteral("A"));
    EXPECT_EQ(t.Texto(1), QStringLiteral("Ç"));
    EXPECT_EQ(t.Texto(2), QStringLiteral("Ã"));
    EXPECT_EQ(t.Texto(3), QStringLiteral("5"));
    EXPECT_EQ(t.jogo.d().estado.Focus, t.primeira + 4 * t.passo);
    EXPECT_EQ(t.jogo.FaltaNoEstado(), QString());
}

TEST(EntradaLetras, RemovesWhatIsNoLetterOfTheGame)
{
    ComItemLongo t;
    for (const QString &texto :
         {QStringLiteral(" "), QStringLiteral("-"), QStringLiteral("ñ"), QStringLiteral("ß"),
          QStringLiteral("ж"), QStringLiteral("日"), QString::fromUtf8("\xF0\x9F\x98\x80"),
          QStringLiteral("\u0301"), QStringLiteral("ACB"), QStringLiteral("A B"),
          QStringLiteral("\t"), QString(10000, u'X'), QString(10000, u'9')}) {
        t.jogo.Cola(texto);
        EXPECT_EQ(t.jogo.d().estado.Focus, t.primeira) << texto.left(5).toStdString();
        EXPECT_EQ(t.Texto(0), QString()) << texto.left(5).toStdString();
        EXPECT_EQ(t.jogo.FaltaNoEstado(), QString());
    }
}

TEST(EntradaLetras, TakesComposedLettersHoweverTheyCome)
{
    ComItemLongo t;
    Compoe(t.jogo.form->Janela().focusWidget(), QString(), QStringLiteral("é"));
    Compoe(t.jogo.form->Janela().focusWidget(), QStringLiteral("~"), QString());
    EXPECT_EQ(t.Texto(1), QString()) << "a dead key alone is no letter";
    Compoe(t.jogo.form->Janela().focusWidget(), QString(), QStringLiteral("õ"));
    t.jogo.Cola(QStringLiteral("a\u0303"));
    EXPECT_EQ(t.Texto(0), QStringLiteral("É"));
    EXPECT_EQ(t.Texto(1), QStringLiteral("Õ"));
    EXPECT_EQ(t.Texto(2), QStringLiteral("Ã"));
    EXPECT_EQ(t.jogo.FaltaNoEstado(), QString());
}

TEST(EntradaLetras, KeepsTheOrderInWhichPlainAndComposedLettersWereTyped)
{
    ComItemLongo t;
    t.jogo.form->Janela().activateWindow();
    QCoreApplication::processEvents();
    // On a busy machine the plain letter still waits while the input method composes.
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        t.jogo.form->Janela().windowHandle(), QEvent::KeyPress, Qt::Key_M, Qt::NoModifier,
        QStringLiteral("m"));
    Compoe(t.jogo.form->Janela().focusWidget(), QString(), QStringLiteral("ü"));
    EXPECT_EQ(t.Texto(0) + t.Texto(1), QStringLiteral("MÜ"));
}

TEST(EntradaLetras, OffersAMenuOnlyWithWhatCanAct)
{
    ComItemLongo t;
    EXPECT_EQ(Menu(t.jogo, {}), QString());
    EXPECT_EQ(Menu(t.jogo, QStringLiteral("a")), QStringLiteral("Paste"));
}

TEST(EntradaLetras, LetsAPastedRunOfTheListStand)
{
    ComItemLongo t;
    t.jogo.Cola(QStringLiteral("abc"));
    EXPECT_EQ(t.Texto(0), QStringLiteral("ABC"));
    EXPECT_EQ(t.jogo.d().estado.Focus, t.primeira + t.passo);
}

TEST(EntradaLetras, KeepsTheCursorAgainstTheKeysThatMoveIt)
{
    ComItemLongo t;
    t.jogo.Digita(QStringLiteral("a"));
    for (const Qt::Key tecla : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right,
                                Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Return,
                                Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab}) {
        t.jogo.Tecla(tecla);
        EXPECT_EQ(t.jogo.d().estado.Focus, t.primeira + t.passo) << tecla;
        EXPECT_EQ(t.Texto(0), QStringLiteral("A")) << tecla;
        EXPECT_EQ(t.jogo.FaltaNoEstado(), QString()) << tecla;
    }
    t.jogo.Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(t.jogo.FaltaNoEstado(), QString());
}

TEST(EntradaLetras, GoesBackToTheCursorWhenAnotherCellGetsTheFocus)
{
    ComItemLongo t;
    const int outra = t.jogo.d().Item(t.item == 26 ? 25 : 26).Ponto;
    t.jogo.c().Text1(outra).SetFocus();
    EXPECT_TRUE(t.jogo.c().Text1(t.primeira).TemFoco());
}

TEST(EntradaLetras, PassesOverFixedCells)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    // Fix all but the first and the last cell of a word: one letter leads straight to the last.
    const int n = ItemLongo(jogo);
    const RegistroItem &item = jogo.d().Item(n);
    const int ultima = static_cast<int>(item.Palavra.size()) - 1;
    for (int k = 1; k < ultima; ++k) {
        const int i = CelulaDaLetra(item, k);
        jogo.c().Text1(i).SetText(item.Palavra[k]);
        jogo.d().Quadrado(i).Fixa = true;
    }
    jogo.Seleciona(n);
    jogo.Digita(QString(item.Palavra[0]));
    EXPECT_EQ(jogo.d().estado.Focus, CelulaDaLetra(item, ultima));
    jogo.Digita(QString(item.Palavra[ultima]));
    EXPECT_TRUE(jogo.d().Item(n).ItemResolvido);
}

TEST(EntradaLetras, GivesBackTheSolutionAfterGivingUp)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.ResolveAte(10);
    JogoDeTeste::Clica(*jogo.c().Label3[0]);
    ASSERT_TRUE(jogo.d().valores.Desistiu);
    const int i = jogo.d().estado.Focus;
    jogo.c().Text1(i).SetFocus();
    jogo.Digita(QStringLiteral("x"));
    EXPECT_EQ(jogo.c().Text1(i).Text(), QString(jogo.d().Quadrado(i).Letra));
}
