#pragma once

#include "tests/ui/model/regras.h"
#include "tests/ui/support/test_game.h"

#include <vector>

namespace modelo {

/// One act of a player, by numbers that mean something on any board, so that a list of acts still
/// makes sense when some of them are left out.
struct Ato
{
    int tipo = 0;
    int a = 0, b = 0, c = 0;
};

/// What the player does with the real widgets: one event, or one click.
struct Gesto
{
    enum class Tipo { Move, Clica, Digita, Compoe, Cola, Tecla, Tique, Espera };

    Gesto(Tipo um, Alvo em, QString oQue = {}, int qual = 0, double quanto = 0)
        : tipo(um), alvo(std::move(em)), texto(std::move(oQue)), n(qual), segundos(quanto)
    {
    }

    Tipo tipo;
    Alvo alvo;
    QString texto;
    /// Timer, key, or kind of click: 0 left, 1 middle, 2 double.
    int n;
    double segundos;
    Respostas respostas;
    /// What arrives while the gesture lets events run, and the yield under the panel at which it
    /// does (0: the one in which a right word is judged).
    std::vector<Gesto> dentro;
    int noPainel = 0;
    /// Where the mouse got to, and whether it was elsewhere before.
    Alvo real;
    bool movido = false;
};

/// What the program shows, read off its widgets, its state and its files.
Retrato Le(const JogoDeTeste &jogo);
/// A stored file by a reader of the test's own.
Arquivo LeArquivo(const QString &caminho);
/// Name by name what differs, at most a few lines; "" where nothing does.
QString Diferencas(const QStringList &programa, const QStringList &modelo);
QString Diferencas(const Arquivo &programa, const Arquivo &modelo);
/// The control of a form at a place, or that of a widget.
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
    /// Games that have been won or given up, or left for another.
    [[nodiscard]] int Partidas() const { return m_partidas; }

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    class Sorte;

    // An act as gestures.
    void Escreve(const QString &letras, int como, int interrompe);
    void ResolveItem(int n, int como, int interrompe);
    void Pairar(int a, int b);
    void Interrompe(Gesto &gesto, int com);
    void ClicaEm(const Alvo &alvo, int como = 0, const Respostas &r = {}, int com = 0);
    void Menu(const Ato &ato);
    void Danifica(int slot, int como);
    void PreparaRanking(int como);
    [[nodiscard]] Alvo CasaAoAcaso(int a, bool cruzamento) const;
    [[nodiscard]] QString Falta(int n, int como) const;

    // A gesture in the program, then in the model.
    void Executa(Gesto gesto);
    void NoPrograma(Gesto &gesto);
    void NoModelo(const Gesto &gesto);
    void Aponta(Gesto &gesto);
    void Compara(const QString &gesto);
    void Encena(toolkit::Form &form);
    void Cedeu();
    void CedeuNoModelo(bool noPainel);
    void Anota(const QString &linha);
    [[nodiscard]] Montado Puzzle() const;
    Resposta Responde(const PedidoMensagem &pedido);

    JogoDeTeste m_jogo;
    Regras m_regras;
    Sorte *m_sorte = nullptr;
    Gesto *m_gesto = nullptr;
    const Gesto *m_doModelo = nullptr;
    bool m_interrompido = false, m_interrompidoNoModelo = false;
    QStringList m_log;
    QList<Retrato> m_momentos;
    QString m_erro;
    QPoint m_mouse;
    std::uint64_t m_sementeDaSorte;
    int m_cedeuNoPainel = 0, m_partidaDoTabuleiro = 0, m_partidas = 0;
    std::array<QByteArray, 3> m_bytes;
    std::array<Arquivo, 3> m_lidos;
};

inline constexpr int kAtosPorSessao = 150;
/// The acts of a session, by its seed.
std::vector<Ato> Sorteados(std::uint64_t semente);

} // namespace modelo
