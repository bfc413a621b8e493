#include "tests/ui/support/test_game.h"
#include "ui/forms/splash.h"
#include "ui/toolkit/message_box.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QBitmap>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace {

constexpr QRgb kChave = qRgb(255, 0, 0);

/// Upper left corners, in pixels, of the controls of a form, in their order.
std::vector<QPoint> Lugares(const toolkit::Form &form)
{
    std::vector<QPoint> lugares;
    for (const auto &controle : form.Controls())
        lugares.push_back(controle->Widget() == nullptr ? QPoint() : controle->Widget()->pos());
    return lugares;
}

} // namespace

TEST(AjustarDpi, PutsEveryControlOnItsPlaceOnTheBitmap)
{
    const JogoDeTeste normal;
    const auto esperado = Lugares(normal.form->Janela());
    for (const int dpi : {120, 144}) {
        SCOPED_TRACE(dpi);
        JogoDeTeste outro(1, BancoInventado(600), dpi);
        const toolkit::Form &janela = outro.form->Janela();
        EXPECT_TRUE(outro.valores.DpiDiferente);
        EXPECT_EQ(janela.size(), QSize(652, 499));
        const QPoint longe = janela.pos() - normal.form->Janela().pos();
        EXPECT_LE(longe.manhattanLength(), 2) << "off the middle of the screen";
        EXPECT_NEAR(outro.c().Text1(300).Width(), 19, 0.001);
        EXPECT_FLOAT_EQ(outro.c().Picture3.Width(), janela.Width());
        const auto lugares = Lugares(janela);
        ASSERT_EQ(lugares.size(), esperado.size());
        for (size_t k = 0; k < lugares.size(); ++k) {
            // A label that sizes itself follows its font, which has whole pixels.
            const QPoint folga = lugares[k] - esperado[k];
            EXPECT_LE(qMax(qAbs(folga.x()), qAbs(folga.y())), 1)
                << janela.Controls()[k]->Name().toStdString();
        }
        outro.Comeca();
        outro.Resolve(1);
        EXPECT_TRUE(outro.d().Item(1).ItemResolvido);
    }
}

TEST(AjustarDpi, LeavesAFormWhosePictureFits)
{
    toolkit::Form form(toolkit::Moldura::Nenhuma, toolkit::kDpiPadrao);
    forms::Define(form, forms::kFrmSplash);
    const auto antes = Lugares(form);
    AjustarDpi(form);
    EXPECT_EQ(Lugares(form), antes);
    // Without records the factors come from the DPI that the system tells.
    AjustarObjetos(form, 120);
    EXPECT_FLOAT_EQ(form.Controls()[1]->Left(), 4920 * 0.8F);
    AjustarObjetos(form, 120, 0.5F, 2);
    EXPECT_FLOAT_EQ(form.Controls()[1]->Left(), 4920 * 0.4F);
    EXPECT_FLOAT_EQ(form.Controls()[1]->Top(), 1035 * 1.6F);
}

TEST(RegiaoDaFigura, ComesFromTheDrawingOfTheScreenAndLeavesNoKeyColour)
{
    const toolkit::Picture figura(QStringLiteral("Form1"));
    int trechos = 0;
    for (const int escala : {1, 2, 3}) {
        const auto daFigura = [escala](const toolkit::Picture &qual) {
            return qual.ParaEscala(escala).toImage();
        };
        const auto regiao = RegiaoDaFigura(daFigura(figura), kChave);
        ASSERT_TRUE(regiao);
        EXPECT_EQ(regiao->boundingRect().size(), QSize(652, 499) * escala);
        // The finer corner has steps of single device pixels: more rows of its own than the
        // doubled coarse one.
        EXPECT_GT(regiao->rectCount(), std::exchange(trechos, regiao->rectCount()));
        const QImage coberta = daFigura(figura.Coberta(kChave));
        EXPECT_NE(coberta.pixel(0, 0) & RGB_MASK, kChave & RGB_MASK) << escala;
        EXPECT_EQ(*RegiaoDaFigura(coberta, kChave), QRegion(coberta.rect())) << escala;
        const QImage opaca = daFigura(figura.Vazada(kChave)).createAlphaMask();
        EXPECT_EQ(QRegion(QBitmap::fromImage(opaca)), *regiao) << escala;
    }
    EXPECT_FALSE(RegiaoDaFigura(QImage(), kChave)) << "the window stays a rectangle";
}

TEST(CentralizaForm, KeepsTheTitleStripOnAScreenThatIsTooSmall)
{
    const QRect tela = QGuiApplication::primaryScreen()->geometry();
    toolkit::Form form(toolkit::Moldura::Nenhuma, toolkit::kDpiPadrao);
    for (const int sobra : {-300, 100}) {
        form.SetSize(15.0F * static_cast<float>(tela.width() + sobra),
                     15.0F * static_cast<float>(tela.height() + sobra));
        CentralizaForm(form);
        EXPECT_EQ(form.pos() - tela.topLeft(), sobra < 0 ? QPoint(150, 150) : QPoint()) << sobra;
    }
}

TEST(MostraMensagem, GivesTheKeyboardBackAndIsNotAnsweredByAKeyHeldDown)
{
    toolkit::Form dona(toolkit::Moldura::Nenhuma, toolkit::kDpiPadrao);
    dona.Show();
    QCoreApplication::processEvents();
    bool aberta = false;
    QTimer::singleShot(0, &dona, [&aberta] {
        QWidget *caixa = QApplication::activeModalWidget();
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(caixa->focusWidget(), &repetida);
        aberta = caixa->isVisible();
        QTest::keyClick(caixa->focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(toolkit::MostraMensagem({}, {QStringLiteral("?"), Botoes::SimNao}), Resposta::Sim);
    EXPECT_TRUE(aberta);
    QCoreApplication::processEvents();
    EXPECT_TRUE(dona.isActiveWindow());
}
