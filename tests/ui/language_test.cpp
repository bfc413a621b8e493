#include "ui/machine/language.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

/// The texts of a line edit's context menu, without mnemonics and shortcuts.
QStringList TextosDoMenu()
{
    QLineEdit campo;
    const std::unique_ptr<QMenu> menu(campo.createStandardContextMenu());
    QStringList textos;
    for (const QAction *acao : menu->actions()) {
        const QString texto = acao->text().section(u'\t', 0, 0).remove(u'&');
        if (!texto.isEmpty()) {
            textos.append(texto);
        }
    }
    return textos;
}

TEST(Language, TheContextMenuIsPortuguese)
{
    const QTemporaryDir pasta;
    const QStringList antes = TextosDoMenu();
    const QString separador = QLocale::system().decimalPoint();
    {
        QTranslator tradutor;
        ASSERT_TRUE(PoeEmPortugues(tradutor, pasta.path()));
        const QStringList textos = TextosDoMenu();
        for (const auto &texto : {QStringLiteral("Desfazer"), QStringLiteral("Copiar"),
                                  QStringLiteral("Colar"), QStringLiteral("Selecionar tudo")}) {
            EXPECT_TRUE(textos.contains(texto, Qt::CaseInsensitive))
                << qPrintable(textos.join(u'|'));
        }
        EXPECT_EQ(QLocale::system().decimalPoint(), separador);
    }
    EXPECT_EQ(TextosDoMenu(), antes);
}

TEST(Language, TheProgramsOwnFolderComesFirst)
{
    const QTemporaryDir pasta;
    ASSERT_TRUE(QDir(pasta.path()).mkdir(QStringLiteral("translations")));
    const QDir doQt(QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const QString copia = pasta.filePath(QStringLiteral("translations/qtbase_pt_BR.qm"));
    ASSERT_TRUE(QFile::copy(doQt.filePath(QStringLiteral("qtbase_pt_BR.qm")), copia));

    QTranslator tradutor;
    ASSERT_TRUE(PoeEmPortugues(tradutor, pasta.path()));
    EXPECT_EQ(QDir::cleanPath(tradutor.filePath()), QDir::cleanPath(copia));

    // A damaged copy is passed over.
    ASSERT_TRUE(QFile::remove(copia));
    QFile danificada(copia);
    ASSERT_TRUE(danificada.open(QIODevice::WriteOnly));
    danificada.write("no texts");
    danificada.close();
    QTranslator outro;
    ASSERT_TRUE(PoeEmPortugues(outro, pasta.path()));
    EXPECT_EQ(QDir(QFileInfo(outro.filePath()).path()), doQt);
}

} // namespace
