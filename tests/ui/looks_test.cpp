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

/// The row `y` of a picture in runs: "2" for two black pixels, "b" for white ones, "." for others.
std::string Trechos(const QImage &imagem, int y)
{
    std::string trechos;
    for (int x = 0, inicio = 0; x < imagem.width(); inicio = x) {
        const QRgb cor = imagem.pixel(x, y);
        while (x < imagem.width() && imagem.pixel(x, y) == cor)
            ++x;
        const bool preto = cor == qRgb(0, 0, 0);
        trechos += preto ? std::to_string(x - inicio) : cor == qRgb(255, 255, 255) ? "b" : ".";
    }
    return trechos;
}

} // namespace

TEST(Looks, NothingShowsOutsideAFrameAtAnyScale)
{
    for (const qreal escala : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0}) {
        for (int canto = 10; canto < 14; ++canto) {
            Form form(Moldura::Nenhuma, toolkit::kDpiPadrao);
            form.SetSize(900, 900);
            // Three boxes round a corner; neighbours share a line.
            const auto lugar = static_cast<float>(15 * canto);
            form.Cria<toolkit::TextBox>(QStringLiteral("A")).Move(lugar, lugar, 285, 285);
            form.Cria<toolkit::TextBox>(QStringLiteral("B")).Move(lugar + 270, lugar, 285, 285);
            auto &caixa = form.Cria<toolkit::PictureBox>(QStringLiteral("C"));
            caixa.SetBorderStyle(1);
            caixa.SetBackColor(toolkit::kBranco);
            caixa.Move(lugar, lugar + 270, 285, 285);
            QImage imagem((QSizeF(form.size()) * escala).toSize(), QImage::Format_RGB32);
            imagem.setDevicePixelRatio(escala);
            form.render(&imagem);
            const auto meio = static_cast<int>((canto + 9) * escala);
            for (const QImage &virada :
                 {imagem, imagem.transformed(QTransform().rotate(90).scale(1, -1))}) {
                std::string linha = ".1b1b1.";
                std::replace(linha.begin(), linha.end(), '1',
                             std::to_string(static_cast<int>(escala))[0]);
                EXPECT_EQ(Trechos(virada, meio), linha) << escala << " at " << canto;
            }
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
    constexpr int kPasso = 27;
    for (const forms::DefForm *def : {&forms::kFrmCarregar, &forms::kFrmSalvar}) {
        const auto form = Faz(*def);
        const QImage &figura = form->GetPicture().Pixels();
        const auto &nome = forms::Acha<Label>(*form, u"LbSave", 10);
        int linha = nome.Widget()->geometry().center().y();
        while (figura.pixel(20, linha) == figura.pixel(20, linha - 1))
            --linha;
        const QFontMetrics letra(ParaQt(nome.GetFont(), form->Dpi()));
        const double meio = nome.Widget()->y() + letra.ascent() - letra.capHeight() / 2.0;
        EXPECT_NEAR(meio, linha + (kPasso - 1) / 2.0, 2) << form->objectName().toStdString();
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
            const bool com = icone == Icone::Pergunta;
            EXPECT_EQ(caixa->iconPixmap().toImage(),
                      com ? sinal.NoTamanhoDe(1).toImage() : QImage());
            const auto *texto = caixa->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            EXPECT_EQ(texto->x() != caixa->layout()->contentsMargins().left(), com);
            EXPECT_TRUE(com || texto->indent() + texto->contentsMargins().left() == 0);
            caixa->reject();
        });
        toolkit::MostraMensagem(
            QStringLiteral("Quadrelo"),
            {QStringLiteral("Uma mensagem de bom tamanho"), Botoes::SimNao, icone});
        EXPECT_TRUE(vista);
    }
}
