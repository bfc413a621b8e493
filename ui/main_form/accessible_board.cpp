#include "ui/main_form/accessible_board.h"

#include "core/machine/texts.h"

#include <QEvent>

namespace {

using toolkit::Papel;

/// Reading order of the form's parts; the items stand behind kOrdemItens one by one.
enum Ordem {
    kOrdemDica = 1,
    kOrdemRelogio,
    kOrdemAguarde,
    kOrdemTabuleiro,
    kOrdemItens,
    kOrdemMenu = kOrdemItens + kItens + 1,
    kOrdemTitulo = kOrdemMenu + 10,
};

/// A command's name and what it does.
struct Comando
{
    QString nome;
    QString descricao;
};

std::function<QString()> Fixo(const QString &texto)
{
    return [texto] { return texto; };
}

void DescreveComando(toolkit::Control &controle, const Comando &comando, int ordem)
{
    controle.SetAcessivel({.papel = Papel::Botao,
                           .nome = Fixo(comando.nome),
                           .descricao = Fixo(comando.descricao),
                           .ordem = ordem});
}

} // namespace

TabuleiroAcessivel::TabuleiroAcessivel(const ContextoJogo &jogo)
    : d(jogo), m_anunciador(jogo.c.form)
{
}

void TabuleiroAcessivel::Descreve()
{
    DescreveCelulas();
    DescreveItens();
    DescreveComandos();
    DescreveResto();
    d.c.Picture2.Widget()->installEventFilter(this);
}

void TabuleiroAcessivel::DescreveCelulas()
{
    d.c.Pic_q1.SetAcessivel({.papel = Papel::Grupo,
                             .nome = Fixo(QStringLiteral("Tabuleiro")),
                             .descricao = [this] { return FalaResolvidos(Resolvidos()); },
                             .presente = [this] { return !d.estado.Aguardando; },
                             .ordem = kOrdemTabuleiro});
    for (int i = 1; i <= kCelulas; ++i) {
        d.c.Text1(i).SetAcessivel(
            {.nome = [this, i] { return NomeDaCelula(i); },
             .descricao = [this, i] { return FalaDicas(d.tabuleiro, i, d.estado.item); },
             .ordem = i});
    }
}

/// Items that the player has solved; the marks know, also when giving up has closed the others.
int TabuleiroAcessivel::Resolvidos() const
{
    int quantos = 0;
    for (int n = 1; n <= kItens; ++n) {
        quantos += d.c.ImgR.ExisteObjeto(n) ? 1 : 0;
    }
    return quantos;
}

QString TabuleiroAcessivel::NomeDaCelula(int i) const
{
    const toolkit::TextBox &celula = d.c.Text1(i);
    // Giving up fixes all letters; the colour of a letter alone remembers whose it is.
    const LetraFalada letra = celula.ForeColor() == kCorRevelada ? LetraFalada::Revelada
                              : d.Quadrado(i).Fixa               ? LetraFalada::Confirmada
                                                                 : LetraFalada::Digitada;
    return FalaCelula(d.tabuleiro, i, d.estado.item, celula.Text(), letra);
}

void TabuleiroAcessivel::DescreveItens()
{
    for (int n = 1; n <= kItens; ++n) {
        d.c.Lbt(n).SetAcessivel({.papel = Papel::Botao,
                                 .nome = [this, n] { return NomeDoItem(n); },
                                 .ordem = kOrdemItens + n});
        // The cells already say where each item lies.
        d.c.LB(n).SetAcessivel({.papel = Papel::Nenhum});
    }
    d.c.ImgR.AoCarregar = [this](toolkit::Image &marca, int n) {
        marca.SetAcessivel({.papel = Papel::Texto,
                            .nome = [this, n] { return NomeDoItem(n); },
                            .ordem = kOrdemItens + n});
    };
}

QString TabuleiroAcessivel::NomeDoItem(int n) const
{
    // Giving up counts all items as solved, but leaves the buttons of those that the player did not
    // solve.
    const ItemFalado estado = d.c.ImgR.ExisteObjeto(n) ? ItemFalado::Resolvido
                              : d.valores.Desistiu     ? ItemFalado::Revelado
                                                       : ItemFalado::Aberto;
    return FalaItem(d.tabuleiro, n, d.estado.item, estado);
}

void TabuleiroAcessivel::DescreveComandos()
{
    const std::array comandos = {
        Comando{QStringLiteral("Reiniciar"),
                QStringLiteral("Apaga as letras e recomeça o mesmo jogo")},
        Comando{QStringLiteral("Abrir"), QStringLiteral("Abre um jogo salvo")},
        Comando{QStringLiteral("Salvar"), QStringLiteral("Salva o jogo atual")},
        Comando{QStringLiteral("Ranking"), QStringLiteral("Mostra os cinco melhores tempos")},
        Comando{QStringLiteral("Sair"), QStringLiteral("Fecha o Quadrelo sem salvar o jogo")},
    };
    const Comando novoJogo{QStringLiteral("Novo Jogo"),
                           QStringLiteral("Abandona o jogo atual e monta outro")};
    const Comando desistir{QStringLiteral("Desistir"),
                           QStringLiteral("Termina o jogo e mostra a solução")};
    const auto primeiro = [this, novoJogo, desistir] {
        return d.estado.PodeDesistir ? desistir : novoJogo;
    };
    d.c.Label3[0]->SetAcessivel({.papel = Papel::Botao,
                                 .nome = [primeiro] { return primeiro().nome; },
                                 .descricao = [primeiro] { return primeiro().descricao; },
                                 .ordem = kOrdemMenu});
    for (size_t k = 0; k < comandos.size(); ++k) {
        DescreveComando(*d.c.Label3[k + 1], comandos[k], kOrdemMenu + static_cast<int>(k) + 1);
    }
    DescreveComando(d.c.Label4, {QStringLiteral("Socorro"), texto::SocorroDescricao()},
                    kOrdemTitulo - 1);
    DescreveComando(d.c.Image8, {QStringLiteral("Sobre o Quadrelo"), {}}, kOrdemTitulo);
    DescreveComando(d.c.Image2, comandos.back(), kOrdemTitulo + 1);
}

void TabuleiroAcessivel::DescreveResto()
{
    d.c.Label1.SetAcessivel({.papel = Papel::Texto,
                             .nome =
                                 [this] {
                                     const QString dica = d.c.Label1.Caption();
                                     return dica.isEmpty()
                                                ? QStringLiteral("Nenhuma dica")
                                                : QStringLiteral("Dica: ") + FalaDica(dica);
                                 },
                             .ordem = kOrdemDica});
    d.c.Label2.SetAcessivel(
        {.papel = Papel::Relogio,
         .nome =
             [this] { return QStringLiteral("Tempo de jogo: ") + FalaTempo(d.c.Label2.Caption()); },
         .ordem = kOrdemRelogio});
    d.c.Picespere.SetAcessivel({.papel = Papel::Texto,
                                .nome = Fixo(QStringLiteral("Por favor aguarde")),
                                .ordem = kOrdemAguarde});
    d.c.Picture1.SetAcessivel({.papel = Papel::Painel,
                               .nome = [this] { return NomeSemCursor(); },
                               .ordem = kOrdemTabuleiro});
    d.c.Picture2.SetAcessivel({.papel = Papel::Balao, .nome = [this] { return NomeDoBalao(); }});
    d.c.LbHint.SetAcessivel({.papel = Papel::Nenhum});
}

/// What the keyboard is at where no cell has the cursor. Between one word and the next, when that
/// holds for a moment, nothing is to be said.
QString TabuleiroAcessivel::NomeSemCursor() const
{
    return d.estado.Aguardando      ? QStringLiteral("Por favor aguarde")
           : d.estado.TudoResolvido ? QStringLiteral("Jogo terminado")
                                    : QString();
}

QString TabuleiroAcessivel::NomeDoBalao() const
{
    return FalaBalao(d.c.LbHint.Caption(), d.c.ImgHintDire.Visible(), d.c.ImgHintDire2.Visible());
}

void TabuleiroAcessivel::PalavraJulgada(int i, bool certa)
{
    m_anunciador.Anuncia(
        FalaJulgamento(d.Item(i).Palavra, certa, ContaResolvidos(d.tabuleiro) + 1));
}

void TabuleiroAcessivel::LetraDada(int c)
{
    m_anunciador.Anuncia(FalaLetraDada(d.tabuleiro, c, d.estado.item));
}

void TabuleiroAcessivel::SolucaoMostrada()
{
    m_anunciador.Anuncia(QStringLiteral("Você desistiu. A solução está no tabuleiro."));
}

bool TabuleiroAcessivel::eventFilter(QObject *alvo, QEvent *evento)
{
    // Until the first hint the bubble waits, shown, below the form.
    if (evento->type() == QEvent::Show && !evento->spontaneous() &&
        d.c.Picture2.Top() < d.c.form.ScaleHeight()) {
        m_anunciador.Anuncia(NomeDoBalao());
    }
    return QObject::eventFilter(alvo, evento);
}
