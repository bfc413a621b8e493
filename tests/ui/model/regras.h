#pragma once

#include <array>
#include <deque>
#include <functional>
#include <QMap>
#include <QStringList>

/// A second player, who knows the rules: a game as the player meets it, written down once more as
/// plainly as it can be, without a window and without a line of the program's.
///
/// Each method is something that happens to the game. What the player would then see and hear is
/// in the members, in the log and, for the moments when the game waits for an answer, in the
/// snapshots.
namespace modelo {

inline constexpr int kCasas = 572;
inline constexpr int kPalavras = 26;

/// A control of the main form by its name; `n` is its index, -1 where it has none.
struct Alvo
{
    QString nome = {};
    int n = -1;
    bool operator==(const Alvo &) const = default;
};

/// What the player does in the dialogs that one gesture opens.
struct Respostas
{
    /// To a question: yes or no, OK or cancel.
    bool aceita = true;
    /// The label clicked in a list of saved games: 1 to 10, 11 "Cancelar", 12 the close area.
    int slot = 11;
    QString nome;
    /// Leaves the name that the dialog offers, or closes it without saving.
    bool mantemNome = false, desisteDoNome = false;
};

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
    QString palavra;
    QChar sentido;
    int ponto = 0;
    QString dica;
    bool resolvido = false;
    /// The button on the strip, and the mark in its place with its left edge and width in twips.
    bool botao = true, aceso = false, marca = false;
    int marcaLeft = 0, marcaWidth = 0;
};

/// A puzzle that the program has built, and how many builds failed before it.
struct Montado
{
    std::array<Item, kPalavras + 1> itens;
    int falhas = 0;
};

/// A stored file: "section/key" and what stands behind the equals sign.
using Arquivo = QMap<QString, QString>;
/// Everything that can be read off a game, one line "name=value" for each thing.
using Retrato = QStringList;

class Regras
{
public:
    /// The first activation of the form.
    void Comeca() { NovoJogo(); }
    /// The mouse moves onto a control.
    void Move(const Alvo &alvo);
    /// A click on a control, or two in a row.
    void Clica(const Alvo &alvo, bool dupla);
    /// A text arrives in whatever has the focus, at once.
    void Digita(const QString &texto);
    /// A timer, 1 to 4, has run down.
    void Tique(int timer);

    /// Whether a click on `alvo` may reach `real`, as the controls lie upon each other.
    [[nodiscard]] bool Alcanca(const Alvo &alvo, const Alvo &real) const;
    [[nodiscard]] Retrato Mostra() const;
    /// Cell of letter `k` (from 0) of item `n`, and all cells of an item.
    [[nodiscard]] int CasaDe(int n, int k) const;
    [[nodiscard]] QList<int> CasasDe(int n) const;
    [[nodiscard]] int Resolvidos() const;

    // What comes from outside.
    double agora = 0;
    std::deque<double> sorte;
    int sorteios = 0;
    Respostas respostas;
    /// What happens while a right word is judged, and while a board is built or laid out.
    std::function<void()> aoCeder, aoCederNoPainel;
    std::function<Montado()> montado;

    // What the player meets.
    QStringList log;
    QList<Retrato> momentos;
    std::array<Casa, kCasas + 1> casas;
    std::array<Item, kPalavras + 1> itens;
    int item = 0, Focus = 0;
    bool NoClick = false, Desistiu = false, TudoResolvido = false, SomLigado = true;
    QString avisoa, dica = QStringLiteral("..."), relogio = QStringLiteral("00:00:00");
    double HoraInicio = 0;
    bool painel = false, escudo = false, socorro = false, desistir = false;
    std::array<bool, 5> timers{};
    /// The bubble shows from the start on, below the form.
    bool balao = true, seta = false, seta2 = false;
    QString textoBalao = QStringLiteral("Label3");
    /// Left and lower edge, and how much larger than its text it is, in twips.
    int balaoLeft = 6390, balaoBaixo = 9795;
    QString extraBalao = QStringLiteral("675|210");
    bool marcador = false;
    int marcadorLeft = 0;
    double folhaLeft = 0, folhaTop = 0;
    /// jf.dat, save.ini, Ranking.dat; slots of save.ini that cannot be opened.
    Arquivo usadas, jogos, ranking;
    QList<int> danificados;

private:
    void NovoJogo();
    void Zera();
    void Poe(int n, bool resolvido);
    void Centra();
    void Seleciona(int n);
    void ApertaCasa(int i);
    void Escreve(int i, const QString &texto);
    void Mudou(int i);
    void Verifica(int n);
    void Termina();
    void SomeNoTab(int n);
    void Paira(int i);
    void Menu(int k);
    void Desiste();
    void Reinicia();
    void Socorro();
    int ProcuraVazia(bool soCruzamentos);
    void Abre();
    void Carrega(int slot);
    void Salva();
    bool EntraNoRanking(int t);
    void MostraRanking();
    void GravaUsadas();

    [[nodiscard]] bool Sorteia(int p);
    void Som(const QString &nome);
    bool Mensagem(const QString &botoes, const QString &texto);
    void Dialogo(const QString &texto);
    [[nodiscard]] QString NomeDoSlot(int n) const;
    [[nodiscard]] QStringList Slots(const QString &vazio) const;
    [[nodiscard]] int Aberto() const;
    [[nodiscard]] bool Visivel(int i) const
    {
        return i >= 1 && i <= kCasas && casas[static_cast<size_t>(i)].visivel;
    }
    [[nodiscard]] Casa &C(int i) { return casas[static_cast<size_t>(i)]; }
    [[nodiscard]] Item &I(int n) { return itens[static_cast<size_t>(n)]; }
    [[nodiscard]] const Item &I(int n) const { return itens[static_cast<size_t>(n)]; }

    bool m_alterna = false;
    int m_partida = 0;
};

/// Seconds as the game shows them.
QString Tempo(int segundos);
/// Seconds that a message box and a dialog stay open in these games.
inline constexpr double kSegundosDeMensagem = 7.25;
inline constexpr double kSegundosDeDialogo = 3.5;

} // namespace modelo
