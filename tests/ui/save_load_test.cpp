#include "core/records/save_slot.h"
#include "tests/core/test_board.h"
#include "tests/core/test_files.h"
#include "tests/ui/support/dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMenuAbrir = 2, kMenuSalvar = 3, kCancelar = 11;
constexpr QColor kAzul(0, 0, 255);
using Passos = RoteiroDialogos::Passos;

toolkit::Label &LbSave(const toolkit::Form &form, int n)
{
    return forms::Acha<toolkit::Label>(form, u"LbSave", n);
}

Passos Cola(const QString &texto)
{
    return [texto](toolkit::Form &form) {
        QApplication::clipboard()->setText(texto);
        Tecla(form, Qt::Key_V, Qt::ControlModifier);
    };
}

class SaveLoad : public TesteComDialogos
{
protected:
    /// Saves into slot `n`; `nomeia` is run on the name's dialog, and Enter closes it.
    void Salva(int n, const Passos &nomeia)
    {
        dialogos.Espera(u"FrmSalvar"_s, [this, n](toolkit::Form &form) {
            EXPECT_EQ(std::exchange(jogo.valores.RegiaoJanela, 0), 1);
            Clica(LbSave(form, n));
        });
        dialogos.Espera(u"FrmSalvar2"_s, [&](toolkit::Form &form) {
            EXPECT_EQ(jogo.valores.RegiaoJanela, 1) << "its corners are not cut";
            nomeia(form);
            if (form.isVisible()) Tecla(form, Qt::Key_Return);
        });
        jogo.Menu(kMenuSalvar);
    }
    [[nodiscard]] QString Arquivo() const { return Dados(kArquivoJogos); }
};

} // namespace

TEST_F(SaveLoad, TakesNamesOfFourteenCharactersInWhateverWay)
{
    bool algumDialogo = true;
    jogo.maquina.aoDeixarEventos = [&] {
        if (!QFile::exists(Arquivo())) algumDialogo = QApplication::activeModalWidget() != nullptr;
    };
    const auto metodo = [](toolkit::Form &form) {
        QInputMethodEvent evento;
        evento.setCommitString(u"ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛ"_s);
        QCoreApplication::sendEvent(form.focusWidget(), &evento);
        QCoreApplication::processEvents();
    };
    for (const auto &[entra, noArquivo] : std::vector<std::pair<Passos, QString>>{
             {Cola(u"ABCDEFGHIJKLMNOP"_s), u"ABCDEFGHIJKLMN"_s},
             {metodo, u"ÁÉÍÓÚÀÈÌÒÙÃÕÂÊ"_s},
             {Cola(u"Ωmega & Ção"_s), u"?mega & Ção"_s},
             {Cola(u"a\n[jogo1]"_s), u"a [jogo1]"_s},
             {[](toolkit::Form &form) { Tecla(form, Qt::Key_Delete); }, u"Sem nome 10"_s}}) {
        Salva(10, entra);
        EXPECT_EQ(NomesDosSlots(Arquivo()).nome[10], noArquivo);
    }
    EXPECT_FALSE(algumDialogo) << "the file is written before the dialogs have gone";
    QCoreApplication::processEvents();
    EXPECT_TRUE(jogo.c().Text1(jogo.d().estado.Focus).TemFoco()) << "the keyboard is elsewhere";
}

TEST_F(SaveLoad, SparesAGameThatTheListCouldNotShow)
{
    Salva(2, Cola(u"velho"_s));
    const QByteArray antes = PastaDeTeste::Conteudo(Arquivo());
    // A folder stands there while the list is read.
    ASSERT_TRUE(QFile::rename(Arquivo(), Dados(u"fora")) && QDir().mkdir(Arquivo()));
    Salva(2, [this](toolkit::Form &) {
        EXPECT_TRUE(QDir().rmdir(Arquivo()) && QFile::rename(Dados(u"fora"), Arquivo()));
    });
    EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), antes);
}

TEST_F(SaveLoad, ClosesWithoutEffectInEveryOtherWay)
{
    Salva(1, Cola(u"um"_s));
    const QByteArray antes = PastaDeTeste::Conteudo(Arquivo());
    const int partida = jogo.d().tabuleiro.Partida;
    const std::vector<Passos> fechos = {
        [](toolkit::Form &form) { Clica(forms::Acha<toolkit::Image>(form, u"Image1")); },
        [](toolkit::Form &form) { Tecla(form, Qt::Key_Escape); },
        [](toolkit::Form &form) { form.close(); },
        [](toolkit::Form &form) { Clica(LbSave(form, kCancelar)); }};
    for (const Passos &fecho : fechos) {
        dialogos.Espera(u"FrmCarregar"_s, fecho);
        jogo.Menu(kMenuAbrir);
        dialogos.Espera(u"FrmSalvar"_s, fecho);
        jogo.Menu(kMenuSalvar);
        // The name's dialog has no "Cancelar".
        if (&fecho != &fechos.back()) Salva(2, fecho);
    }
    EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), antes);
    EXPECT_EQ(jogo.d().tabuleiro.Partida, partida);
    EXPECT_TRUE(jogo.maquina.mensagens.isEmpty());
}

TEST_F(SaveLoad, ChecksAFullWordOnlyWhenTheLoadIsOver)
{
    // The words across are solved and fill the words down, but for the last of them.
    Tabuleiro tabuleiro = TabuleiroDeTeste();
    for (RegistroItem &item : tabuleiro.ItemPalavra)
        item.ItemResolvido = item.Sentido == u'H';
    tabuleiro.ItemPalavra[kItens].ItemResolvido = true;
    ASSERT_TRUE(SalvaSlot(Arquivo(), 1, u"cheio"_s, tabuleiro, 30, u"."_s));
    dialogos.Espera(u"FrmCarregar"_s, [](toolkit::Form &form) { Clica(LbSave(form, 1)); });
    dialogos.Espera(u"FrmSeuNome"_s, [this](toolkit::Form &form) {
        EXPECT_FALSE(jogo.c().Picespere.Visible() || jogo.c().Image4.Visible());
        Tecla(form, Qt::Key_Return);
    });
    dialogos.Espera(u"FrmHanking"_s, [](toolkit::Form &form) { Tecla(form, Qt::Key_Escape); });
    jogo.Menu(kMenuAbrir);
    EXPECT_TRUE(jogo.d().estado.TudoResolvido);
}

TEST_F(SaveLoad, ColoursTheLabelLastUnderTheMouse)
{
    dialogos.Espera(u"FrmCarregar"_s, [](toolkit::Form &form) {
        for (const int n : {3, 5}) {
            Paira(LbSave(form, n));
            EXPECT_EQ(LbSave(form, n).ForeColor(), kAzul);
        }
        Paira(forms::Acha<toolkit::Image>(form, u"Image3"));
        for (int n = 1; n <= kCancelar; ++n)
            EXPECT_EQ(LbSave(form, n).ForeColor(), n == 5 ? kAzul : toolkit::kPreto) << n;
        Paira(LbSave(form, kCancelar));
        EXPECT_EQ(LbSave(form, 5).ForeColor(), toolkit::kPreto);
        Clica(LbSave(form, kCancelar));
    });
    jogo.Menu(kMenuAbrir);
}
