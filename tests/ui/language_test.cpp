#include "ui/machine/language.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTemporaryDir>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// The texts of a line edit's context menu, without mnemonics and shortcuts.
QStringList TextosDoMenu()
{
    QLineEdit campo;
    const std::unique_ptr<QMenu> menu(campo.createStandardContextMenu());
    QStringList textos;
    for (const QAction *acao : menu->actions())
        textos << acao->text().section(u'\t', 0, 0).remove(u'&').toLower();
    return textos;
}

} // namespace

TEST(Language, TheContextMenuIsPortugueseFromTheProgramsOwnFolderFirst)
{
    const QTemporaryDir pasta;
    const QString nome = u"qtbase_pt_BR.qm"_s, copia = pasta.filePath(u"translations/"_s + nome);
    const QDir doQt(QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    ASSERT_TRUE(QDir(pasta.path()).mkdir(u"translations"_s));
    ASSERT_TRUE(QFile::copy(doQt.filePath(nome), copia));
    const QStringList antes = TextosDoMenu();
    const QString separador = QLocale::system().decimalPoint();
    for (const bool inteira : {true, false}) {
        // A damaged copy is passed over.
        QFile arquivo(copia);
        ASSERT_TRUE(inteira || (arquivo.remove() && arquivo.open(QIODevice::WriteOnly) &&
                                arquivo.write("no texts") > 0));
        arquivo.close();
        QTranslator tradutor;
        ASSERT_TRUE(PoeEmPortugues(tradutor, pasta.path()));
        EXPECT_EQ(QDir::cleanPath(tradutor.filePath()), inteira ? copia : doQt.filePath(nome));
        for (const auto &texto : {u"desfazer"_s, u"copiar"_s, u"colar"_s, u"selecionar tudo"_s})
            EXPECT_TRUE(TextosDoMenu().contains(texto)) << qPrintable(texto);
        EXPECT_EQ(QLocale::system().decimalPoint(), separador);
    }
    EXPECT_EQ(TextosDoMenu(), antes);
}
