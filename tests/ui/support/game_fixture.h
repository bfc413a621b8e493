#pragma once

#include "app/form1.h"
#include "shell/registry_start.h"
#include "tests/ui/support/dialog_script.h"
#include "tests/ui/support/player.h"

#include <deque>
#include <memory>
#include <QStringList>
#include <QTemporaryDir>

/// Chance as a test wants it: first the values that it has set, then a generator with a fixed seed.
class AcasoDeTeste final : public Acaso
{
public:
    double Uniforme() override;
    void Reseed(std::uint64_t semente) { m_gerador = std::make_unique<AcasoMersenne>(semente); }

    std::deque<double> proximos;

private:
    std::unique_ptr<AcasoMersenne> m_gerador = std::make_unique<AcasoMersenne>(1);
};

/// The whole game on Qt's offscreen platform: the real main form with the real rooms, in a folder
/// of its own with a small bank, and a machine that the test holds in its hands.
class JogoDeTeste
{
public:
    /// Starts the game on a screen of `dpi` dots per inch: the first puzzle stands and item 1 is
    /// selected. What the start has sounded is forgotten.
    explicit JogoDeTeste(int dpi = toolkit::kDpiPadrao);
    ~JogoDeTeste();

    /// The program's clock, in seconds. It moves only when the test moves it.
    double agora = 36000;
    /// Answers to the next message boxes. Where none is left, the default button is pressed.
    std::deque<Resposta> respostas;
    /// Texts of the message boxes shown, and names of the sound files played, in order.
    QStringList mensagens;
    QStringList sons;
    QStringList paginas;
    /// How often the program asked for its own end.
    int terminos = 0;
    /// Called whenever the program lets events run, before they do.
    std::function<void()> aoDeixarEventos;
    /// Called while a message box is up.
    std::function<void()> naMensagem;
    RoteiroDialogos dialogos;

    [[nodiscard]] AcasoDeTeste &Acaso() { return *m_acaso; }
    [[nodiscard]] ValoresPrograma &Valores() { return m_valores; }
    [[nodiscard]] const ContextoJogo &Jogo() const { return m_principal->Jogo(); }
    [[nodiscard]] toolkit::Form &Janela() { return m_principal->Janela(); }
    [[nodiscard]] forms::ControlesForm1 &C() { return Jogo().c; }
    /// Path of a file among those that the program writes.
    [[nodiscard]] QString Dados(QStringView nome) const
    {
        return Caminho(m_valores.PastaDados, nome);
    }

    /// What a dialog on the main form gets.
    [[nodiscard]] ContextoDialogo Dialogo() { return {m_valores, m_ambiente, Janela()}; }

    /// A click on menu entry `k`, 0 to 5.
    void Menu(int k);
    /// Lets Timer1 tick and gives what the clock shows.
    QString Relogio();
    /// Selects item `n` by its button and types its word. It must be open.
    void Resolve(int n);
    /// Types what the selected item lacks.
    void DigitaSelecionado();

private:
    void FazAmbiente();

    QTemporaryDir m_pasta;
    RegistroDoPrograma m_registro;
    ValoresPrograma m_valores;
    Ambiente m_ambiente;
    AcasoDeTeste *m_acaso = nullptr;
    std::unique_ptr<Form1> m_principal;
};

/// The bytes of a small bank that serves: made-up words, some with accents, and their clues.
QByteArray BancoDeTeste();

/// Makes a file of these bytes, instead of one that is there.
void GravaArquivo(const QString &caminho, const QByteArray &bytes);
/// The bytes of a file, "(missing)" where there is none.
QByteArray LeArquivo(const QString &caminho);
