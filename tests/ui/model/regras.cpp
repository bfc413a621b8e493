#include "tests/ui/model/regras.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace modelo {

namespace {

const QString kAceitas = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ1234567890");
const QString kComAcento = QStringLiteral("ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜÇ");
const QString kSemAcento = QStringLiteral("AEIOUAEIOUAOAEIOUUC");

QString Capitais(const QString &texto)
{
    return texto.normalized(QString::NormalizationForm_C).toUpper();
}

bool LetraServe(QChar digitada, QChar certa)
{
    const auto k = kComAcento.indexOf(certa);
    return digitada == certa || (k >= 0 && digitada == kSemAcento[k]);
}

bool Combina(const QString &digitada, const QString &palavra)
{
    bool combina = digitada.size() == palavra.size();
    for (int k = 0; combina && k < palavra.size(); ++k) {
        combina = LetraServe(Capitais(digitada)[k], Capitais(palavra)[k]);
    }
    return combina;
}

QString SimNao(bool sim)
{
    return sim ? QStringLiteral("True") : QStringLiteral("False");
}

QString Chave(const char *secao, int n, const QString &chave)
{
    return QStringLiteral("%1%2/%3").arg(QString::fromLatin1(secao)).arg(n).arg(chave);
}

} // namespace

QString Tempo(int segundos)
{
    return QStringLiteral("%1:%2:%3")
        .arg(segundos / 3600, 2, 10, QChar(u'0'))
        .arg(segundos / 60 % 60, 2, 10, QChar(u'0'))
        .arg(segundos % 60, 2, 10, QChar(u'0'));
}

// ---- The new game

void Regras::NovoJogo()
{
    Desistiu = false;
    timers[4] = timers[1] = false;
    relogio = QStringLiteral("00:00:00");
    dica.clear();
    escudo = painel = true;
    socorro = false;
    Zera();
    aoCederNoPainel();
    const Montado jogo = montado();
    itens = jogo.itens;
    for (int n = 1; n <= kPalavras; ++n) {
        Poe(n, false);
    }
    item = Focus = 0;
    TudoResolvido = false;
    Centra();
    // A build that failed shows in one more opening of the board that stands at last.
    for (int vez = 0; vez <= jogo.falhas; ++vez) {
        Seleciona(1);
        NoClick = true;
    }
    timers[4] = timers[1] = true;
    HoraInicio = agora;
    painel = escudo = desistir = false;
    socorro = true;
}

void Regras::Zera()
{
    ++m_partida;
    for (Item &um : itens) {
        um.aceso = um.resolvido = um.marca = false;
        um.botao = true;
    }
    for (Casa &casa : casas) {
        casa = {};
    }
}

/// Lays a word on the board.
void Regras::Poe(int n, bool resolvido)
{
    for (int k = 0; k < I(n).palavra.size(); ++k) {
        Casa &casa = C(CasaDe(n, k));
        casa.letra = I(n).palavra[k];
        casa.sentido = casa.itens.isEmpty() ? I(n).sentido : QChar(u'M');
        casa.itens << n;
        casa.fixa = casa.fixa || resolvido;
        casa.visivel = true;
        casa.chao = casa.fixa ? Chao::Azul : Chao::Branco;
        casa.texto = casa.fixa ? QString(casa.letra) : QString();
    }
}

/// Puts the middle of the used cells into the middle of the sheet, in pixels.
void Regras::Centra()
{
    int cima = kCasas, baixo = 0, esquerda = kCasas, direita = 0;
    for (int i = 1; i <= kCasas; ++i) {
        if (Visivel(i)) {
            const int left = 12 + 18 * ((i - 1) % 26);
            const int top = 13 + 18 * ((i - 1) / 26);
            cima = std::min(cima, top);
            baixo = std::max(baixo, top + 19);
            esquerda = std::min(esquerda, left);
            direita = std::max(direita, left + 19);
        }
    }
    folhaLeft = (492 - (direita - esquerda)) / 2.0 - esquerda;
    folhaTop = (415 - (baixo - cima)) / 2.0 - cima;
}

// ---- Selection

int Regras::CasaDe(int n, int k) const
{
    return I(n).ponto + (I(n).sentido == u'H' ? k : 26 * k);
}

QList<int> Regras::CasasDe(int n) const
{
    QList<int> todas;
    for (int k = 0; k < I(n).palavra.size(); ++k) {
        todas << CasaDe(n, k);
    }
    return todas;
}

int Regras::Resolvidos() const
{
    return static_cast<int>(
        std::count_if(itens.begin() + 1, itens.end(), [](const Item &um) { return um.resolvido; }));
}

int Regras::Aberto() const
{
    int n = 1;
    while (n <= kPalavras && I(n).resolvido) {
        ++n;
    }
    return n;
}

void Regras::Seleciona(int n)
{
    if (NoClick) {
        Som(QStringLiteral("select.wav"));
    }
    NoClick = true;
    if (Desistiu) {
        dica = I(n).dica;
        return;
    }
    if (I(n).resolvido) {
        return;
    }
    marcador = true;
    marcadorLeft = 195 + 315 * (n - 1) - 30;
    I(item).aceso = false;
    const QList<int> velhas = item == 0 ? QList<int>() : CasasDe(item);
    for (const int i : velhas) {
        if (!C(i).fixa) {
            Escreve(i, {});
            C(i).chao = Chao::Branco;
        }
    }
    Focus = 0;
    const QList<int> novas = CasasDe(n);
    for (const int i : novas) {
        if (!C(i).fixa) {
            C(i).chao = Chao::Amarelo;
            Focus = Focus == 0 ? i : Focus;
        }
    }
    item = n;
    dica = I(n).dica;
    I(n).aceso = true;
    if (Focus == 0) {
        Verifica(n);
    }
}

void Regras::ApertaCasa(int i)
{
    if (Desistiu || C(i).itens.isEmpty()) {
        return;
    }
    const int a = C(i).itens.first();
    const int b = C(i).itens.last();
    if (I(a).resolvido && I(b).resolvido) {
        return;
    }
    if (a != b && !I(a).resolvido && !I(b).resolvido) {
        m_alterna = !m_alterna;
        Seleciona(m_alterna ? b : a);
        return;
    }
    Seleciona(I(a).resolvido ? b : a);
}

// ---- Letters and words

void Regras::Digita(const QString &texto)
{
    if (Focus != 0 && !painel) {
        Escreve(Focus, C(Focus).texto + texto);
    }
}

void Regras::Escreve(int i, const QString &texto)
{
    if (C(i).texto != texto) {
        C(i).texto = texto;
        Mudou(i);
    }
}

void Regras::Mudou(int i)
{
    if (Desistiu) {
        Escreve(i, Capitais(QString(C(i).letra)));
        return;
    }
    const int w = item;
    while (w != 0 && !C(i).texto.isEmpty()) {
        const QString texto = C(i).texto;
        if (texto != Capitais(texto)) {
            Escreve(i, Capitais(texto));
            return;
        }
        if (!kAceitas.contains(texto)) {
            Escreve(i, {});
            return;
        }
        const int proxima = i + (I(w).sentido == u'H' ? 1 : 26);
        if (!Visivel(proxima)) {
            Verifica(w);
            return;
        }
        if (!C(proxima).fixa) {
            Focus = proxima;
            return;
        }
        i = proxima;
    }
}

void Regras::Verifica(int n)
{
    Focus = 0;
    const QList<int> todas = CasasDe(n);
    QString digitada;
    for (const int i : todas) {
        digitada += C(i).texto;
    }
    NoClick = false;
    if (!Combina(digitada, I(n).palavra)) {
        Som(Sorteia(50) ? QStringLiteral("erro1.wav") : QStringLiteral("erro2.wav"));
        for (const int i : todas) {
            if (!C(i).fixa) {
                Escreve(i, {});
                C(i).chao = Chao::Branco;
            }
        }
        Seleciona(n);
        return;
    }
    Som(Sorteia(60) ? QStringLiteral("acerto1.wav") : QStringLiteral("acerto2.wav"));
    for (const int i : todas) {
        Casa &casa = C(i);
        casa.chao = Chao::Azul;
        casa.fixa = true;
        // Where a paste has left another letter, or several, the cell takes the word's own.
        if (casa.texto.size() != 1 || !LetraServe(casa.texto[0], casa.letra)) {
            casa.texto = casa.letra;
        }
    }
    I(n).resolvido = true;
    SomeNoTab(n);
    const int partida = m_partida;
    aoCeder();
    if (partida != m_partida || Desistiu) {
        return;
    }
    desistir = Resolvidos() >= 10;
    if (Resolvidos() == kPalavras) {
        Termina();
        return;
    }
    Focus = 0;
    Seleciona(n < kPalavras && !I(n + 1).resolvido ? n + 1 : Aberto());
}

void Regras::Termina()
{
    timers[1] = false;
    TudoResolvido = true;
    socorro = desistir = false;
    Focus = 0;
    if (!EntraNoRanking(static_cast<int>(std::floor(agora - HoraInicio)))) {
        Mensagem(QStringLiteral("Ok"), QStringLiteral("Parabéns !!!"));
    }
}

void Regras::SomeNoTab(int n)
{
    const bool antes = n == 1 || I(n - 1).resolvido;
    const bool depois = n == kPalavras || I(n + 1).resolvido;
    // A second judgement of the same word finds the mark there and widens it.
    const int largura = I(n).marca ? I(n).marcaWidth : 300;
    I(n).marca = true;
    I(n).botao = false;
    I(n).marcaLeft = 195 + 315 * (n - 1) - 30 - (antes ? 1 : 0);
    I(n).marcaWidth = largura + (antes ? 1 : 0) + (depois ? 1 : 0);
}

// ---- The mouse and the bubble

bool Regras::Alcanca(const Alvo &alvo, const Alvo &real) const
{
    static const QStringList kBalao = {QStringLiteral("Picture2"), QStringLiteral("LbHint"),
                                       QStringLiteral("ImgHintDire"),
                                       QStringLiteral("ImgHintDire2")};
    static const QStringList kPainel = {QStringLiteral("Picespere"), QStringLiteral("Image7"),
                                        QStringLiteral("PicUpdate")};
    if (balao && kBalao.contains(real.nome)) {
        return true;
    }
    if (painel && (alvo.nome == u"Text1" || alvo.nome == u"Pic_q2" || alvo.nome == u"Pic_q1")) {
        return kPainel.contains(real.nome);
    }
    if (alvo.nome == u"Lbt" && !I(alvo.n).botao) {
        return real == Alvo{QStringLiteral("ImgR"), alvo.n};
    }
    if (alvo.nome == u"Label3" && alvo.n > 0 && escudo) {
        return real.nome == u"Image4";
    }
    if (alvo.nome == u"Label4" && !socorro) {
        return real.nome == u"Form1";
    }
    // Numbers and the sheet's own edge lie there, too.
    return alvo == real || (alvo.nome == u"Pic_q2" &&
                            (real.nome == u"LB" || real.nome == u"Pic_q1" || real.nome == u"Form1"));
}

void Regras::Move(const Alvo &alvo)
{
    if (alvo.nome == u"Text1") {
        Paira(alvo.n);
    } else if (alvo.nome == u"Form1" || alvo.nome == u"Pic_q1" || alvo.nome == u"Pic_q2" ||
               alvo.nome == u"Picespere") {
        balao = timers[3] = false;
        avisoa.clear();
    }
}

void Regras::Clica(const Alvo &alvo, bool dupla)
{
    if (alvo.nome == u"Text1") {
        ApertaCasa(alvo.n);
        if (dupla) {
            ApertaCasa(alvo.n);
        }
    } else if (alvo.nome == u"Lbt" && !painel) {
        Seleciona(alvo.n);
        // The second click may find the mark where the button was.
        if (dupla && I(alvo.n).botao) {
            Seleciona(alvo.n);
        }
    } else if (alvo.nome == u"Label3") {
        Menu(alvo.n);
    } else if (alvo.nome == u"Label4") {
        Socorro();
    } else if (alvo.nome == u"Image2") {
        Som(QStringLiteral("click.wav"));
        log << QStringLiteral("fim");
    } else if (alvo.nome == u"Image8") {
        Dialogo(QStringLiteral("FrmSobre"));
    }
}

void Regras::Paira(int i)
{
    if (Desistiu || C(i).itens.isEmpty()) {
        return;
    }
    const Item &a = I(C(i).itens.first());
    const Item &b = I(C(i).itens.last());
    const bool cruza = C(i).itens.size() > 1;
    QString h;
    if (a.resolvido && b.resolvido) {
        balao = false;
        seta = cruza ? false : seta;
        return;
    }
    if (!cruza) {
        seta = seta2 = false;
        h = a.dica;
    } else if (a.resolvido || b.resolvido) {
        const Item &m = a.resolvido ? b : a;
        seta = m.sentido == u'H';
        seta2 = m.sentido == u'V';
        h = m.dica;
    } else {
        seta2 = false;
        seta = true;
        h = (a.sentido == u'H' ? a : b).dica + u'\r' + (b.sentido == u'V' ? b : a).dica;
    }
    if (h == avisoa) {
        return;
    }
    balao = false;
    textoBalao = h;
    balaoLeft = static_cast<int>(std::lround(75 + 15 * (folhaLeft + 12 + 18 * ((i - 1) % 26) + 19)));
    balaoBaixo = static_cast<int>(std::lround(480 + 15 * (folhaTop + 13 + 18 * ((i - 1) / 26))));
    extraBalao = QStringLiteral("270|90");
    timers[2] = false;
    timers[3] = true;
}

// ---- The clock

void Regras::Tique(int timer)
{
    if (!timers[static_cast<size_t>(timer)]) {
        return;
    }
    if (timer == 1 && !Desistiu) {
        relogio = Tempo(static_cast<int>(std::floor(agora - HoraInicio)));
    } else if (timer == 2) {
        balao = timers[2] = false;
    } else if (timer == 3) {
        balao = timers[2] = true;
        timers[3] = false;
        avisoa = textoBalao;
    } else if (timer == 4) {
        timers[4] = false;
        GravaUsadas();
    }
}

void Regras::GravaUsadas()
{
    const auto chave = [](int k) { return Chave("Indice/Palavra", k, {}).chopped(1); };
    for (int k = 520; k > kPalavras; --k) {
        usadas[chave(k)] = usadas.value(chave(k - kPalavras));
    }
    for (int k = 1; k <= kPalavras; ++k) {
        usadas[chave(k)] = I(k).palavra;
    }
}

// ---- The commands

void Regras::Menu(int k)
{
    Som(QStringLiteral("click.wav"));
    switch (k) {
    case 0:
        if (desistir) {
            Desiste();
        } else if (!painel) {
            NovoJogo();
        }
        break;
    case 1:
        TudoResolvido ? void(Mensagem(QStringLiteral("Ok"),
                                      QStringLiteral("O jogo atual já está resolvido.\rClique em "
                                                     "'Novo Jogo'")))
                      : Reinicia();
        break;
    case 2:
        Abre();
        break;
    case 3:
        TudoResolvido
            ? void(Mensagem(QStringLiteral("Ok"),
                            QStringLiteral("O jogo atual já está completamente resolvido")))
            : Salva();
        break;
    case 4:
        MostraRanking();
        break;
    default:
        log << QStringLiteral("fim");
    }
}

void Regras::Desiste()
{
    Desistiu = TudoResolvido = true;
    desistir = false;
    for (Item &um : itens) {
        um.resolvido = true;
    }
    for (int i = 1; i <= kCasas; ++i) {
        const QString certa = Capitais(QString(C(i).letra));
        if (Visivel(i) && !C(i).fixa && C(i).texto != certa) {
            C(i).texto = certa;
            C(i).vermelha = true;
        }
        C(i).itens.clear();
        C(i).fixa = true;
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
    if (!Mensagem(
            QStringLiteral("OkCancelar"),
            QStringLiteral("Uma letra será revelada e dois minutos serão acrescentados ao seu "
                           "tempo"))) {
        return;
    }
    int c = ProcuraVazia(true);
    c = c == 0 ? ProcuraVazia(false) : c;
    if (c == 0) {
        return;
    }
    const int partida = m_partida;
    Escreve(c, C(c).letra);
    if (partida != m_partida) {
        return;
    }
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
        if (Visivel(c) && C(c).texto.isEmpty() && (!soCruzamentos || C(c).sentido == u'M')) {
            return c;
        }
    }
    return 0;
}

// ---- Saved games

QString Regras::NomeDoSlot(int n) const
{
    return jogos.value(Chave("jogo", n, QStringLiteral("Nome"))).trimmed();
}

QStringList Regras::Slots(const QString &vazio) const
{
    QStringList nomes;
    for (int n = 1; n <= 10; ++n) {
        nomes << (NomeDoSlot(n).isEmpty() ? vazio : NomeDoSlot(n));
    }
    return nomes;
}

void Regras::Abre()
{
    const QStringList nomes = Slots(QStringLiteral("Vazio"));
    Dialogo(QStringLiteral("FrmCarregar ") + nomes.join(u'|'));
    if (respostas.slot <= 11) {
        Som(QStringLiteral("click.wav"));
    }
    if (respostas.slot > 10) {
        return;
    }
    if (nomes[respostas.slot - 1] == u"Vazio") {
        Mensagem(QStringLiteral("Ok"), QStringLiteral("Não há jogo salvo neste local"));
        // The list stays, and the player leaves it by "Cancelar".
        Som(QStringLiteral("click.wav"));
        return;
    }
    const bool som = std::exchange(SomLigado, false);
    if (danificados.contains(respostas.slot)) {
        Mensagem(QStringLiteral("Ok"),
                 QStringLiteral("O jogo salvo neste local está danificado e não pode ser aberto."));
    } else {
        Carrega(respostas.slot);
    }
    SomLigado = som;
}

void Regras::Carrega(int slot)
{
    const auto le = [this, slot](const char *chave, int n) {
        return jogos.value(Chave("jogo", slot, QString::fromLatin1(chave) + QString::number(n)));
    };
    Desistiu = false;
    escudo = painel = true;
    timers[1] = false;
    relogio = QStringLiteral("00:00:00");
    Zera();
    Focus = 0;
    aoCederNoPainel();
    for (int n = 1; n <= kPalavras; ++n) {
        I(n).palavra = le("Palavra", n);
        I(n).dica = le("Dica", n);
        I(n).ponto = le("Ponto", n).toInt();
        I(n).sentido = le("Sentido", n)[0];
        I(n).resolvido = le("ItemResolvido", n) == u"True";
        Poe(n, I(n).resolvido);
        if (I(n).resolvido) {
            SomeNoTab(n);
        }
    }
    Centra();
    if (Aberto() <= kPalavras) {
        Seleciona(Aberto());
    }
    socorro = true;
    desistir = Resolvidos() >= 10;
    Mensagem(QStringLiteral("Ok"), QStringLiteral("Serão acrescentados 2 minutos ao seu tempo"));
    const QString tempo = jogos.value(Chave("jogo", slot, QStringLiteral("Tempo")));
    HoraInicio = agora - (QString(tempo).replace(u',', u'.').toDouble() + 120);
    timers[1] = true;
    painel = escudo = TudoResolvido = false;
}

void Regras::Salva()
{
    const QString livre = QStringLiteral("Salvar aqui");
    const QStringList nomes = Slots(livre);
    Dialogo(QStringLiteral("FrmSalvar ") + nomes.join(u'|'));
    if (respostas.slot <= 11) {
        Som(QStringLiteral("click.wav"));
    }
    if (respostas.slot > 10) {
        return;
    }
    const int n = respostas.slot;
    const QString velho = nomes[n - 1] == livre ? QString() : nomes[n - 1];
    if (!velho.isEmpty() &&
        !Mensagem(QStringLiteral("SimNao?"), QStringLiteral("Deseja sobregravar %1?").arg(velho))) {
        return;
    }
    Dialogo(QStringLiteral("FrmSalvar2 %1 %2 %2").arg(n).arg(velho));
    if (respostas.desisteDoNome) {
        return;
    }
    const QString nome = respostas.mantemNome ? velho : respostas.nome.left(14);
    const auto grava = [this, n](const QString &chave, const QString &valor) {
        jogos[Chave("jogo", n, chave)] = valor;
    };
    grava(QStringLiteral("Nome"), nome.isEmpty() ? QStringLiteral("Sem nome %1").arg(n) : nome);
    for (int k = 1; k <= kPalavras; ++k) {
        grava(QStringLiteral("Palavra%1").arg(k), I(k).palavra);
        grava(QStringLiteral("Dica%1").arg(k), I(k).dica);
        grava(QStringLiteral("Ponto%1").arg(k), QString::number(I(k).ponto));
        grava(QStringLiteral("Sentido%1").arg(k), I(k).sentido);
        grava(QStringLiteral("ItemResolvido%1").arg(k), SimNao(I(k).resolvido));
    }
    grava(QStringLiteral("Tempo"), QString::number(agora - HoraInicio, 'f', 2));
    danificados.removeAll(n);
}

// ---- The ranking

bool Regras::EntraNoRanking(int t)
{
    const auto nome = [](int p) { return Chave("Ranking", p, QStringLiteral("Nome")); };
    const auto tempo = [](int p) { return Chave("Ranking", p, QStringLiteral("Tempo")); };
    int p = 1;
    while (p <= 5 &&
           t >= (ranking.value(tempo(p)).isEmpty() ? 999999 : ranking[tempo(p)].toInt())) {
        ++p;
    }
    if (p > 5) {
        return false;
    }
    Dialogo(QStringLiteral("FrmSeuNome"));
    for (int j = 5; j > p; --j) {
        ranking[nome(j)] = ranking.value(nome(j - 1)).trimmed();
        ranking[tempo(j)] = ranking.value(tempo(j - 1));
    }
    const QString dado = respostas.nome.left(14).trimmed();
    ranking[nome(p)] = (dado.isEmpty() ? QStringLiteral("Sem Nome") : dado).leftJustified(14);
    ranking[tempo(p)] = QString::number(t);
    MostraRanking();
    return true;
}

void Regras::MostraRanking()
{
    QString linhas;
    for (int p = 1; p <= 5; ++p) {
        const QString nome = ranking.value(Chave("Ranking", p, QStringLiteral("Nome"))).trimmed();
        const int t = ranking.value(Chave("Ranking", p, QStringLiteral("Tempo"))).toInt();
        linhas += QStringLiteral("0%1 ").arg(p) +
                  (nome.isEmpty() ? QStringLiteral(". .|") : Tempo(t) + u' ' + nome + u'|');
    }
    Dialogo(QStringLiteral("FrmHanking ") + linhas);
}

// ---- What the machine gives

bool Regras::Sorteia(int p)
{
    ++sorteios;
    const double u = sorte.front();
    sorte.pop_front();
    return static_cast<int>(u * 100) + 1 < p;
}

void Regras::Som(const QString &nome)
{
    if (SomLigado) {
        log << QStringLiteral("som ") + nome;
    }
}

bool Regras::Mensagem(const QString &botoes, const QString &texto)
{
    log << botoes + u' ' + texto;
    momentos << Mostra();
    agora += kSegundosDeMensagem;
    return respostas.aceita;
}

void Regras::Dialogo(const QString &texto)
{
    log << texto;
    momentos << Mostra();
    agora += kSegundosDeDialogo;
}

} // namespace modelo
