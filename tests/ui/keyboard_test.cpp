#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <qpa/qwindowsysteminterface.h>

using namespace Qt::StringLiterals;

TEST(EntradaLetras, KeepsTheOrderInWhichPlainAndComposedLettersWereTyped)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    const RegistroItem &item = jogo.d().Item(1);
    // On a busy machine the plain letter still waits while the input method composes.
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        jogo.form->Janela().windowHandle(), QEvent::KeyPress, Qt::Key_M, Qt::NoModifier, u"m"_s);
    QInputMethodEvent evento;
    evento.setCommitString(u"ü"_s);
    QApplication::sendEvent(jogo.form->Janela().focusWidget(), &evento);
    QCoreApplication::processEvents();
    ASSERT_GT(item.Palavra.size(), 2) << "two letters would end the item";
    EXPECT_EQ(jogo.c().Text1(CelulaDaLetra(item, 0)).Text(), u"M"_s);
    EXPECT_EQ(jogo.c().Text1(CelulaDaLetra(item, 1)).Text(), u"Ü"_s);
}

TEST(EntradaLetras, OffersAMenuOnlyWithWhatCanAct)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    for (const QString &naPrancheta : {QString(), u"a"_s}) {
        QApplication::clipboard()->setText(naPrancheta);
        QContextMenuEvent evento(QContextMenuEvent::Mouse, {}, {});
        QApplication::sendEvent(jogo.form->Janela().focusWidget(), &evento);
        const std::unique_ptr<QMenu> menu(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
        QStringList entradas;
        for (const QAction *entrada : menu ? menu->actions() : QList<QAction *>())
            if (entrada->isVisible() && !entrada->isSeparator())
                entradas << entrada->text().section(u'\t', 0, 0).remove(u'&');
        EXPECT_EQ(entradas, naPrancheta.isEmpty() ? QStringList() : QStringList{u"Paste"_s});
    }
}
