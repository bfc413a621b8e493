#include "tests/ui/support/test_game.h"
#include "ui/main_form/splash.h"
#include "ui/toolkit/message_box.h"

#include <gtest/gtest.h>
#include <map>
#include <private/qguiapplication_p.h>
#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QRegularExpression>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

using Eventos = std::map<QAccessible::Event, QStringList>;

/// Says whether assistive technology is there; otherwise the system alone can.
void Ativa(bool ativa)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(ativa);
}

/// A screen reader at work as long as the object lives: takes the events that the program raises
/// and asks the questions that it would ask.
class Ouvinte
{
public:
    Ouvinte()
    {
        s_recebidos = &m_recebidos;
        Ativa(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent *evento) {
            if (const QAccessibleInterface *leitura = evento->accessibleInterface())
                (*s_recebidos)[evento->type()] << leitura->text(QAccessible::Name);
        });
    }
    ~Ouvinte()
    {
        QAccessible::installUpdateHandler(nullptr);
        Ativa(false);
    }
    Q_DISABLE_COPY_MOVE(Ouvinte)

    /// Names of the objects that raised events of `tipo` since the last time, each as it was named
    /// then. Lets what is due happen first.
    QStringList Ouvidos(QAccessible::Event tipo)
    {
        QCoreApplication::processEvents();
        return std::exchange(m_recebidos[tipo], {});
    }
    QStringList Alertas() { return Ouvidos(QAccessible::Alert); }

private:
    static inline Eventos *s_recebidos = nullptr;
    Eventos m_recebidos;
};

QAccessibleInterface &De(const toolkit::Control &controle)
{
    return *QAccessible::queryAccessibleInterface(controle.Widget());
}

QString Nome(const toolkit::Control &controle)
{
    return De(controle).text(QAccessible::Name);
}

/// Does the control's first action, and lets what follows happen.
void Pressiona(const toolkit::Control &controle)
{
    QAccessibleActionInterface *acoes = De(controle).actionInterface();
    if (acoes != nullptr && !acoes->actionNames().isEmpty())
        acoes->doAction(acoes->actionNames().constFirst());
    QCoreApplication::processEvents();
}

/// All that lies below `raiz`, in reading order, containers before what lies in them.
QList<QAccessibleInterface *> Arvore(QAccessibleInterface &raiz)
{
    QList<QAccessibleInterface *> arvore;
    for (int k = 0; k < raiz.childCount(); ++k)
        arvore << raiz.child(k) << Arvore(*raiz.child(k));
    return arvore;
}

class Acessibilidade : public ::testing::Test
{
protected:
    Acessibilidade() { jogo.Comeca(); }

    [[nodiscard]] const RegistroItem &I(int n) const { return jogo.d().Item(n); }
    [[nodiscard]] toolkit::Label &Entrada(size_t k) const { return *jogo.c().Label3[k]; }
    /// Cell `i`, and the first cell of item `n`.
    [[nodiscard]] toolkit::TextBox &Celula(int i) const { return jogo.c().Text1(i); }
    [[nodiscard]] toolkit::TextBox &Comeco(int n) const { return Celula(I(n).Ponto); }
    /// A crossing cell of two open items.
    [[nodiscard]] int Cruzamento() const
    {
        int i = 1;
        while (!jogo.d().Quadrado(i).Itens.contains(u','))
            ++i;
        return i;
    }
    [[nodiscard]] ItensDaCelula ItensEm(int i) const { return LeItens(jogo.d().Quadrado(i).Itens); }

    Ouvinte ouvinte;
    JogoDeTeste jogo;
};

/// Writes as a screen reader or dictation would.
void Escreve(const toolkit::TextBox &celula, const QString &texto)
{
    De(celula).editableTextInterface()->insertText(0, texto);
    QCoreApplication::processEvents();
}

} // namespace

TEST_F(Acessibilidade, TreeHoldsWhatThePlayerMeetsAndNothingElse)
{
    jogo.Resolve(3);
    QAccessibleInterface &janela = *QAccessible::queryAccessibleInterface(&jogo.form->Janela());
    EXPECT_EQ(janela.role(), QAccessible::Window);
    std::map<QAccessible::Role, long> quantos;
    QStringList itens;
    for (QAccessibleInterface *um : Arvore(janela)) {
        const QString nome = um->text(QAccessible::Name);
        EXPECT_FALSE(nome.isEmpty()) << um->object()->objectName().toStdString();
        EXPECT_FALSE(um->state().invisible) << nome.toStdString();
        EXPECT_EQ(um->parent()->child(um->parent()->indexOfChild(um)), um) << nome.toStdString();
        ++quantos[um->role()];
        if (nome.contains(QRegularExpression(u"^%1 .* letras, "_s.arg(itens.size() + 1))))
            itens << nome;
    }
    const auto &ocupada = jogo.d().tabuleiro.Ocupada;
    // Item 3 is solved: its mark is a text, beside the clue.
    const std::map<QAccessible::Role, long> esperado = {
        {QAccessible::Grouping, 1},
        {QAccessible::Clock, 1},
        {QAccessible::StaticText, 2},
        {QAccessible::Notification, 1},
        {QAccessible::EditableText, std::count(ocupada.begin(), ocupada.end(), true)},
        {QAccessible::Button, kItens - 1 + 9}};
    EXPECT_EQ(quantos, esperado);
    // The items are read in their order, solved or not.
    ASSERT_EQ(itens.size(), kItens);
    EXPECT_TRUE(itens[2].contains(u", resolvida: Dica de "_s));
    EXPECT_TRUE(itens[3].contains(u", não resolvida"_s));
    // None of them is a stop of the Tab key but the cells.
    for (const QWidget *um : jogo.form->Janela().findChildren<QWidget *>())
        EXPECT_EQ((um->focusPolicy() & Qt::TabFocus) != 0, um->objectName().startsWith(u"Text1("))
            << um->objectName().toStdString();
}

TEST_F(Acessibilidade, TellsTheStatesOfALetterThatDifferByColour)
{
    EXPECT_TRUE(Nome(Comeco(1)).endsWith(u": vazia"_s));
    jogo.ResolveAte(10);
    EXPECT_TRUE(Nome(Comeco(2)).endsWith(u": %1, confirmada"_s.arg(I(2).Palavra[0])));
    const int focus = jogo.d().estado.Focus;
    const QString letra = jogo.d().Quadrado(focus).Letra;
    jogo.Digita(letra);
    EXPECT_TRUE(Nome(Celula(focus)).endsWith(u": "_s + letra));
    EXPECT_EQ(Nome(Entrada(0)), u"Desistir"_s);
    Pressiona(Entrada(0));
    ASSERT_TRUE(jogo.d().valores.Desistiu);
    EXPECT_EQ(Nome(Entrada(0)), u"Novo Jogo"_s);
    for (int i = 1; i <= kCelulas; ++i) {
        if (!jogo.d().Ocupada(i)) continue;
        const bool revelada = Celula(i).ForeColor() == kCorRevelada;
        EXPECT_TRUE(Nome(Celula(i)).endsWith(revelada ? u", revelada"_s : u", confirmada"_s));
    }
    EXPECT_TRUE(Nome(jogo.c().Lbt(26)).contains(u", revelada: "_s));
    EXPECT_TRUE(Nome(jogo.c().ImgR(2)).contains(u", resolvida: "_s));
}

TEST_F(Acessibilidade, PressDoesWhatAClickDoes)
{
    jogo.maquina.sons.clear();
    Pressiona(jogo.c().Lbt(5));
    EXPECT_EQ(jogo.d().estado.item, 5);
    EXPECT_EQ(jogo.maquina.sons, QStringList{u"select.wav"_s});
    EXPECT_TRUE(Nome(jogo.c().Lbt(5)).contains(u"selecionada"_s));
    EXPECT_EQ(Nome(jogo.c().Label1), u"Dica: "_s + I(5).Dica);
    const ItensDaCelula itens = ItensEm(Cruzamento());
    for (const int item : {itens.segundo, itens.primeiro}) {
        Pressiona(Celula(Cruzamento()));
        EXPECT_EQ(jogo.d().estado.item, item);
    }
    Pressiona(jogo.c().Label4);
    EXPECT_EQ(jogo.maquina.mensagens.size(), 1);
    jogo.Resolve(7);
    Pressiona(Entrada(1));
    EXPECT_EQ(ContaResolvidos(jogo.d().tabuleiro), 0);
    EXPECT_EQ(Entrada(1).BorderStyle(), 0);
    Pressiona(Entrada(5));
    Pressiona(jogo.c().Image2);
    EXPECT_EQ(jogo.maquina.fins, 2);
    EXPECT_EQ(Nome(jogo.c().Image8), u"Sobre o Quadrelo"_s);
}

TEST_F(Acessibilidade, PressesNothingWhileABoardIsBuilt)
{
    const toolkit::TextBox &celula = Comeco(4);
    int vezes = 0;
    jogo.maquina.aoDeixarEventos = [&] {
        if (!jogo.c().Picespere.Visible() || vezes++ > 0) return;
        EXPECT_EQ(Nome(jogo.c().Picespere), u"Por favor aguarde"_s);
        std::vector<const toolkit::Control *> todos = {&jogo.c().Lbt(7), &celula};
        for (size_t k = 1; k <= 5; ++k) {
            EXPECT_TRUE(De(Entrada(k)).state().disabled) << k;
            todos.push_back(&Entrada(k));
        }
        // The build's own events carry these out.
        for (const toolkit::Control *um : todos)
            De(*um).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    jogo.maquina.sons.clear();
    Pressiona(Entrada(0));
    EXPECT_GT(vezes, 0);
    EXPECT_EQ(jogo.maquina.fins, 0);
    EXPECT_EQ(jogo.maquina.sons, QStringList({u"click.wav"_s, u"select.wav"_s}));
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_FALSE(De(Entrada(1)).state().disabled);
}

TEST_F(Acessibilidade, AnnouncesEachMessageAndKeepsThePlayerInItsBox)
{
    ouvinte.Alertas();
    QStringList nomes;
    QTimer::singleShot(0, &jogo.form->Janela(), [&] {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(caixa, nullptr);
        for (const auto *um : Arvore(*QAccessible::queryAccessibleInterface(caixa)))
            nomes << um->text(QAccessible::Name);
        Pressiona(jogo.c().Lbt(5));
        Pressiona(Entrada(5));
        caixa->reject();
    });
    toolkit::MostraMensagem(u"Quadrelo"_s, {u"Uma\rmensagem"_s});
    EXPECT_TRUE(nomes.contains(u"Uma\nmensagem"_s));
    EXPECT_EQ(ouvinte.Alertas(), QStringList{u"Quadrelo"_s});
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_EQ(jogo.maquina.fins, 0);
}

TEST_F(Acessibilidade, AnnouncesJudgementsHelpAndGivingUp)
{
    ouvinte.Ouvidos(QAccessible::Focus);
    jogo.Digita(QString(I(1).Palavra.size(), u'0'));
    EXPECT_EQ(ouvinte.Alertas(),
              QStringList{u"Palavra errada. As letras não confirmadas foram apagadas."_s});
    const QString sentido = I(1).Sentido == u'H' ? u"horizontal"_s : u"vertical"_s;
    EXPECT_TRUE(
        ouvinte.Ouvidos(QAccessible::Focus).last().contains(u"1 %1, letra 1 de "_s.arg(sentido)));
    jogo.Resolve(1);
    EXPECT_EQ(ouvinte.Alertas(),
              QStringList{u"Palavra certa: %1. Resolvidas: 1 de 26."_s.arg(I(1).Palavra)});
    Clica(jogo.c().Label4);
    EXPECT_EQ(ouvinte.Alertas().filter(u"Letra dada: "_s).size(), 1);
    jogo.ResolveAte(10);
    ouvinte.Alertas();
    jogo.Menu(0);
    EXPECT_EQ(ouvinte.Alertas(), QStringList{u"Você desistiu. A solução está no tabuleiro."_s});
    EXPECT_EQ(ouvinte.Ouvidos(QAccessible::ObjectShow).filter(u"desistiu"_s).size(), 1)
        << "screen readers on Linux take no alerts, but notifications that come up";
}

TEST_F(Acessibilidade, AnnouncesTheBubbleWithTheDirectionsThatItsArrowsShow)
{
    ouvinte.Alertas();
    Paira(Celula(Cruzamento()));
    EXPECT_EQ(ouvinte.Alertas(), QStringList()) << "nothing before the first bubble comes up";
    jogo.c().Timer3.Tique();
    const RegistroItem *a = &I(ItensEm(Cruzamento()).primeiro);
    const RegistroItem *b = &I(ItensEm(Cruzamento()).segundo);
    if (b->Sentido == u'H') std::swap(a, b);
    EXPECT_EQ(ouvinte.Alertas(),
              QStringList{u"Horizontal: %1; vertical: %2"_s.arg(a->Dica, b->Dica)});
    EXPECT_TRUE(Nome(jogo.c().Picture2).contains(a->Dica)) << "what the mouse reads there";
}

TEST_F(Acessibilidade, TellsWhichNamesHaveChanged)
{
    // Only what has been read can be out of date.
    QString celula = Nome(Comeco(1));
    EXPECT_FALSE(Nome(jogo.c().Label2).isEmpty());
    ouvinte.Ouvidos(QAccessible::NameChanged);
    jogo.maquina.agora += 65;
    jogo.c().Timer1.Tique();
    EXPECT_EQ(ouvinte.Ouvidos(QAccessible::NameChanged),
              QStringList{u"Tempo de jogo: 1 minuto e 5 segundos"_s});
    jogo.Digita(u"a"_s);
    EXPECT_EQ(ouvinte.Ouvidos(QAccessible::NameChanged),
              QStringList{celula.replace(u"vazia"_s, u"A"_s)});
}

TEST(Silencio, IsKeptWhileNobodyListens)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(1);
    Ouvinte ouvinte;
    EXPECT_EQ(ouvinte.Alertas() + ouvinte.Ouvidos(QAccessible::NameChanged), QStringList());
}

TEST_F(Acessibilidade, WritesOnlyWhereTheCursorStands)
{
    Escreve(Comeco(9), u"b"_s);
    EXPECT_EQ(Comeco(9).Text(), QString());
    for (const QChar letra : I(1).Palavra)
        Escreve(Celula(jogo.d().estado.Focus), QString(letra).toLower());
    EXPECT_TRUE(I(1).ItemResolvido);
    EXPECT_EQ(De(Comeco(1)).text(QAccessible::Value), I(1).Palavra.left(1));
}

TEST_F(Acessibilidade, BannerLeavesTheTreeWithItsSecond)
{
    std::unique_ptr<Form1> principal;
    FrmSplash banner(jogo.valores, jogo.Dialogo().ambiente, principal, toolkit::kDpiPadrao);
    banner.Show();
    QAccessibleInterface &aplicacao = *QAccessible::queryAccessibleInterface(qApp);
    EXPECT_GE(aplicacao.indexOfChild(QAccessible::queryAccessibleInterface(banner.Janela())), 0);
    EXPECT_EQ(banner.Janela()->windowType(), Qt::SplashScreen) << "it stands in the task bar";
    for (int volta = 0; volta < 100 && banner.Janela() != nullptr; ++volta)
        QCoreApplication::processEvents();
    EXPECT_EQ(banner.Janela(), nullptr);
    for (int k = 0; k < aplicacao.childCount(); ++k)
        EXPECT_NE(aplicacao.child(k)->rect().size(), QSize(361, 90)) << k;
}
