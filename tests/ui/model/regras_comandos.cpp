#include "tests/ui/model/regras.h"

using namespace Qt::StringLiterals;

namespace modelo {

// ---- The commands

void Regras::Menu(int k)
{
    Som(u"click.wav"_s);
    if (k == 0 && !painel) return desistir ? Desiste() : NovoJogo();
    if (k == 1 && TudoResolvido)
        Mensagem(u"O jogo atual já está resolvido.\rClique em 'Novo Jogo'"_s);
    else if (k == 1)
        Reinicia();
    if (k == 2) Abre();
    if (k == 3 && TudoResolvido)
        Mensagem(u"O jogo atual já está completamente resolvido"_s);
    else if (k == 3)
        Salva();
    if (k == 4) MostraRanking();
    if (k == 5) log << u"fim"_s;
}

void Regras::Desiste()
{
    Desistiu = TudoResolvido = true;
    desistir = false;
    for (Item &um : itens)
        um.resolvido = true;
    for (Casa &casa : casas) {
        const QString certa = Capitais(casa.letra);
        casa.vermelha = casa.visivel && !casa.fixa && casa.texto != certa;
        if (casa.vermelha) casa.texto = certa;
        casa.itens.clear();
        casa.fixa = true;
    }
}

void Regras::Reinicia()
{
    for (Casa &casa : casas) {
        casa.texto.clear();
        casa.chao = Chao::Branco;
        casa.fixa = false;
    }
    for (Item &um : itens) {
        um.aceso = um.marca = um.resolvido = false;
        um.botao = true;
    }
    Seleciona(1);
}

void Regras::Socorro()
{
    const QString pergunta =
        u"Uma letra será revelada e dois minutos serão acrescentados ao seu tempo"_s;
    if (!Mensagem(pergunta, u"OkCancelar "_s)) return;
    int c = ProcuraVazia(true);
    c = c == 0 ? ProcuraVazia(false) : c;
    if (c == 0) return;
    const int partida = m_partida;
    Escreve(c, C(c).letra);
    if (partida != m_partida) return;
    HoraInicio -= 120;
    C(c).chao = Chao::Azul;
    C(c).fixa = true;
    Escreve(c, C(c).letra);
    ApertaCasa(c);
}

int Regras::ProcuraVazia(bool soCruzamentos)
{
    const bool paraCima = Sorteia(50);
    for (int k = 1; k <= kCasas; ++k) {
        const int c = paraCima ? k : kCasas + 1 - k;
        const bool serve = C(c).sentido == u'M' || !soCruzamentos;
        if (C(c).visivel && C(c).texto.isEmpty() && serve) return c;
    }
    return 0;
}

// ---- Saved games

QStringList Regras::Slots(const QString &vazio) const
{
    QStringList nomes;
    for (int n = 1; n <= 10; ++n) {
        const QString nome = jogos.value(u"jogo%1/Nome"_s.arg(n)).trimmed();
        nomes << (nome.isEmpty() ? vazio : nome);
    }
    return nomes;
}

/// The slot that the player picks in a list, or 0.
int Regras::EscolheSlot(const QString &form, const QStringList &nomes)
{
    Dialogo(form + u' ' + nomes.join(u'|'));
    if (respostas.slot <= 11) Som(u"click.wav"_s);
    return respostas.slot <= 10 ? respostas.slot : 0;
}

void Regras::Abre()
{
    const QStringList nomes = Slots(u"Vazio"_s);
    const int n = EscolheSlot(u"FrmCarregar"_s, nomes);
    if (n == 0) return;
    if (nomes[n - 1] == u"Vazio") {
        Mensagem(u"Não há jogo salvo neste local"_s);
        // The list stays, and the player leaves it by "Cancelar".
        return Som(u"click.wav"_s);
    }
    SomLigado = false;
    if (danificados.contains(n))
        Mensagem(u"O jogo salvo neste local está danificado e não pode ser aberto."_s);
    else
        Carrega(n);
    SomLigado = true;
}

void Regras::Carrega(int slot)
{
    const auto le = [&](const QString &chave, int n) {
        return jogos.value(u"jogo%1/%2%3"_s.arg(slot).arg(chave).arg(n));
    };
    Desistiu = timers[1] = socorro = false;
    escudo = painel = true;
    relogio = Tempo(0);
    Zera();
    Focus = 0;
    aoCederNoPainel();
    for (int n = 1; n <= kPalavras; ++n) {
        I(n).palavra = le(u"Palavra"_s, n);
        I(n).dica = le(u"Dica"_s, n);
        I(n).ponto = le(u"Ponto"_s, n).toInt();
        I(n).sentido = le(u"Sentido"_s, n)[0];
        I(n).resolvido = le(u"ItemResolvido"_s, n) == u"True";
        Poe(n, I(n).resolvido);
        if (I(n).resolvido) SomeNoTab(n);
    }
    Centra();
    const int aberto = Aberto();
    if (aberto <= kPalavras) Seleciona(aberto, false);
    Mensagem(u"Serão acrescentados 2 minutos ao seu tempo"_s);
    QString tempo = jogos.value(u"jogo%1/Tempo"_s.arg(slot));
    HoraInicio = agora - (tempo.replace(u',', u'.').toDouble() + 120);
    timers[1] = socorro = true;
    painel = escudo = TudoResolvido = false;
    desistir = Resolvidos() >= 10;
    // An item without a free cell is judged when the game has begun.
    if (aberto <= kPalavras && Focus == 0) Verifica(aberto);
}

void Regras::Salva()
{
    const QString livre = u"Salvar aqui"_s;
    const QStringList nomes = Slots(livre);
    const int n = EscolheSlot(u"FrmSalvar"_s, nomes);
    if (n == 0) return;
    const QString velho = nomes[n - 1] == livre ? QString() : nomes[n - 1];
    if (!velho.isEmpty() && !Mensagem(u"Deseja sobregravar %1?"_s.arg(velho), u"SimNao? "_s))
        return;
    Dialogo(u"FrmSalvar2 %1 %2 %2"_s.arg(n).arg(velho));
    if (respostas.desisteDoNome) return;
    const QString secao = u"jogo%1/"_s.arg(n);
    const QString nome = respostas.mantemNome ? velho : respostas.nome.left(14);
    jogos[secao + u"Nome"_s] = nome.isEmpty() ? u"Sem nome %1"_s.arg(n) : nome;
    for (int k = 1; k <= kPalavras; ++k) {
        jogos[secao + u"Palavra%1"_s.arg(k)] = I(k).palavra;
        jogos[secao + u"Dica%1"_s.arg(k)] = I(k).dica;
        jogos[secao + u"Ponto%1"_s.arg(k)] = QString::number(I(k).ponto);
        jogos[secao + u"Sentido%1"_s.arg(k)] = I(k).sentido;
        jogos[secao + u"ItemResolvido%1"_s.arg(k)] = I(k).resolvido ? u"True"_s : u"False"_s;
    }
    jogos[secao + u"Tempo"_s] = QString::number(agora - HoraInicio, 'f', 2);
    danificados.removeAll(n);
}

// ---- The ranking

bool Regras::EntraNoRanking(int t)
{
    const auto nome = [](int p) { return u"Ranking%1/Nome"_s.arg(p); };
    const auto tempo = [](int p) { return u"Ranking%1/Tempo"_s.arg(p); };
    const auto segundos = [&](int p) {
        const QString texto = ranking.value(tempo(p));
        return texto.isEmpty() ? 999999 : texto.toInt();
    };
    int p = 1;
    while (p <= 5 && t >= segundos(p))
        ++p;
    if (p > 5) return false;
    Dialogo(u"FrmSeuNome"_s);
    for (int j = 5; j > p; --j) {
        ranking[nome(j)] = ranking.value(nome(j - 1)).trimmed();
        ranking[tempo(j)] = ranking.value(tempo(j - 1));
    }
    const QString dado = respostas.nome.left(14).trimmed();
    ranking[nome(p)] = (dado.isEmpty() ? u"Sem Nome"_s : dado).leftJustified(14);
    ranking[tempo(p)] = QString::number(t);
    MostraRanking();
    return true;
}

void Regras::MostraRanking()
{
    QStringList linhas;
    for (int p = 1; p <= 5; ++p) {
        const QString nome = ranking.value(u"Ranking%1/Nome"_s.arg(p)).trimmed();
        const int t = ranking.value(u"Ranking%1/Tempo"_s.arg(p)).toInt();
        linhas << u"0%1 "_s.arg(p) + (nome.isEmpty() ? u". ."_s : Tempo(t) + u' ' + nome);
    }
    Dialogo(u"FrmHanking "_s + linhas.join(u'|'));
}

} // namespace modelo
