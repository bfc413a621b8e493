#pragma once

#include "tests/ui/model/regras.h"
#include "tests/ui/support/test_game.h"

#include <vector>

namespace modelo {

/// One act of a player, by numbers that mean something on any board, so that a list of acts still
/// makes sense when some of them are left out.
struct Ato
{
    int tipo = 0, a = 0, b = 0, c = 0;
};

/// What the player does with the real widgets: one event, or one click.
struct Gesto
{
    enum class Tipo { Move, Clica, Digita, Compoe, Cola, Tecla, Tique, Espera };

    Tipo tipo = Tipo::Move;
    Alvo alvo = {};
    QString texto = {};
    /// Timer, key, or kind of click: 0 left, 1 middle, 2 double.
    int n = 0;
    double segundos = 0;
    Respostas respostas = {};
    /// What arrives while the gesture lets events run, and the yield under the panel at which it
    /// does (0: that in which a right word is judged).
    std::vector<Gesto> dentro = {};
    int noPainel = 0;
    /// Where the mouse got to, and whether it was elsewhere before.
    Alvo real = {};
    bool movido = false;
};

/// What the program shows, read off its widgets and its state.
Retrato Le(const JogoDeTeste &jogo);
/// A stored file by a reader of the test's own.
Arquivo LeArquivo(const QByteArray &bytes);
/// Name by name what differs, "" where nothing does.
QString Diferencas(const QStringList &programa, const QStringList &modelo);
QString Diferencas(const Arquivo &programa, const Arquivo &modelo);
/// The control of a form that a widget belongs to.
Alvo ControleEm(const toolkit::Form &form, const QWidget *widget);

/// A game of the program beside one of the model: each gesture is made in both, and everything is
/// compared.
class Jogador final : public QObject
{
public:
    explicit Jogador(std::uint64_t semente);
    ~Jogador() override;

    /// Starts the first game, or makes an act. Gives what differs then, "" if nothing does.
    QString Comeca();
    QString Faz(const Ato &ato);
    /// Boards that have come up.
    [[nodiscard]] int Partidas() const { return m_partidas; }

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    class Sorte;

    // An act as gestures.
    void Escreve(const QString &letras, int como, int interrompe = 0);
    void ResolveItem(int n, int como, int interrompe = 0);
    void Clica(const Alvo &alvo, int como = 0, const Respostas &r = {}, int com = 0, int yield = 0);
    void Danifica(int slot, int como), PreparaRanking(int como), EncheMemoria(), ColaDois(int a);
    void Grava(const QString &nome, const Arquivo &arquivo) const;
    [[nodiscard]] std::vector<Gesto> Interrupcao(int com) const;
    [[nodiscard]] Alvo CasaAoAcaso(int a, bool cruzamento) const;
    [[nodiscard]] QString Falta(int n, int como) const;

    // A gesture in the program, then in the model, then the comparison.
    void Executa(Gesto gesto), Aponta(Gesto &gesto), NoPrograma(Gesto &gesto), Cedeu();
    void NoModelo(const Gesto &gesto), CedeuNoModelo(bool noPainel);
    int Puzzle(std::array<Item, kPalavras + 1> &itens) const;
    void Compara(const QString &gesto);
    Resposta Responde(const PedidoMensagem &pedido);
    void Encena(toolkit::Form &form);
    void NoDialogo(toolkit::Form &form, const Respostas &r);
    void ClicaNoDialogo(const toolkit::Control &controle);

    JogoDeTeste m_jogo;
    Regras m_regras;
    Sorte *m_sorte = nullptr;
    Gesto *m_gesto = nullptr;
    const Gesto *m_doModelo = nullptr;
    bool m_interrompido = false, m_interrompidoNoModelo = false;
    QStringList m_log;
    QList<Retrato> m_momentos;
    QString m_erro;
    /// Where the mouse is on the screen.
    QPoint m_mouse;
    std::uint64_t m_sementeDaSorte;
    int m_cedeuNoPainel = 0, m_partidaDoTabuleiro = 0, m_partidas = 0;
    std::array<QByteArray, 3> m_bytes;
    std::array<Arquivo, 3> m_lidos;
};

/// A bank in which every letter with an accent occurs.
const QByteArray &Banco();
/// The acts of a session, by its seed.
std::vector<Ato> Sorteados(std::uint64_t semente);

} // namespace modelo
