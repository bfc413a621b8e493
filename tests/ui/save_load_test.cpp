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

constexpr int kMenuNovo = 0;
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

toolkit::TextBox &Nome(const toolkit::Form &form)
{
    return forms::Acha<toolkit::TextBox>(form, u"Text1");
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

    void Abre(int n)
    {
        dialogos.Espera(QStringLiteral("FrmCarregar"),
                        [n](toolkit::Form &form) { ClicaNaJanela(LbSave(form, n)); });
        Menu(kMenuAbrir);
    }

    QString NomeNoSlot(int n) { return NomesDosSlots(Arquivo()).nome[static_cast<size_t>(n)]; }
    QString Arquivo() { return Dados(kArquivoJogos); }

    /// What a slot holds; a test with a slot that cannot be read has failed.
    JogoSalvo LeSalvo(int n)
    {
        const auto lido = LeSlot(Arquivo(), n);
        EXPECT_TRUE(std::holds_alternative<JogoSalvo>(lido));
        const auto *salvo = std::get_if<JogoSalvo>(&lido);
        return salvo == nullptr ? JogoSalvo() : *salvo;
    }

    QString PalavrasDoTabuleiro()
    {
        QString palavras;
        for (int n = 1; n <= kItens; ++n) {
            palavras += jogo.d().Item(n).Palavra + u' ';
        }
        return palavras;
    }
};

} // namespace

TEST_F(SaveLoad, SavesTheGameWithItsTimeWhileTheBoardIsInView)
{
    bool algumDialogo = true;
    jogo.maquina.aoDeixarEventos = [this, &algumDialogo] {
        if (!QFile::exists(Arquivo())) {
            algumDialogo = QApplication::activeModalWidget() != nullptr;
        }
    };
    jogo.Resolve(1);
    jogo.maquina.sons.clear();
    const double inicio = jogo.maquina.agora;
    jogo.maquina.agora += 300.25;
    SalvaComo(3, QStringLiteral("Zé & Ção"));

    EXPECT_FALSE(algumDialogo);
    QCoreApplication::processEvents();
    EXPECT_TRUE(jogo.c().Text1(jogo.d().estado.Focus).TemFoco()) << "the keyboard is elsewhere";
    EXPECT_EQ(NomeNoSlot(3), QStringLiteral("Zé & Ção"));
    const JogoSalvo salvo = LeSalvo(3);
    EXPECT_NEAR(salvo.tempo, 300.25, 0.01);
    for (int n = 1; n <= kItens; ++n) {
        const RegistroItem &item = jogo.d().Item(n);
        const RegistroItem &noArquivo = salvo.itens[static_cast<size_t>(n)];
        EXPECT_EQ(noArquivo.Palavra, item.Palavra);
        EXPECT_EQ(noArquivo.Dica, item.Dica);
        EXPECT_EQ(noArquivo.Ponto, item.Ponto);
        EXPECT_EQ(noArquivo.ItemResolvido, n == 1);
    }
    EXPECT_EQ(jogo.maquina.sons,
              QStringList({QStringLiteral("click.wav"), QStringLiteral("click.wav")}));
    // The game goes on as it was.
    EXPECT_EQ(Relogio(), QStringLiteral("00:05:00"));
    EXPECT_DOUBLE_EQ(jogo.valores.HoraInicio, inicio);
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

TEST_F(SaveLoad, AsksBeforeItOverwritesAndOffersTheOldName)
{
    SalvaComo(2, QStringLiteral("velho"));
    const QByteArray antes = PastaDeTeste::Conteudo(Arquivo());

    jogo.maquina.agora += 60;
    jogo.maquina.respostas = {Resposta::Nao};
    dialogos.Espera(QStringLiteral("FrmSalvar"),
                    [](toolkit::Form &form) { ClicaNaJanela(LbSave(form, 2)); });
    Menu(kMenuSalvar);
    EXPECT_EQ(jogo.maquina.mensagens, QStringList(QStringLiteral("Deseja sobregravar velho?")));
    EXPECT_EQ(PastaDeTeste::Conteudo(Arquivo()), antes);

    // Enter at once keeps the name; typing replaces it.
    Salva(2, [](toolkit::Form &form) {
        EXPECT_EQ(Nome(form).Text(), QStringLiteral("velho"));
        Enter(form);
    });
    EXPECT_EQ(NomeNoSlot(2), QStringLiteral("velho"));
    EXPECT_NEAR(LeSalvo(2).tempo, 60, 0.01);
    SalvaComo(2, QStringLiteral("Salvar aqui"));
    EXPECT_EQ(NomeNoSlot(2), QStringLiteral("Salvar aqui"));

    // A game of that name looks like a free slot.
    jogo.maquina.mensagens.clear();
    Salva(2, [](toolkit::Form &form) {
        EXPECT_TRUE(Nome(form).Text().isEmpty());
        ClicaNaJanela(forms::Acha<toolkit::CommandButton>(form, u"Command1"));
    });
    EXPECT_TRUE(jogo.maquina.mensagens.isEmpty());
    EXPECT_EQ(NomeNoSlot(2), QStringLiteral("Sem nome 2"));
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

TEST_F(SaveLoad, OpensAGameWithItsPriceInSilence)
{
    const QString palavras = PalavrasDoTabuleiro();
    jogo.ResolveAte(kItensParaDesistir);
    const RegistroItem aberto = jogo.d().Item(jogo.d().estado.item);
    Digita(jogo.form->Janela(), aberto.Palavra.left(1));
    jogo.maquina.agora += 300;
    SalvaComo(4, QStringLiteral("quatro"));
    Menu(kMenuNovo); // gives up, as ten words are solved
    Menu(kMenuNovo);
    ASSERT_NE(PalavrasDoTabuleiro(), palavras);
    ASSERT_FALSE(jogo.c().Image6.Visible());

    jogo.maquina.sons.clear();
    jogo.maquina.naMensagem = [this] {
        EXPECT_TRUE(jogo.c().Picespere.Visible());
        EXPECT_FALSE(jogo.c().Timer1.Ligado());
        jogo.maquina.agora += 1000;
    };
    Abre(4);

    EXPECT_EQ(jogo.maquina.mensagens,
              QStringList(QStringLiteral("Serão acrescentados 2 minutos ao seu tempo")));
    EXPECT_EQ(PalavrasDoTabuleiro(), palavras);
    EXPECT_EQ(Relogio(), QStringLiteral("00:07:00"));
    EXPECT_EQ(jogo.maquina.sons,
              QStringList({QStringLiteral("click.wav"), QStringLiteral("click.wav")}));
    EXPECT_TRUE(jogo.valores.SomLigado);
    // The first open word is selected and empty but for the letters of solved words.
    const int primeiro = PrimeiroAberto(jogo.d().tabuleiro);
    EXPECT_EQ(jogo.d().estado.item, primeiro);
    EXPECT_EQ(jogo.d().Item(primeiro).Palavra, aberto.Palavra);
    EXPECT_TRUE(jogo.c().Text1(jogo.d().estado.Focus).TemFoco());
    for (int i = 1; i <= kCelulas; ++i) {
        const CelulaQuadrado &celula = jogo.d().Quadrado(i);
        if (jogo.d().Ocupada(i)) {
            EXPECT_EQ(jogo.c().Text1(i).Text(), celula.Fixa ? QString(celula.Letra) : QString());
        }
    }
    EXPECT_TRUE(jogo.c().Image6.Visible());
    EXPECT_TRUE(jogo.c().Label4.Visible());
    EXPECT_TRUE(jogo.c().ImgR.ExisteObjeto(1));
    EXPECT_FALSE(jogo.c().Picespere.Visible() || jogo.c().Image4.Visible());

    // The slot itself has not changed: the price is paid anew.
    jogo.valores.SomLigado = false;
    Abre(4);
    EXPECT_EQ(Relogio(), QStringLiteral("00:07:00"));
    EXPECT_FALSE(jogo.valores.SomLigado);
}

TEST_F(SaveLoad, RefusesEmptyAndDamagedSlots)
{
    dialogos.Espera(QStringLiteral("FrmCarregar"), [this](toolkit::Form &form) {
        ClicaNaJanela(LbSave(form, 7));
        EXPECT_EQ(jogo.maquina.mensagens,
                  QStringList(QStringLiteral("Não há jogo salvo neste local")));
        EXPECT_TRUE(form.isVisible());
        Esc(form);
    });
    Menu(kMenuAbrir);

    SalvaComo(7, QStringLiteral("sete"));
    WritePrivateProfileStringA(QStringLiteral("jogo7"), QStringLiteral("Ponto26"),
                               QStringLiteral("572"), Arquivo());
    jogo.Resolve(1);
    jogo.maquina.agora += 10;
    const int partida = jogo.d().tabuleiro.Partida;
    const int item = jogo.d().estado.item;
    jogo.maquina.mensagens.clear();
    Abre(7);
    EXPECT_EQ(jogo.maquina.mensagens,
              QStringList(QStringLiteral(
                  "O jogo salvo neste local está danificado e não pode ser aberto.")));
    EXPECT_EQ(jogo.d().tabuleiro.Partida, partida);
    EXPECT_EQ(jogo.d().estado.item, item);
    EXPECT_EQ(Relogio(), QStringLiteral("00:00:10"));
    EXPECT_TRUE(jogo.c().Timer1.Ligado());
    EXPECT_TRUE(jogo.valores.SomLigado);
}

TEST_F(SaveLoad, LetsNothingActWhileAGameIsLaid)
{
    jogo.Resolve(1);
    SalvaComo(1, QStringLiteral("um"));
    const QString palavras = PalavrasDoTabuleiro();
    Menu(kMenuNovo);
    const int partida = jogo.d().tabuleiro.Partida;
    int vezes = 0;
    jogo.maquina.aoDeixarEventos = [this, &vezes] {
        // The panel goes before the shield: to the very end no new game may start.
        if (jogo.c().Image4.Visible()) {
            Menu(kMenuNovo);
        }
        if (jogo.c().Picespere.Visible()) {
            ++vezes;
            Menu(kMenuAbrir);
            ClicaNaJanela(jogo.c().Lbt(5));
            Digita(jogo.form->Janela(), QStringLiteral("A"));
            ClicaNaJanela(jogo.c().Label4);
        }
    };
    Abre(1);
    jogo.maquina.aoDeixarEventos = nullptr;
    EXPECT_GT(vezes, 100);
    EXPECT_EQ(jogo.d().tabuleiro.Partida, partida + 1);
    EXPECT_EQ(PalavrasDoTabuleiro(), palavras);
    EXPECT_EQ(jogo.maquina.mensagens.size(), 1);
    EXPECT_EQ(jogo.d().estado.item, 2);
    EXPECT_EQ(ContaResolvidos(jogo.d().tabuleiro), 1);
}

TEST_F(SaveLoad, ChecksAFullWordOnlyWhenTheLoadIsOver)
{
    // The words across are solved and fill the words down, but for the last of them.
    Tabuleiro tabuleiro = TabuleiroDeTeste();
    for (RegistroItem &item : tabuleiro.ItemPalavra) {
        item.ItemResolvido = item.Sentido == u'H';
    }
    tabuleiro.ItemPalavra[kItens].ItemResolvido = true;
    ASSERT_TRUE(
        SalvaSlot(Arquivo(), 1, QStringLiteral("cheio"), tabuleiro, 30, QStringLiteral(".")));
    dialogos.Espera(QStringLiteral("FrmCarregar"),
                    [](toolkit::Form &form) { ClicaNaJanela(LbSave(form, 1)); });
    dialogos.Espera(QStringLiteral("FrmSeuNome"), [this](toolkit::Form &form) {
        EXPECT_FALSE(jogo.c().Picespere.Visible() || jogo.c().Image4.Visible());
        EXPECT_EQ(jogo.maquina.mensagens.size(), 1);
        Enter(form);
    });
    dialogos.Espera(QStringLiteral("FrmHanking"), [](toolkit::Form &form) {
        EXPECT_EQ(forms::Acha<toolkit::Label>(form, u"Label2", 1).Caption(),
                  QStringLiteral("00:02:30"));
        Esc(form);
    });
    Menu(kMenuAbrir);
    EXPECT_TRUE(jogo.d().estado.TudoResolvido);
    EXPECT_FALSE(jogo.c().Timer1.Ligado());
    EXPECT_FALSE(jogo.c().Label4.Visible());
}
