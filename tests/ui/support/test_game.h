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

// The player's hand: events as the window system sends them, so that what lies on top gets the
// click, a form behind a modal one gets none, and keys go where the focus is.

/// A click on the middle of a control, or of whatever lies on top there.
void Clica(const toolkit::Control &controle);
/// A click on a place of a form, in its pixels.
void Clica(toolkit::Form &form, QPoint lugar);
/// The mouse moves onto the middle of a control.
void Paira(const toolkit::Control &controle);
/// Types a text, character by character.
void Digita(toolkit::Form &form, const QString &texto);
/// Presses and lets go a key.
void Tecla(toolkit::Form &form, Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier);

/// The machine of a test: a clock that the test moves, chance with a seed, answers given
/// beforehand, and a record of what the program asked for.
struct MaquinaDeTeste
{
    double agora = 50000;
    QStringList sons, mensagens, paginas;
    /// Buttons of the last message.
    Botoes botoes = Botoes::Ok;
    /// A message box without a prepared answer gets OK or Sim.
    std::deque<Resposta> respostas;
    /// How often the program asked to be ended.
    int fins = 0;
    /// Runs each time the program lets events run, before they do.
    std::function<void()> aoDeixarEventos;

    /// The seam over it.
    Ambiente Seam(std::uint64_t semente);
};

/// A bank of made-up words, `quantas` of them, with the length shares of a normal bank; the clue of
/// a word is "Dica de " and the word.
QByteArray BancoInventado(int quantas);

/// The whole main form in a portable folder of its own.
class JogoDeTeste
{
public:
    explicit JogoDeTeste(std::uint64_t semente = 1, const QByteArray &banco = BancoInventado(600),
                         int dpi = toolkit::kDpiPadrao);

    /// Shows the form and waits until a board can be played.
    void Comeca();

    [[nodiscard]] const ContextoJogo &d() const { return form->Jogo(); }
    [[nodiscard]] forms::ControlesForm1 &c() const { return form->Jogo().c; }
    [[nodiscard]] QString Caminho(QStringView nome) const;
    /// What a dialog on the main form gets.
    [[nodiscard]] ContextoDialogo Dialogo() { return {valores, m_ambiente, form->Janela()}; }
    /// A click on menu entry `k`, 0 to 5.
    void Menu(size_t k) const { Clica(*c().Label3[k]); }
    void Digita(const QString &texto) const { ::Digita(form->Janela(), texto); }
    /// Selects item `n`, by its button.
    void Seleciona(int n) const { Clica(c().Lbt(n)); }
    /// Selects item `n` and types its free cells right.
    void Resolve(int n) const;
    /// Solves the open items from the lowest on until `quantos` are solved.
    void ResolveAte(int quantos) const;
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
