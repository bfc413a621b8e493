#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <QApplication>

namespace {

/// What the offscreen platform cannot do, and letters that no font has, are known; anything else is
/// worth reading.
void Mensagem(QtMsgType /*tipo*/, const QMessageLogContext & /*onde*/, const QString &texto)
{
    const QStringList conhecidas = {QStringLiteral("This plugin does not support"),
                                    QStringLiteral("OpenType support missing")};
    if (std::none_of(conhecidas.begin(), conhecidas.end(),
                     [&texto](const QString &uma) { return texto.contains(uma); })) {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(Mensagem);
    const QApplication aplicacao(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
