#include "ui/forms/ranking_forms.h"
#include "ui/forms/slot_forms.h"
#include "ui/forms/splash.h"
#include "ui/forms/update_window.h"
#include "ui/toolkit/message_box.h"
#include "ui/window/dpi_adjuster.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>

namespace {

using toolkit::Form;
using toolkit::Label;
using toolkit::Moldura;

std::unique_ptr<Form> Faz(const forms::DefForm &def, int dpi = toolkit::kDpiPadrao)
{
    auto form = std::make_unique<Form>(def.moldura, dpi);
    forms::Define(*form, def);
    return form;
}

/// The row `y` of a picture as runs of one colour: "p1" for one black pixel, "b26" for 26 white
/// ones, "." for any number of others.
QString Trechos(const QImage &imagem, int y)
{
    QString trechos;
    for (int x = 0; x < imagem.width();) {
        const QRgb cor = imagem.pixel(x, y);
        const int inicio = x;
        while (x < imagem.width() && imagem.pixel(x, y) == cor) {
            ++x;
        }
        trechos += cor == qRgb(0, 0, 0)         ? QStringLiteral("p%1").arg(x - inicio)
                   : cor == qRgb(255, 255, 255) ? QStringLiteral("b")
                                                : QStringLiteral(".");
    }
    return trechos;
}

QImage Mostra(Form &form, qreal escala)
{
    QImage imagem((QSizeF(form.size()) * escala).toSize(), QImage::Format_RGB32);
    imagem.setDevicePixelRatio(escala);
    form.render(&imagem);
    return imagem;
}

} // namespace

TEST(Looks, NothingShowsOutsideAFrameAtAnyScale)
{
    for (const qreal escala : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0}) {
        for (int canto = 0; canto < 4; ++canto) {
            Form form(Moldura::Nenhuma, toolkit::kDpiPadrao);
            form.SetSize(1500, 1500);
            const auto lugar = static_cast<float>(150 + 15 * canto);
            // Neighbours share a line. Nothing has the focus, so there is no cursor.
            form.Cria<toolkit::TextBox>(QStringLiteral("A")).Move(lugar, lugar, 285, 285);
            form.Cria<toolkit::TextBox>(QStringLiteral("B")).Move(lugar + 270, lugar, 285, 285);
            auto &caixa = form.Cria<toolkit::PictureBox>(QStringLiteral("C"));
            caixa.SetBorderStyle(1);
            caixa.SetBackColor(toolkit::kBranco);
            caixa.Move(lugar + 600, lugar, 285, 285);
            const QImage imagem = Mostra(form, escala);
            const auto meio = static_cast<int>((lugar / 15 + 9) * escala);
            const QString linha = QStringLiteral("p%1").arg(static_cast<int>(escala));
            const QString caixas =
                QStringLiteral(".%1b%1b%1.%1b%1.").replace(QStringLiteral("%1"), linha);
            EXPECT_EQ(Trechos(imagem, meio).toStdString(), caixas.toStdString())
                << escala << " at " << canto;
            const QImage deLado = imagem.transformed(QTransform().rotate(90).scale(1, -1));
            const QString coluna = QStringLiteral(".%1b%1.").replace(QStringLiteral("%1"), linha);
            EXPECT_EQ(Trechos(deLado, meio).toStdString(), coluna.toStdString())
                << escala << " down at " << canto;
        }
    }
}

TEST(Looks, BannerKeepsTheVersionAndItsMeasureInPlaceAtAnyDpi)
{
    for (const int dpi : {96, 120, 144, 192}) {
        const auto form = Faz(forms::kFrmSplash, dpi);
        auto &medida = forms::Acha<toolkit::PictureBox>(*form, u"Picture1");
        medida.SetPicture(form->GetPicture());
        AjustarDpi(*form);
        auto &versao = forms::Acha<Label>(*form, u"Label3");
        versao.SetCaption(QStringLiteral("v 1.5.1"));
        EXPECT_NEAR(versao.Widget()->geometry().right() + 1, 340, 1) << dpi;
        EXPECT_FLOAT_EQ(medida.Width(), form->Width()) << dpi;
    }
}

TEST(Looks, LettersOfATitleLieUnderTheStripThatDrags)
{
    for (const forms::DefForm *def :
         {&forms::kFrmCarregar, &forms::kFrmSalvar, &forms::kFrmSalvar2, &forms::kFrmSeuNome,
          &forms::kFrmHanking, &forms::kFrmBaixar}) {
        const auto form = Faz(*def);
        const toolkit::Control *titulo = form->Procura(u"Label1");
        titulo = titulo != nullptr ? titulo : form->Procura(u"Label1", 0);
        const QWidget *em = form->childAt(titulo->Widget()->geometry().center());
        EXPECT_EQ(em->objectName().toStdString(), "Image3") << form->objectName().toStdString();
    }
}

TEST(Looks, NamesOfSavedGamesStandInTheirRows)
{
    for (const forms::DefForm *def : {&forms::kFrmCarregar, &forms::kFrmSalvar}) {
        const auto form = Faz(*def);
        const QImage &figura = form->GetPicture().Pixels();
        const auto regua = [&figura](int y) { return figura.pixel(20, y) != figura.pixel(20, 43); };
        for (const int n : {1, 10}) {
            const QRect lugar = forms::Acha<Label>(*form, u"LbSave", n).Widget()->geometry();
            int cima = lugar.center().y();
            int baixo = cima;
            while (!regua(cima)) {
                --cima;
            }
            while (!regua(baixo)) {
                ++baixo;
            }
            const QFontMetrics letra(
                ParaQt(forms::Acha<Label>(*form, u"LbSave", n).GetFont(), form->Dpi()));
            const double meio = lugar.top() + letra.ascent() - letra.capHeight() / 2.0;
            EXPECT_NEAR(meio, (cima + 1 + baixo) / 2.0, 2) << form->objectName().toStdString() << n;
        }
    }
}

TEST(Looks, MessageHasTheGamesIconOrNoRoomForOne)
{
    const toolkit::Picture sinal(QStringLiteral("Pergunta"));
    EXPECT_EQ(sinal.NoTamanhoDe(1.5).size(), QSize(48, 48)) << "a device pixel for each";
    for (const Icone icone : {Icone::Pergunta, Icone::Nenhum}) {
        bool vista = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(caixa, nullptr);
            vista = true;
            if (icone == Icone::Pergunta) {
                EXPECT_EQ(caixa->iconPixmap().toImage(), sinal.NoTamanhoDe(1).toImage());
            } else {
                const auto *texto = caixa->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
                EXPECT_EQ(texto->x(), caixa->layout()->contentsMargins().left());
                EXPECT_EQ(texto->indent() + texto->contentsMargins().left(), 0);
            }
            caixa->reject();
        });
        toolkit::MostraMensagem(
            QStringLiteral("Quadrelo"),
            {QStringLiteral("Uma mensagem de bom tamanho"), Botoes::SimNao, icone});
        EXPECT_TRUE(vista);
    }
}
