#pragma once

#include <array>
#include <deque>
#include <functional>
#include <QMap>
#include <QStringList>

/// A second player, who knows the rules: a game as the player meets it, written down once more as
/// plainly as it can be, without a window and without a line of the program's.
///
/// The methods are what happens to the game. What the player would then see and hear is in the
/// members, in the log and, for the moments when the game waits for an answer, in the snapshots.
namespace modelo {

inline constexpr int kCasas = 572;
inline constexpr int kPalavras = 26;
/// Seconds that a message box and a dialog stay open in these games.
inline constexpr double kSegundosDeMensagem = 7.25;
inline constexpr double kSegundosDeDialogo = 3.5;

/// A control of the main form by its name; `n` is its index, -1 where it has none.
struct Alvo
{
    QString nome = {};
    int n = -1;
};

/// What the player does in the dialogs that one gesture opens.
struct Respostas
{
    /// To a question: yes or no, OK or cancel.
    bool aceita = true;
    /// The label clicked in a list of saved games: 1 to 10, 11 "Cancelar", 12 the close area.
    int slot = 11;
    QString nome = {};
    /// Leaves the name that the dialog offers, or closes it without saving.
    bool mantemNome = false, desisteDoNome = false;
};

/// The ground of a cell.
enum class Chao { Branco, Amarelo, Azul };

struct Casa
{
    QList<int> itens;
    QChar sentido, letra;
    bool fixa = false, visivel = false, vermelha = false;
    QString texto;
    Chao chao = Chao::Branco;
};

struct Item
{
    QString palavra, dica;
    QChar sentido;
    int ponto = 0;
    bool resolvido = false;
    /// The button on the strip, and the mark in its place with its left edge and width in twips.
    bool botao = true, aceso = false, marca = false;
    int marcaLeft = 0, marcaWidth = 0;
};

/// A stored file: "section/key" and what stands behind the equals sign.
using Arquivo = QMap<QString, QString>;
/// Everything that can be read off a game, always in the same order.
using Retrato = QStringList;

/// Capitals, and seconds as the game shows them.
QString Capitais(const QString &texto);
QString Tempo(int segundos);

class Regras
{
public:
    void NovoJogo();
    /// The mouse moves onto a control; it clicks on one, once or twice in a row.
    void Move(const Alvo &alvo);
    void Clica(const Alvo &alvo, bool dupla);
    /// A text arrives in whatever has the focus, at once.
    void Digita(const QString &texto);
    /// A timer, 1 to 4, has run down.
    void Tique(size_t timer);

    /// Whether the mouse on `alvo` may meet `real`, as the controls lie upon each other.
    [[nodiscard]] bool Alcanca(const Alvo &alvo, const Alvo &real) const;
    [[nodiscard]] Retrato Mostra() const;
    [[nodiscard]] QList<int> CasasDe(int n) const;
    [[nodiscard]] int Resolvidos() const;
    /// The lowest open item, 27 if there is none.
    [[nodiscard]] int Aberto() const;
    [[nodiscard]] Casa &C(int i) { return casas[static_cast<size_t>(i)]; }
    [[nodiscard]] Item &I(int n) { return itens[static_cast<size_t>(n)]; }
    [[nodiscard]] const Casa &C(int i) const { return casas[static_cast<size_t>(i)]; }
    [[nodiscard]] const Item &I(int n) const { return itens[static_cast<size_t>(n)]; }

    // What comes from outside: the clock, the draws, the player's answers, what happens while a
    // right word is judged and while a board is built or laid out, and the puzzle that the program
    // has built, with the number of builds that failed before it.
    double agora = 0;
    std::deque<double> sorte;
    int sorteios = 0;
    Respostas respostas;
    std::function<void()> aoCeder, aoCederNoPainel;
    std::function<int(std::array<Item, kPalavras + 1> &itens)> montado;

    // What the player meets.
    QStringList log;
    QList<Retrato> momentos;
    std::array<Casa, kCasas + 1> casas;
    std::array<Item, kPalavras + 1> itens;
    int item = 0, Focus = 0;
    bool NoClick = false, Desistiu = false, TudoResolvido = false, SomLigado = true;
    QString avisoa, dica, relogio;
    double HoraInicio = 0;
    bool painel = false, escudo = false, socorro = false, desistir = false, marcador = false;
    std::array<bool, 5> timers{};
    /// The bubble shows from the start on, below the form: left and lower edge, and how much
    /// larger than its text it is, in twips.
    bool balao = true, seta = false, seta2 = false;
    QString textoBalao = QStringLiteral("Label3"), sobraBalao = QStringLiteral("675|210");
    long balaoLeft = 6390, balaoBaixo = 9795;
    int marcadorLeft = 0;
    double folhaLeft = 0, folhaTop = 0;
    /// jf.dat, save.ini, Ranking.dat; slots of save.ini that cannot be opened.
    Arquivo usadas, jogos, ranking;
    QList<int> danificados;

private:
    void Zera(), Centra(), Termina(), Desiste(), Reinicia(), Socorro(), Abre(), Salva();
    void Poe(int n, bool resolvido);
    void Seleciona(int n, bool confere = true);
    void Limpa(int n), Verifica(int n), Certa(int n), SomeNoTab(int n);
    void ApertaCasa(int i), Mudou(int i), Paira(int i);
    void Escreve(int i, const QString &texto);
    void Menu(int k), Carrega(int slot), MostraRanking();
    int ProcuraVazia(bool soCruzamentos);
    int EscolheSlot(const QString &form, const QStringList &nomes);
    bool EntraNoRanking(int t), Sorteia(int p);
    void Som(const QString &nome), Dialogo(const QString &texto);
    bool Mensagem(const QString &texto, const QString &botoes = QStringLiteral("Ok "));
    [[nodiscard]] QStringList Slots(const QString &vazio) const;
    bool m_alterna = false;
    int m_partida = 0;
};

} // namespace modelo
