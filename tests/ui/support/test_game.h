#pragma once

#include "ui/machine/registry_start.h"
#include "ui/main_form/form1.h"

#include <deque>
#include <memory>
#include <ostream>
#include <QTemporaryDir>

/// Shows texts in the messages of failed expectations.
inline void PrintTo(const QString &texto, std::ostream *saida)
{
    *saida << '"' << texto.toStdString() << '"';
}

/// The machine of a test: a clock that the test moves, chance with a seed, answers given
/// beforehand, and a record of what the program asked for.
struct MaquinaDeTeste
{
    double agora = 50000;
    QStringList sons;
    QStringList mensagens;
    std::deque<Resposta> respostas;
    QStringList paginas;
    /// How often the program asked to be ended.
    int fins = 0;
    /// Runs while a message box is open.
    std::function<void()> naMensagem;
    /// Runs each time the program lets events run, before they do.
    std::function<void()> aoDeixarEventos;

    /// The seam over it. A message box without a prepared answer gets OK or Sim.
    Ambiente Seam(std::uint64_t semente);
};

/// A bank of made-up words, `quantas` of them, with the length shares of a normal bank; the clue of
/// a word is "Dica de " and the word.
QByteArray BancoInventado(int quantas, std::uint64_t semente = 1);

/// The whole main form in a portable folder of its own, with a player's hands: real key and mouse
/// events.
class JogoDeTeste
{
public:
    explicit JogoDeTeste(std::uint64_t semente = 1, const QByteArray &banco = BancoInventado(600),
                         int dpi = toolkit::kDpiPadrao);

    /// Shows the form and waits until a board can be played.
    void Comeca();
    /// Fills the ranking with times that nobody can beat: a game ends with its message and asks for
    /// no name.
    void EncheRanking() const;

    [[nodiscard]] const ContextoJogo &d() const { return form->Jogo(); }
    [[nodiscard]] forms::ControlesForm1 &c() const { return form->Jogo().c; }
    [[nodiscard]] QString Caminho(QStringView nome) const;
    /// What a dialog on the main form gets.
    [[nodiscard]] ContextoDialogo Dialogo() { return {valores, m_ambiente, form->Janela()}; }

    /// Clicks on a control with the left button (or another one).
    static void Clica(const toolkit::Control &controle, Qt::MouseButton botao = Qt::LeftButton);
    /// Moves the mouse over a control without a button.
    static void Paira(const toolkit::Control &controle);
    /// Types into whatever has the focus.
    void Digita(const QString &texto);
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mais = Qt::NoModifier);
    /// Pastes a text into whatever has the focus.
    void Cola(const QString &texto);
    /// Clicks the button of item `n`, or a cell of it where the button lies under a mark.
    void Seleciona(int n);
    /// Selects item `n` and types its free cells right.
    void Resolve(int n);
    /// Solves the open items from the lowest on until `quantos` are solved.
    void ResolveAte(int quantos);
    /// Text of the free cells of item `n`, for typing.
    [[nodiscard]] QString LetrasLivres(int n) const;

    QTemporaryDir pasta;
    MaquinaDeTeste maquina;
    ValoresPrograma valores;

private:
    RegistroDoPrograma m_registro;
    Ambiente m_ambiente;

public:
    std::unique_ptr<Form1> form;
};
