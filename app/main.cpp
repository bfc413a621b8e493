#include "core/machine/command_line.h"
#include "ui/machine/console.h"
#include "ui/machine/language.h"
#include "ui/machine/machine.h"
#include "ui/machine/registry_start.h"
#include "ui/main_form/form1.h"
#include "ui/main_form/splash.h"
#include "ui/toolkit/units.h"
#include "ui/window/scale.h"

#include <QApplication>
#include <QScreen>
#include <QTranslator>

namespace {

/// The arguments behind the program's name.
QStringList Argumentos(int argc, char **argv)
{
    QStringList argumentos;
    for (int k = 1; k < argc; ++k) {
        argumentos << QString::fromLocal8Bit(argv[k]);
    }
    return argumentos;
}

} // namespace

int main(int argc, char *argv[])
{
    const LinhaDeComando linha = LeLinhaDeComando(Argumentos(argc, argv));
    if (!linha.texto.isEmpty()) {
        DizAoJogador(linha.texto, linha.erro);
        return linha.erro ? 2 : 0;
    }
    const auto aplicacao = CriaAplicacao(argc, argv, linha.escala);
    QApplication::setStyle(QStringLiteral("Fusion"));
#ifdef QUADRELO_ID
    QApplication::setDesktopFileName(QStringLiteral(QUADRELO_ID));
#endif
    QTranslator textosDoQt;
    PoeEmPortugues(textosDoQt, QApplication::applicationDirPath());
    // The banner goes before the main form shows; only the program's own end is an end.
    QApplication::setQuitOnLastWindowClosed(false);

    const int dpi = qRound(QApplication::primaryScreen()->logicalDotsPerInch());
    ValoresPrograma valores;
    FixaValores(valores, QApplication::applicationDirPath());
    RegistroDoPrograma registro(dpi);
    valores.registro = &registro.Acesso();
    Ambiente ambiente = AmbienteReal(valores);
    std::unique_ptr<Form1> principal;
    FrmSplash splash(valores, ambiente, principal, dpi);
    splash.Show();
    return QApplication::exec();
}
