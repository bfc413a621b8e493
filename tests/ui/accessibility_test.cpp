#include "tests/ui/support/listener.h"
#include "ui/main_form/splash.h"
#include "ui/toolkit/message_box.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTimer>

namespace {

toolkit::Label &Entrada(const JogoDeTeste &jogo, int k)
{
    return *jogo.c().Label3[static_cast<size_t>(k)];
}

int Ocupadas(const JogoDeTeste &jogo)
{
    const auto &ocupada = jogo.d().tabuleiro.Ocupada;
    return static_cast<int>(std::count(ocupada.begin(), ocupada.end(), true));
}

/// First cell of item `n`.
toolkit::TextBox &Comeco(const JogoDeTeste &jogo, int n)
{
    return jogo.c().Text1(jogo.d().Item(n).Ponto);
}

/// A crossing cell of two open items.
int Cruzamento(const JogoDeTeste &jogo)
{
    int i = 1;
    while (!jogo.d().Quadrado(i).Itens.contains(u',')) {
        ++i;
    }
    return i;
}

/// Writes as a screen reader or dictation would.
void Escreve(const toolkit::TextBox &celula, const QString &texto)
{
    Ouvinte::De(celula).editableTextInterface()->insertText(0, texto);
    QCoreApplication::processEvents();
}

} // namespace

TEST(Acessibilidade, TreeHoldsWhatThePlayerMeetsAndNothingElse)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(3);
    static_cast<void>(Ouvinte::Ouvidos(QAccessible::Alert));
    QAccessibleInterface &janela = *QAccessible::queryAccessibleInterface(&jogo.form->Janela());
    EXPECT_EQ(janela.role(), QAccessible::Window);
    std::map<QAccessible::Role, int> quantos;
    QStringList nomes;
    for (QAccessibleInterface *um : Ouvinte::Arvore(janela)) {
        const QString nome = um->text(QAccessible::Name);
        EXPECT_FALSE(nome.isEmpty()) << um->object()->objectName().toStdString();
        EXPECT_FALSE(um->state().invisible) << nome.toStdString();
        EXPECT_EQ(um->parent()->child(um->parent()->indexOfChild(um)), um) << nome.toStdString();
        ++quantos[um->role()];
        nomes << nome;
    }
    // Item 3 is solved: its mark is a text, beside the clue.
    const std::map<QAccessible::Role, int> esperado = {
        {QAccessible::Window, 0},
        {QAccessible::Grouping, 1},
        {QAccessible::Clock, 1},
        {QAccessible::StaticText, 2},
        {QAccessible::Notification, 1},
        {QAccessible::EditableText, Ocupadas(jogo)},
        {QAccessible::Button, kItens - 1 + 9},
    };
    for (const auto &[papel, quantidade] : esperado) {
        EXPECT_EQ(quantos[papel], quantidade) << papel;
    }
    EXPECT_EQ(quantos.size(), esperado.size());
    // The items are read in their order, solved or not.
    QStringList itens;
    for (int n = 1; n <= kItens; ++n) {
        itens << nomes.filter(QRegularExpression(QStringLiteral("^%1 .* letras, ").arg(n)));
    }
    ASSERT_EQ(itens.size(), kItens);
    EXPECT_TRUE(std::is_sorted(itens.begin(), itens.end(), [&](const auto &a, const auto &b) {
        return nomes.indexOf(a) < nomes.indexOf(b);
    }));
    EXPECT_TRUE(itens[2].contains(QStringLiteral(", resolvida: Dica de ")));
    EXPECT_TRUE(itens[3].contains(QStringLiteral(", não resolvida")));
}

TEST(Acessibilidade, TellsTheStatesOfALetterThatDifferByColour)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    EXPECT_TRUE(Ouvinte::Nome(Comeco(jogo, 1)).endsWith(QStringLiteral(": vazia")));
    jogo.ResolveAte(10);
    EXPECT_TRUE(Ouvinte::Nome(Comeco(jogo, 2))
                    .endsWith(QStringLiteral(": %1, confirmada").arg(jogo.d().Item(2).Palavra[0])));
    const toolkit::TextBox &certa = jogo.c().Text1(jogo.d().estado.Focus);
    const QString letra = jogo.d().Quadrado(jogo.d().estado.Focus).Letra;
    jogo.Digita(letra);
    EXPECT_TRUE(Ouvinte::Nome(certa).endsWith(QStringLiteral(": ") + letra));
    EXPECT_EQ(Ouvinte::Nome(Entrada(jogo, 0)), QStringLiteral("Desistir"));
    Ouvinte::Pressiona(Entrada(jogo, 0));
    ASSERT_TRUE(jogo.d().valores.Desistiu);
    EXPECT_EQ(Ouvinte::Nome(Entrada(jogo, 0)), QStringLiteral("Novo Jogo"));
    for (int i = 1; i <= kCelulas; ++i) {
        if (jogo.d().Ocupada(i)) {
            const bool revelada = jogo.c().Text1(i).ForeColor() == kCorRevelada;
            EXPECT_TRUE(Ouvinte::Nome(jogo.c().Text1(i))
                            .endsWith(revelada ? QStringLiteral(", revelada")
                                               : QStringLiteral(", confirmada")))
                << i;
        }
    }
    EXPECT_TRUE(Ouvinte::Nome(jogo.c().Lbt(26)).contains(QStringLiteral(", revelada: ")));
    EXPECT_TRUE(Ouvinte::Nome(jogo.c().ImgR(2)).contains(QStringLiteral(", resolvida: ")));
}

TEST(Acessibilidade, PressDoesWhatAClickDoes)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    Ouvinte::Pressiona(jogo.c().Lbt(5));
    EXPECT_EQ(jogo.d().estado.item, 5);
    EXPECT_EQ(jogo.maquina.sons, QStringList{QStringLiteral("select.wav")});
    EXPECT_TRUE(Ouvinte::Nome(jogo.c().Lbt(5)).contains(QStringLiteral("selecionada")));
    EXPECT_EQ(Ouvinte::Nome(jogo.c().Label1), QStringLiteral("Dica: ") + jogo.d().Item(5).Dica);
    const int cruzamento = Cruzamento(jogo);
    const ItensDaCelula itens = LeItens(jogo.d().Quadrado(cruzamento).Itens);
    Ouvinte::Pressiona(jogo.c().Text1(cruzamento));
    EXPECT_EQ(jogo.d().estado.item, itens.segundo);
    Ouvinte::Pressiona(jogo.c().Text1(cruzamento));
    EXPECT_EQ(jogo.d().estado.item, itens.primeiro);
    Ouvinte::Pressiona(jogo.c().Label4);
    EXPECT_EQ(jogo.maquina.mensagens.size(), 1);
    jogo.Resolve(7);
    Ouvinte::Pressiona(Entrada(jogo, 1));
    EXPECT_EQ(ContaResolvidos(jogo.d().tabuleiro), 0);
    EXPECT_EQ(Entrada(jogo, 1).BorderStyle(), 0);
    Ouvinte::Pressiona(Entrada(jogo, 5));
    Ouvinte::Pressiona(jogo.c().Image2);
    EXPECT_EQ(jogo.maquina.fins, 2);
    EXPECT_EQ(Ouvinte::Nome(jogo.c().Image8), QStringLiteral("Sobre o Quadrelo"));
}

TEST(Acessibilidade, PressesNothingWhileABoardIsBuilt)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    const toolkit::TextBox &celula = Comeco(jogo, 4);
    int vezes = 0;
    const std::function<void()> noMeio = [&] {
        if (!jogo.c().Picespere.Visible()) {
            QTimer::singleShot(0, &jogo.form->Janela(), noMeio);
            return;
        }
        ++vezes;
        EXPECT_EQ(Ouvinte::Nome(jogo.c().Picespere), QStringLiteral("Por favor aguarde"));
        std::vector<const toolkit::Control *> todos = {&jogo.c().Lbt(7), &celula};
        for (int k = 1; k <= 5; ++k) {
            EXPECT_TRUE(Ouvinte::Inativo(Entrada(jogo, k))) << k;
            todos.push_back(&Entrada(jogo, k));
        }
        // The build's own events carry these out.
        for (const toolkit::Control *um : todos) {
            Ouvinte::De(*um).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
    };
    QTimer::singleShot(0, &jogo.form->Janela(), noMeio);
    Ouvinte::Pressiona(Entrada(jogo, 0));
    EXPECT_EQ(vezes, 1);
    EXPECT_EQ(jogo.maquina.fins, 0);
    EXPECT_EQ(jogo.maquina.sons,
              QStringList({QStringLiteral("click.wav"), QStringLiteral("select.wav")}));
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_FALSE(Ouvinte::Inativo(Entrada(jogo, 1)));
}

TEST(Acessibilidade, AnnouncesEachMessageAndKeepsThePlayerInItsBox)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    bool achada = false;
    QTimer::singleShot(0, &jogo.form->Janela(), [&] {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(caixa, nullptr);
        for (const QAccessibleInterface *um :
             Ouvinte::Arvore(*QAccessible::queryAccessibleInterface(caixa))) {
            achada = achada || um->text(QAccessible::Name) == QStringLiteral("Uma\nmensagem");
        }
        Ouvinte::Pressiona(jogo.c().Lbt(5));
        Ouvinte::Pressiona(Entrada(jogo, 5));
        caixa->reject();
    });
    toolkit::MostraMensagem(QStringLiteral("Quadrelo"), {QStringLiteral("Uma\rmensagem")});
    EXPECT_TRUE(achada);
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert), QStringList{QStringLiteral("Quadrelo")});
    EXPECT_EQ(jogo.d().estado.item, 1);
    EXPECT_EQ(jogo.maquina.fins, 0);
}

TEST(Acessibilidade, AnnouncesJudgementsHelpAndGivingUp)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    static_cast<void>(Ouvinte::Ouvidos(QAccessible::Focus));
    jogo.Digita(QString(jogo.d().Item(1).Palavra.size(), u'0'));
    EXPECT_EQ(
        Ouvinte::Ouvidos(QAccessible::Alert),
        QStringList{QStringLiteral("Palavra errada. As letras não confirmadas foram apagadas.")});
    EXPECT_TRUE(
        Ouvinte::Ouvidos(QAccessible::Focus)
            .last()
            .contains(QStringLiteral("1 %1, letra 1 de ")
                          .arg(jogo.d().Item(1).Sentido == u'H' ? u"horizontal" : u"vertical")));
    jogo.Resolve(1);
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert),
              QStringList{QStringLiteral("Palavra certa: %1. Resolvidas: 1 de 26.")
                              .arg(jogo.d().Item(1).Palavra)});
    JogoDeTeste::Clica(jogo.c().Label4);
    const QStringList dada = Ouvinte::Ouvidos(QAccessible::Alert);
    ASSERT_EQ(dada.size(), 1);
    EXPECT_TRUE(dada[0].contains(QStringLiteral("Letra dada: ")));
    jogo.ResolveAte(10);
    static_cast<void>(Ouvinte::Ouvidos(QAccessible::Alert));
    JogoDeTeste::Clica(Entrada(jogo, 0));
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert),
              QStringList{QStringLiteral("Você desistiu. A solução está no tabuleiro.")});
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::ObjectShow).filter(QStringLiteral("desistiu")).size(),
              1)
        << "screen readers on Linux take no alerts, but notifications that come up";
}

TEST(Acessibilidade, AnnouncesTheBubbleWithTheDirectionsThatItsArrowsShow)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    const int cruzamento = Cruzamento(jogo);
    JogoDeTeste::Paira(jogo.c().Text1(cruzamento));
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert), QStringList())
        << "nothing before the first bubble comes up";
    jogo.c().Timer3.Tique();
    const ItensDaCelula itens = LeItens(jogo.d().Quadrado(cruzamento).Itens);
    const RegistroItem &a = jogo.d().Item(itens.primeiro);
    const RegistroItem &b = jogo.d().Item(itens.segundo);
    const bool aDeitada = a.Sentido == u'H';
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert),
              QStringList{QStringLiteral("Horizontal: %1; vertical: %2")
                              .arg((aDeitada ? a : b).Dica, (aDeitada ? b : a).Dica)});
}

TEST(Acessibilidade, TellsWhichNamesHaveChanged)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    // Only what has been read can be out of date.
    const QString relogio = Ouvinte::Nome(jogo.c().Label2);
    const QString celula = Ouvinte::Nome(Comeco(jogo, 1));
    static_cast<void>(Ouvinte::Ouvidos(QAccessible::NameChanged));
    jogo.maquina.agora += 65;
    jogo.c().Timer1.Tique();
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::NameChanged),
              QStringList{QStringLiteral("Tempo de jogo: 1 minuto e 5 segundos")});
    jogo.Digita(QStringLiteral("a"));
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::NameChanged),
              QStringList{QString(celula).replace(QStringLiteral("vazia"), QStringLiteral("A"))});
}

TEST(Acessibilidade, WritesOnlyWhereTheCursorStands)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    jogo.Comeca();
    Escreve(Comeco(jogo, 9), QStringLiteral("b"));
    EXPECT_EQ(Comeco(jogo, 9).Text(), QString());
    const QString palavra = jogo.d().Item(1).Palavra;
    for (const QChar letra : palavra) {
        Escreve(jogo.c().Text1(jogo.d().estado.Focus), QString(letra).toLower());
    }
    EXPECT_TRUE(jogo.d().Item(1).ItemResolvido);
    EXPECT_EQ(Ouvinte::De(Comeco(jogo, 1)).text(QAccessible::Value), QString(palavra[0]));
}

TEST(Acessibilidade, BannerLeavesTheTreeWithItsSecond)
{
    const Ouvinte ouvinte;
    JogoDeTeste jogo;
    std::unique_ptr<Form1> principal;
    FrmSplash banner(jogo.valores, jogo.Dialogo().ambiente, principal, toolkit::kDpiPadrao);
    banner.Show();
    QAccessibleInterface &aplicacao = *QAccessible::queryAccessibleInterface(qApp);
    QAccessibleInterface *dele = QAccessible::queryAccessibleInterface(banner.Janela());
    EXPECT_GE(aplicacao.indexOfChild(dele), 0);
    EXPECT_EQ(banner.Janela()->windowType(), Qt::SplashScreen) << "it stands in the task bar";
    for (int volta = 0; volta < 100 && banner.Janela() != nullptr; ++volta) {
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(banner.Janela(), nullptr);
    for (int k = 0; k < aplicacao.childCount(); ++k) {
        EXPECT_NE(aplicacao.child(k)->rect().size(), QSize(361, 90)) << k;
    }
}

TEST(Acessibilidade, AddsNoTabStop)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    for (const QWidget *um : jogo.form->Janela().findChildren<QWidget *>()) {
        const bool celula = um->objectName().startsWith(QStringLiteral("Text1("));
        EXPECT_EQ((um->focusPolicy() & Qt::TabFocus) != 0, celula)
            << um->objectName().toStdString();
    }
}

TEST(Acessibilidade, SaysNothingWhileNobodyListens)
{
    JogoDeTeste jogo;
    jogo.Comeca();
    jogo.Resolve(1);
    const Ouvinte ouvinte;
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::Alert), QStringList());
    EXPECT_EQ(Ouvinte::Ouvidos(QAccessible::NameChanged), QStringList());
}
