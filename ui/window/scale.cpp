#include "ui/window/scale.h"

#include "core/machine/command_line.h"
#include "ui/toolkit/picture.h"
#include "ui/window/center_form.h"

#include <QScreen>
#include <vector>

namespace {

constexpr char kVariavel[] = "QT_SCALE_FACTOR";

/// `escala` brought to what the screens can show. They are known only to an application object, and
/// the scale has to stand before there is one: so one is made for the question.
double EscalaPossivel(double escala, int argc, char **argv)
{
    // Each takes the arguments that it knows out of the list.
    std::vector<char *> argumentos(argv, argv + argc + 1);
    const QGuiApplication pergunta(argc, argumentos.data());
    const QSizeF livre = TelaDoJogador()->availableSize();
    const QSizeF janela = toolkit::Picture(QStringLiteral("Form1")).Tamanho();
    const double cabe = qMin(livre.width() / janela.width(), livre.height() / janela.height());
    double menor = kMenorEscala;
    for (const QScreen *tela : QGuiApplication::screens()) {
        menor = qMax(menor, 1 / tela->devicePixelRatio());
    }
    return qMax(menor, qMin(escala, cabe));
}

} // namespace

std::unique_ptr<QApplication> CriaAplicacao(int &argc, char **argv, std::optional<double> escala)
{
    if (!escala) {
        return std::make_unique<QApplication>(argc, argv);
    }
    const bool havia = qEnvironmentVariableIsSet(kVariavel);
    const QByteArray antes = qgetenv(kVariavel);
    qunsetenv(kVariavel);
    qputenv(kVariavel, QByteArray::number(EscalaPossivel(*escala, argc, argv), 'g', 17));
    auto aplicacao = std::make_unique<QApplication>(argc, argv);
    // It is not meant for the browser that the game opens.
    havia ? qputenv(kVariavel, antes) : qunsetenv(kVariavel);
    return aplicacao;
}
