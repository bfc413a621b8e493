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
