#include "tests/ui/model/regras.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace modelo {

namespace {

const QString kAceitas = u"ABCDEFGHIJKLMNOPQRSTUVWXYZÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ1234567890"_s;
const QString kComAcento = u"ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜÇ"_s;
const QString kSemAcento = u"AEIOUAEIOUAOAEIOUUC"_s;
constexpr int kFaixaLeft = 195, kPassoDaFaixa = 315, kRecuo = 30, kLarguraDaMarca = 300;

bool LetraServe(const QString &digitada, QChar certa)
{
    const auto k = kComAcento.indexOf(certa);
    return digitada == certa || (k >= 0 && digitada == kSemAcento[k]);
}

bool Combina(const QString &digitada, const QString &palavra)
{
    bool combina = digitada.size() == palavra.size();
    for (int k = 0; combina && k < palavra.size(); ++k)
        combina = LetraServe(digitada.mid(k, 1), palavra[k]);
    return combina;
}

} // namespace

QString Capitais(const QString &texto)
{
    return texto.normalized(QString::NormalizationForm_C).toUpper();
}

QString Tempo(int s)
{
    const QChar zero(u'0');
    const QString horas = u"%1:"_s.arg(s / 3600, 2, 10, zero);
    return horas + u"%1:%2"_s.arg(s / 60 % 60, 2, 10, zero).arg(s % 60, 2, 10, zero);
}

// ---- The board

void Regras::NovoJogo()
{
    Desistiu = socorro = timers[4] = timers[1] = false;
    relogio = Tempo(0);
    dica.clear();
    escudo = painel = true;
    Zera();
    aoCederNoPainel();
    const int falhas = montado(itens);
    for (int n = 1; n <= kPalavras; ++n)
        Poe(n, false);
    item = Focus = 0;
    TudoResolvido = false;
    Centra();
    // A build that failed shows in one more opening of the board that stands at last.
    for (int vez = 0; vez <= falhas; ++vez)
        Seleciona(1);
    HoraInicio = agora;
    timers[4] = timers[1] = socorro = true;
    painel = escudo = desistir = false;
}

void Regras::Zera()
{
    ++m_partida;
    casas.fill({});
    for (Item &um : itens) {
        um.aceso = um.resolvido = um.marca = false;
        um.botao = true;
    }
}

/// Lays a word on the board.
void Regras::Poe(int n, bool resolvido)
{
    const QList<int> todas = CasasDe(n);
    for (int k = 0; k < todas.size(); ++k) {
        Casa &casa = C(todas[k]);
        casa.letra = I(n).palavra[k];
        casa.sentido = casa.itens.isEmpty() ? I(n).sentido : QChar(u'M');
        casa.itens << n;
        casa.visivel = true;
        casa.fixa = casa.fixa || resolvido;
        casa.chao = casa.fixa ? Chao::Azul : Chao::Branco;
        casa.texto = casa.fixa ? QString(casa.letra) : QString();
    }
}

/// Puts the middle of the used cells into the middle of the sheet, in pixels.
void Regras::Centra()
{
    int cima = kCasas, baixo = 0, esquerda = kCasas, direita = 0;
    for (int i = 1; i <= kCasas; ++i) {
        if (!C(i).visivel) continue;
        cima = std::min(cima, (i - 1) / 26);
        baixo = std::max(baixo, (i - 1) / 26);
        esquerda = std::min(esquerda, (i - 1) % 26);
        direita = std::max(direita, (i - 1) % 26);
    }
    folhaLeft = (492 - (18 * (direita - esquerda) + 19)) / 2.0 - (12 + 18 * esquerda);
    folhaTop = (415 - (18 * (baixo - cima) + 19)) / 2.0 - (13 + 18 * cima);
}

QList<int> Regras::CasasDe(int n) const
{
    QList<int> todas;
    for (int k = 0; k < I(n).palavra.size(); ++k)
        todas << I(n).ponto + (I(n).sentido == u'H' ? k : 26 * k);
    return todas;
}

int Regras::Resolvidos() const
{
    const auto resolvido = [](const Item &um) { return um.resolvido; };
    return static_cast<int>(std::count_if(itens.begin() + 1, itens.end(), resolvido));
}

int Regras::Aberto() const
{
    int n = 1;
    while (n <= kPalavras && I(n).resolvido)
        ++n;
    return n;
}

// ---- Selection

void Regras::Seleciona(int n, bool confere)
{
    if (NoClick) Som(u"select.wav"_s);
    NoClick = true;
    if (Desistiu) dica = I(n).dica;
    if (Desistiu || I(n).resolvido) return;
    marcador = true;
    marcadorLeft = kFaixaLeft + kPassoDaFaixa * (n - 1) - kRecuo;
    I(item).aceso = false;
    Limpa(item);
    item = n;
    dica = I(n).dica;
    I(n).aceso = true;
    Focus = 0;
    for (const int i : CasasDe(n)) {
        if (C(i).fixa) continue;
        C(i).chao = Chao::Amarelo;
        Focus = Focus == 0 ? i : Focus;
    }
    if (Focus == 0 && confere) Verifica(n);
}

/// Wipes the free cells of an item.
void Regras::Limpa(int n)
{
    for (const int i : CasasDe(n)) {
        if (C(i).fixa) continue;
        Escreve(i, {});
        C(i).chao = Chao::Branco;
    }
}

void Regras::ApertaCasa(int i)
{
    if (Desistiu || C(i).itens.isEmpty()) return;
    const int a = C(i).itens.first(), b = C(i).itens.last();
    if (I(a).resolvido && I(b).resolvido) return;
    if (a != b && !I(a).resolvido && !I(b).resolvido) {
        m_alterna = !m_alterna;
        Seleciona(m_alterna ? b : a);
    } else {
        Seleciona(I(a).resolvido ? b : a);
    }
}

// ---- Letters and words

void Regras::Digita(const QString &texto)
{
    if (Focus != 0 && !painel) Escreve(Focus, C(Focus).texto + texto);
}

void Regras::Escreve(int i, const QString &texto)
{
    if (C(i).texto == texto) return;
    C(i).texto = texto;
    Mudou(i);
}

void Regras::Mudou(int i)
{
    if (Desistiu) return Escreve(i, Capitais(C(i).letra));
    const int w = item;
    while (w != 0 && !C(i).texto.isEmpty()) {
        const QString texto = C(i).texto;
        if (texto != Capitais(texto)) return Escreve(i, Capitais(texto));
        if (!kAceitas.contains(texto)) return Escreve(i, {});
        i += I(w).sentido == u'H' ? 1 : 26;
        if (i > kCasas || !C(i).visivel) return Verifica(w);
        if (!C(i).fixa) {
            Focus = i;
            return;
        }
    }
}

void Regras::Verifica(int n)
{
    Focus = 0;
    NoClick = false;
    QString digitada;
    for (const int i : CasasDe(n))
        digitada += C(i).texto;
    if (Combina(Capitais(digitada), Capitais(I(n).palavra))) return Certa(n);
    Som(Sorteia(50) ? u"erro1.wav"_s : u"erro2.wav"_s);
    Limpa(n);
    Seleciona(n);
}

void Regras::Certa(int n)
{
    Som(Sorteia(60) ? u"acerto1.wav"_s : u"acerto2.wav"_s);
    for (const int i : CasasDe(n)) {
        C(i).chao = Chao::Azul;
        C(i).fixa = true;
        // Where a paste has left another letter, or several, the cell takes the word's own.
        if (!LetraServe(C(i).texto, C(i).letra)) C(i).texto = C(i).letra;
    }
    I(n).resolvido = true;
    SomeNoTab(n);
    const int partida = m_partida;
    aoCeder();
    if (partida != m_partida || TudoResolvido) return;
    desistir = Resolvidos() >= 10;
    if (Resolvidos() == kPalavras) return Termina();
    Seleciona(n < kPalavras && !I(n + 1).resolvido ? n + 1 : Aberto());
}

void Regras::Termina()
{
    TudoResolvido = true;
    timers[1] = socorro = desistir = false;
    if (!EntraNoRanking(static_cast<int>(std::floor(agora - HoraInicio))))
        Mensagem(u"Parabéns !!!"_s);
}

void Regras::SomeNoTab(int n)
{
    Item &um = I(n);
    const int antes = n == 1 || I(n - 1).resolvido ? 1 : 0;
    const int depois = n == kPalavras || I(n + 1).resolvido ? 1 : 0;
    // A second judgement of the same word finds the mark there and widens it.
    um.marcaWidth = (um.marca ? um.marcaWidth : kLarguraDaMarca) + antes + depois;
    um.marcaLeft = kFaixaLeft + kPassoDaFaixa * (n - 1) - kRecuo - antes;
    um.marca = true;
    um.botao = false;
}

// ---- The mouse, the bubble, the clock

bool Regras::Alcanca(const Alvo &alvo, const Alvo &real) const
{
    const auto um = [&real](const QString &nomes) { return nomes.split(u' ').contains(real.nome); };
    if (balao && um(u"Picture2 LbHint ImgHintDire ImgHintDire2"_s)) return true;
    if (painel && (alvo.nome == u"Text1" || alvo.nome == u"Pic_q2"))
        return um(u"Picespere Image7 PicUpdate"_s);
    // Whether the mark is laid already nobody knows.
    if (painel && alvo.nome == u"Lbt") return um(u"Lbt ImgR"_s);
    // Numbers and the edges of the sheet lie there, too.
    if (alvo.nome == u"Pic_q2") return um(u"Pic_q2 Pic_q1 Form1 LB"_s);
    if (alvo.nome == u"Label3" && alvo.n > 0 && escudo) return um(u"Image4"_s);
    if (alvo.nome == u"Label4" && !socorro) return um(u"Form1"_s);
    const bool sob = alvo.nome == u"Lbt" && !I(alvo.n).botao;
    return real.nome == (sob ? u"ImgR"_s : alvo.nome) && real.n == alvo.n;
}

void Regras::Move(const Alvo &alvo)
{
    if (alvo.nome == u"Text1") return Paira(alvo.n);
    if (!u"Form1 Pic_q1 Pic_q2 Picespere"_s.split(u' ').contains(alvo.nome)) return;
    balao = timers[3] = false;
    avisoa.clear();
}

void Regras::Clica(const Alvo &alvo, bool dupla)
{
    for (int vez = 0; vez < (dupla ? 2 : 1); ++vez) {
        if (alvo.nome == u"Text1") ApertaCasa(alvo.n);
        // The second click can find the mark where the button was.
        if (alvo.nome == u"Lbt" && !painel && I(alvo.n).botao) Seleciona(alvo.n);
    }
    if (alvo.nome == u"Label3") Menu(alvo.n);
    if (alvo.nome == u"Label4") Socorro();
    if (alvo.nome == u"Image2") Menu(5);
    if (alvo.nome == u"Image8") Dialogo(u"FrmSobre"_s);
}

void Regras::Paira(int i)
{
    if (Desistiu || C(i).itens.isEmpty()) return;
    const Item &a = I(C(i).itens.first()), &b = I(C(i).itens.last());
    const bool cruza = C(i).itens.size() > 1;
    if (a.resolvido && b.resolvido) {
        balao = false;
        seta = seta && !cruza;
        return;
    }
    const Item &m = a.resolvido ? b : a;
    QString h = m.dica;
    seta = cruza && m.sentido == u'H';
    seta2 = cruza && m.sentido == u'V';
    if (cruza && !a.resolvido && !b.resolvido) {
        seta2 = false;
        seta = true;
        h = (a.sentido == u'H' ? a : b).dica + u'\r' + (b.sentido == u'V' ? b : a).dica;
    }
    if (h == avisoa) return;
    textoBalao = h;
    balaoLeft = std::lround(75 + 15 * (folhaLeft + 12 + 18 * ((i - 1) % 26) + 19));
    balaoBaixo = std::lround(480 + 15 * (folhaTop + 13 + 18 * ((i - 1) / 26)));
    sobraBalao = u"270|90"_s;
    balao = timers[2] = false;
    timers[3] = true;
}

void Regras::Tique(size_t timer)
{
    if (!timers[timer]) return;
    timers[timer] = timer == 1;
    if (timer == 1 && !Desistiu) relogio = Tempo(static_cast<int>(std::floor(agora - HoraInicio)));
    if (timer == 2) balao = false;
    if (timer == 3) {
        balao = timers[2] = true;
        avisoa = textoBalao;
    }
    for (int k = 520; timer == 4 && k > 0; --k)
        usadas[u"Indice/Palavra%1"_s.arg(k)] =
            k <= kPalavras ? I(k).palavra : usadas.value(u"Indice/Palavra%1"_s.arg(k - kPalavras));
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
    if (SomLigado) log << u"som "_s + nome;
}

bool Regras::Mensagem(const QString &texto, const QString &botoes)
{
    log << botoes + texto;
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
