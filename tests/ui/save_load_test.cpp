#include "core/files/ini_file.h"
#include "core/records/save_slot.h"
#include "tests/core/test_board.h"
#include "tests/core/test_files.h"
#include "tests/ui/support/dialog_game.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QInputMethodEvent>

namespace {

constexpr int kMenuAbrir = 2;
constexpr int kMenuSalvar = 3;
constexpr int kCancelar = 11;
constexpr QColor kAzul(0, 0, 255);

toolkit::Label &LbSave(const toolkit::Form &form, int n)
{
    return forms::Acha<toolkit::Label>(form, u"LbSave", n);
}

toolkit::Image &Imagem(const toolkit::Form &form, const char16_t *nome)
{
    return forms::Acha<toolkit::Image>(form, nome);
}

void Cola(toolkit::Form &form, const QString &texto)
{
    QApplication::clipboard()->setText(texto);
    Tecla(form, Qt::Key_V, Qt::ControlModifier);
}

void Enter(toolkit::Form &form)
{
    Tecla(form, Qt::Key_Return);
}

void Esc(toolkit::Form &form)
{
    Tecla(form, Qt::Key_Escape);
}

class SaveLoad : public TesteComDialogos
{
protected:
    /// Saves into slot `n`; `nomeia` is run on the name's dialog.
    void Salva(int n, const RoteiroDialogos::Passos &nomeia)
    {
        dialogos.Espera(QStringLiteral("FrmSalvar"),
                        [n](toolkit::Form &form) { ClicaNaJanela(LbSave(form, n)); });
        dialogos.Espera(QStringLiteral("FrmSalvar2"), nomeia);
        Menu(kMenuSalvar);
    }

    void SalvaComo(int n, const QString &nome)
    {
        Salva(n, [nome](toolkit::Form &form) {
            Digita(form, nome);
            Enter(form);
        });
    }

    QString NomeNoSlot(int n) { return NomesDosSlots(Arquivo()).nome[static_cast<size_t>(n)]; }
    QString Arquivo() { return Dados(kArquivoJogos); }
};

} // namespace

TEST_F(SaveLoad, WritesBehindTheDialogsAndGivesTheKeyboardBack)
{
    bool algumDialogo = true;
    jogo.maquina.aoDeixarEventos = [this, &algumDialogo] {
        if (!QFile::exists(Arquivo())) {
            algumDialogo = QApplication::activeModalWidget() != nullptr;
        }
    };
    SalvaComo(3, QStringLiteral("Zé & Ção"));
    EXPECT_FALSE(algumDialogo);
    QCoreApplication::processEvents();
    EXPECT_TRUE(jogo.c().Text1(jogo.d().estado.Focus).TemFoco()) << "the keyboard is elsewhere";
    EXPECT_EQ(NomeNoSlot(3), QStringLiteral("Zé & Ção"));
}

TEST_F(SaveLoad, TakesNamesOfFourteenCharactersInWhateverWay)
{
    struct Caso
    {
        const char *nome;
        std::function<void(toolkit::Form &)> entra;
        QString noArquivo;
    };
    const auto metodo = [](toolkit::Form &form) {
        QInputMethodEvent evento;
        evento.setCommitString(QStringLiteral("ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛ"));
        QCoreApplication::sendEvent(form.focusWidget(), &evento);
        QCoreApplication::processEvents();
    };
    const std::array casos = {
        Caso{"typed", [](auto &form) { Digita(form, QStringLiteral("abcdefghijklmnop")); },
             QStringLiteral("abcdefghijklmn")},
        Caso{"pasted", [](auto &form) { Cola(form, QStringLiteral("ABCDEFGHIJKLMNOP")); },
             QStringLiteral("ABCDEFGHIJKLMN")},
        Caso{"by an input method", metodo, QStringLiteral("ÁÉÍÓÚÀÈÌÒÙÃÕÂÊ")},
        Caso{"not in the code page", [](auto &form) { Cola(form, QStringLiteral("Ωmega")); },
             QStringLiteral("?mega")},
        Caso{"with a line end", [](auto &form) { Cola(form, QStringLiteral("a\n[jogo1]")); },
             QStringLiteral("a [jogo1]")},
        Caso{"none", [](auto &form) { Tecla(form, Qt::Key_Delete); },
             QStringLiteral("Sem nome 10")},
    };
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.nome);
        Salva(10, [&caso](toolkit::Form &form) {
            caso.entra(form);
            Enter(form);
        });
        EXPECT_EQ(NomeNoSlot(10), caso.noArquivo);
    }
}

TEST_F(SaveLoad, SparesAGameThatTheListCouldNotShow)
{
    SalvaComo(2, QStringLiteral("velho"));
    const QByteArray antes = PastaDeTeste::Conteudo(Arquivo());
    // A folder stands there while the list is read.
    ASSERT_TRUE(QFile::rename(Arquivo(), Dados(u"fora")) && QDir().mkdir(Arquivo()));
    Salva(2, [this](toolkit::Form &form) {
        ASSERT_TRUE(QDir().rmdir(Arquivo()) && QFile::rename(Dados(u"fora"), Arquivo()));
        Enter(form);
    });
    EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), antes);
}

TEST_F(SaveLoad, ClosesWithoutEffectInEveryOtherWay)
{
    SalvaComo(1, QStringLiteral("um"));
    const QByteArray antes = PastaDeTeste::Conteudo(Arquivo());
    const int partida = jogo.d().tabuleiro.Partida;
    const std::array<RoteiroDialogos::Passos, 4> fechos = {
        [](toolkit::Form &form) { ClicaNaJanela(Imagem(form, u"Image1")); },
        [](toolkit::Form &form) { Esc(form); },
        [](toolkit::Form &form) { form.close(); },
        [](toolkit::Form &form) { ClicaNaJanela(LbSave(form, kCancelar)); },
    };
    for (size_t k = 0; k < fechos.size(); ++k) {
        SCOPED_TRACE(k);
        dialogos.Espera(QStringLiteral("FrmCarregar"), fechos[k]);
        Menu(kMenuAbrir);
        dialogos.Espera(QStringLiteral("FrmSalvar"), fechos[k]);
        Menu(kMenuSalvar);
        // The name's dialog has no "Cancelar".
        if (k + 1 < fechos.size()) {
            Salva(2, [&fechos, k](toolkit::Form &form) {
                Digita(form, QStringLiteral("dois"));
                fechos[k](form);
            });
        }
    }
    EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), antes);
    EXPECT_EQ(jogo.d().tabuleiro.Partida, partida);
    EXPECT_TRUE(jogo.maquina.mensagens.isEmpty());
}

TEST_F(SaveLoad, ColoursTheLabelLastUnderTheMouse)
{
    dialogos.Espera(QStringLiteral("FrmCarregar"), [](toolkit::Form &form) {
        PoeMouse(LbSave(form, 3));
        EXPECT_EQ(LbSave(form, 3).ForeColor(), kAzul);
        PoeMouse(LbSave(form, 5));
        PoeMouse(Imagem(form, u"Image3"));
        for (int n = 1; n <= kCancelar; ++n) {
            EXPECT_EQ(LbSave(form, n).ForeColor(), n == 5 ? kAzul : toolkit::kPreto) << n;
        }
        PoeMouse(LbSave(form, kCancelar));
        EXPECT_EQ(LbSave(form, 5).ForeColor(), toolkit::kPreto);
        ClicaNaJanela(LbSave(form, kCancelar));
    });
    Menu(kMenuAbrir);
}
