#include "ui/machine/language.h"

#include "core/machine/program_state.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

bool PoeEmPortugues(QTranslator &tradutor, const QString &pastaPrograma)
{
    const QString textos = QStringLiteral("qtbase_pt_BR");
    const QString daPasta = Caminho(pastaPrograma, u"translations");
    const QString doQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    return (tradutor.load(textos, daPasta) || tradutor.load(textos, doQt)) &&
           QCoreApplication::installTranslator(&tradutor);
}
