#include "tests/ui/support/test_game.h"

#include "ui/forms/control_table.h"
#include "ui/forms/splash.h"
#include "ui/toolkit/message_box.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QBitmap>
#include <QKeyEvent>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace {

constexpr QRgb kChave = qRgb(255, 0, 0);

/// Places, in pixels, of the controls of a form, in their order.
std::vector<QRect> Lugares(const toolkit::Form &form)
{
    std::vector<QRect> lugares;
    for (const auto &controle : form.Controls()) {
        lugares.push_back(controle->Widget() != nullptr ? controle->Widget()->geometry() : QRect());
    }
    return lugares;
}

} // namespace

TEST(AjustarDpi, PutsEveryControlOnItsPlaceOnTheBitmap)
{
    for (const int dpi : {120, 144}) {
        JogoDeTeste normal(1);
        JogoDeTeste outro(1, BancoInventado(600), dpi);
        EXPECT_TRUE(outro.valores.DpiDiferente);
        EXPECT_EQ(outro.form->Janela().size(), QSize(652, 499)) << dpi;
        const QPoint longe = outro.form->Janela().pos() - normal.form->Janela().pos();
        EXPECT_LE(longe.manhattanLength(), 2) << "off the middle of the screen at " << dpi;
        EXPECT_NEAR(outro.c().Text1(300).Width(), 19, 0.001) << dpi;
        EXPECT_FLOAT_EQ(outro.c().Picture3.Width(), outro.form->Janela().Width()) << dpi;
        const auto esperado = Lugares(normal.form->Janela());
        const auto lugares = Lugares(outro.form->Janela());
        ASSERT_EQ(lugares.size(), esperado.size());
        for (size_t k = 0; k < lugares.size(); ++k) {
            const auto &controle = *outro.form->Janela().Controls()[k];
            // A label that sizes itself follows its font, which has whole pixels.
            const QPoint folga = lugares[k].topLeft() - esperado[k].topLeft();
            EXPECT_LE(qMax(qAbs(folga.x()), qAbs(folga.y())), 1)
                << controle.Name().toStdString() << dpi;
        }
        outro.Comeca();
        outro.Resolve(1);
        EXPECT_TRUE(outro.d().Item(1).ItemResolvido) << dpi;
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

TEST(RegiaoDaFigura, CutsExactlyTheKeyColour)
{
    QImage figura(4, 2, QImage::Format_RGB32);
    figura.fill(qRgb(0, 0, 255));
    figura.setPixel(0, 0, kChave);
    figura.setPixel(3, 0, kChave);
    figura.setPixel(2, 1, kChave); // a hole
    figura.setPixel(0, 1, qRgb(254, 0, 0));
    const auto regiao = RegiaoDaFigura(figura, kChave);
    ASSERT_TRUE(regiao);
    EXPECT_EQ(*regiao, QRegion(1, 0, 2, 1) + QRect(0, 1, 2, 1) + QRect(3, 1, 1, 1));
    EXPECT_FALSE(RegiaoDaFigura(QImage(), kChave)) << "the window stays a rectangle";
}

TEST(RegiaoDaFigura, ComesFromTheDrawingOfTheScreen)
{
    const toolkit::Picture figura(QStringLiteral("Form1"));
    const auto naEscala = [&figura](qreal escala) {
        return RegiaoDaFigura(figura.ParaEscala(escala).toImage(), kChave);
    };
    ASSERT_TRUE(naEscala(1) && naEscala(2));
    EXPECT_EQ(naEscala(1)->boundingRect().size(), QSize(652, 499));
    EXPECT_EQ(naEscala(2)->boundingRect().size(), QSize(1304, 998));
    // The finer corner has steps of single device pixels: more rows of its own than the doubled
    // coarse one.
    EXPECT_GT(naEscala(2)->rectCount(), naEscala(1)->rectCount());
    // What is shown has no key colour left, at any scale.
    for (const qreal escala : {1.0, 2.0, 3.0}) {
        const QImage coberta = figura.Coberta(kChave).ParaEscala(escala).toImage();
        EXPECT_NE(coberta.pixel(0, 0) & RGB_MASK, kChave & RGB_MASK) << escala;
        EXPECT_EQ(*RegiaoDaFigura(coberta, kChave), QRegion(coberta.rect())) << escala;
        const QImage vazada = figura.Vazada(kChave).ParaEscala(escala).toImage();
        const QRegion opaca(QBitmap::fromImage(vazada.createAlphaMask()));
        EXPECT_EQ(opaca, *RegiaoDaFigura(figura.ParaEscala(escala).toImage(), kChave)) << escala;
    }
}

TEST(CentralizaForm, KeepsTheTitleStripOnAScreenThatIsTooSmall)
{
    const QRect tela = QGuiApplication::primaryScreen()->geometry();
    toolkit::Form form(toolkit::Moldura::Nenhuma, toolkit::kDpiPadrao);
    form.SetSize(3000, 1500);
    CentralizaForm(form);
    EXPECT_EQ(form.pos(),
              QPoint(tela.x() + (tela.width() - 200) / 2, tela.y() + (tela.height() - 100) / 2));
    form.SetSize(static_cast<float>(tela.width() + 100) * 15,
                 static_cast<float>(tela.height() + 100) * 15);
    CentralizaForm(form);
    EXPECT_EQ(form.pos(), tela.topLeft());
}

TEST(MostraMensagem, GivesTheKeyboardBackAndIsNotAnsweredByAKeyHeldDown)
{
    toolkit::Form dona(toolkit::Moldura::Nenhuma, toolkit::kDpiPadrao);
    dona.SetSize(3000, 1500);
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
