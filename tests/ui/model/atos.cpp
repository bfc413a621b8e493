#include "tests/ui/model/jogador.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace modelo {

namespace {

using Tipo = Gesto::Tipo;

constexpr size_t kAtosPorSessao = 180;

/// How often each kind of act comes, in hundredths.
constexpr std::array kPesos = {10, 8, 8, 6, 4, 9, 6, 9, 4, 7, 4, 7, 9, 1, 3, 3, 1, 0, 1};
constexpr std::array kTeclas = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Left,
                                Qt::Key_Delete, Qt::Key_Return,  Qt::Key_Home,      Qt::Key_Escape};
/// Entries of the menu; saving and loading come most.
constexpr std::array kEntradas = {0, 1, 2, 2, 2, 3, 3, 3, 4, 5};
constexpr std::array kEsperas = {0.25, 1.0, 59.75, 600.0, 3599.5, 20000.0, 86400.0};
const QStringList kNomes =
    u"Ana,,  Zé e Ção ,Conceição da Silva,   ,Vazio,Salvar aqui,a & b"_s.split(u',');
const QStringList kTextos =
    u"ABC,ACB,x y, ,-,ß,õ,7,890,st,ÚÀ,a\u0303,Ý,é,AAAAAAAAAAAAAAAAAAAAAAAAAA"_s.split(u',');
/// What breaks a saved game, and behind the first seven what does not.
const QStringList kEstragos =
    u"Ponto3=x,Sentido5=L,Tempo=-1,Palavra26=,ItemResolvido9=?,"
    "Ponto1=572,Tempo=1e999,Tempo=90061.75,Nome=Vazio,Nome=  "_s.split(u',');

constexpr Ato kGuarda{12, 5, 0, 8}, kAbre{12, 2, 0, 8}, kPrimeira{12, 0, 0, 8}, kSolta{3, 13, 1, 0},
    kAjuda{11, 1, 1, 8};
/// How sessions begin, in turn, so that what is rare comes to pass: games given up, solved by help
/// or thrown away at once, and what is left of them.
const std::array<std::vector<Ato>, 5> kInicios = {
    {{kGuarda, kSolta, kPrimeira, {6, 3}, kAbre, {0, 2, 1}, {12, 1, 0, 8}, kGuarda},
     {kSolta, {3, 10, 1}, {16, 3}, {0, 7, 1}, kAjuda, kPrimeira},
     {kSolta, kGuarda, {12, 2, 0, 28}, {7, 0, 2}, {7, 1, 7}, {7, 2, 3}, {7, 3, 7}, {7, 5, 7}},
     {{10, 3}, {12, 0, 0, 7}, {10, 3}, {12, 0, 0, 15}, {17}, {9, 3}, kPrimeira, kPrimeira},
     {{18, 1}, kAjuda, {10, 4}, kGuarda, kSolta, {3, 12, 1}, kAbre, {0, 0, 1}, {9, 0}}}};

template <class T>
const auto &Um(const T &lista, int qual)
{
    return *(lista.begin() + qual % static_cast<int>(lista.size()));
}

} // namespace

void Jogador::Clica(const Alvo &alvo, int como, const Respostas &r, int com, int yield)
{
    Executa({.tipo = Tipo::Clica,
             .alvo = alvo,
             .n = como,
             .respostas = r,
             .dentro = Interrupcao(com),
             .noPainel = yield});
}

/// What may arrive while a gesture lets events run; nothing for 0.
std::vector<Gesto> Jogador::Interrupcao(int com) const
{
    const Alvo botao{u"Lbt"_s, 1 + com / 8 % kPalavras};
    const std::array<Gesto, 8> todas = {
        {{},
         {.tipo = Tipo::Clica, .alvo = botao},
         {.tipo = Tipo::Clica, .alvo = CasaAoAcaso(com / 8, false)},
         {.tipo = Tipo::Digita, .texto = QString(QChar(u'A' + com / 8 % 26))},
         {.tipo = Tipo::Clica, .alvo = {u"Label3"_s, 0}},
         {.tipo = Tipo::Clica, .alvo = {u"Label3"_s, 1}},
         {.tipo = Tipo::Clica, .alvo = {u"Label4"_s}},
         {.tipo = Tipo::Tique, .n = 1 + com / 8 % 2 * 3}}};
    return com % 8 == 0 ? std::vector<Gesto>() : std::vector<Gesto>{Um(todas, com)};
}

Alvo Jogador::CasaAoAcaso(int a, bool cruzamento) const
{
    QList<int> casas;
    for (int i = 1; i <= kCasas; ++i)
        if (m_regras.C(i).visivel && (!cruzamento || m_regras.C(i).sentido == u'M')) casas << i;
    return {u"Text1"_s, Um(casas, a)};
}

/// The letters that item `n` lacks, as the player types them: small, in capitals, composed, pasted,
/// or without accents.
QString Jogador::Falta(int n, int como) const
{
    QString letras;
    for (const int i : m_regras.CasasDe(n))
        if (m_regras.C(i).texto.isEmpty()) letras += m_regras.C(i).letra;
    if (como % 5 == 4) {
        letras = letras.normalized(QString::NormalizationForm_D);
        letras.removeIf([](QChar letra) { return letra.category() == QChar::Mark_NonSpacing; });
    }
    return como % 5 == 0 ? letras.toLower() : letras;
}

void Jogador::Escreve(const QString &letras, int como, int interrompe)
{
    constexpr std::array kComo = {Tipo::Digita, Tipo::Digita, Tipo::Compoe, Tipo::Cola,
                                  Tipo::Digita};
    for (qsizetype k = 0; k < letras.size(); ++k)
        Executa({.tipo = Um(kComo, como),
                 .texto = letras.mid(k, 1),
                 .respostas = {.nome = Um(kNomes, como / 5)},
                 .dentro = Interrupcao(k + 1 == letras.size() ? interrompe : 0)});
}

void Jogador::ResolveItem(int n, int como, int interrompe)
{
    if (m_regras.I(n).resolvido) return;
    Clica({u"Lbt"_s, n}, 0, {.nome = Um(kNomes, como)});
    if (m_regras.item == n && m_regras.Focus != 0) Escreve(Falta(n, como), como, interrompe);
}

void Jogador::Grava(const QString &nome, const Arquivo &arquivo) const
{
    QFile saida(m_jogo.Caminho(u"Dados/"_s + nome));
    if (!saida.open(QIODevice::WriteOnly)) return;
    for (auto k = arquivo.begin(); k != arquivo.end(); ++k) {
        const QStringList partes = k.key().split(u'/');
        if (k == arquivo.begin() || !std::prev(k).key().startsWith(partes[0] + u'/'))
            saida.write('[' + partes[0].toLatin1() + "]\r\n");
        saida.write(partes[1].toLatin1() + '=' + k->toLatin1() + "\r\n");
    }
}

/// Breaks a saved game in its file, or changes it to one that can still be opened.
void Jogador::Danifica(int slot, int como)
{
    const QString secao = u"jogo%1/"_s.arg(slot);
    if (!m_regras.jogos.contains(secao + u"Nome"_s) || m_regras.danificados.contains(slot)) return;
    const QStringList estrago = Um(kEstragos, como).split(u'=');
    m_regras.jogos[secao + estrago[0]] = estrago[1];
    if (como % kEstragos.size() < 7) m_regras.danificados << slot;
    Grava(u"save.ini"_s, m_regras.jogos);
}

/// A ranking with times round that of this moment.
void Jogador::PreparaRanking(int como)
{
    const int t = static_cast<int>(m_regras.agora - m_regras.HoraInicio) - como % 7;
    for (int p = 1; p <= 5; ++p) {
        m_regras.ranking[u"Ranking%1/Nome"_s.arg(p)] = QChar(u'A' + p);
        m_regras.ranking[u"Ranking%1/Tempo"_s.arg(p)] = QString::number(std::max(0, t + p));
    }
    Grava(u"Ranking.dat"_s, m_regras.ranking);
}

/// A memory of used words that leaves the builder little: its next builds fail now and then.
void Jogador::EncheMemoria()
{
    for (int k = 0; k < 422; ++k)
        m_regras.usadas[u"Indice/Palavra%1"_s.arg(k + 1)] =
            QString::fromLatin1(Banco().mid(76 * k, 15)).trimmed();
    Grava(u"jf.dat"_s, m_regras.usadas);
}

/// Puts two letters of a word that are neighbours among the accepted ones into one cell, so that
/// the word is there with its last cell empty; help that gives another word's letter judges it.
void Jogador::ColaDois(int a)
{
    for (int k = 0; k < kPalavras; ++k) {
        const int n = 1 + (a + k) % kPalavras;
        const QString falta = Falta(n, 1);
        int p = 0;
        while (p + 1 < falta.size() && falta[p].unicode() + 1 != falta[p + 1].unicode())
            ++p;
        if (m_regras.I(n).resolvido || p + 1 >= falta.size()) continue;
        Clica({u"Lbt"_s, n});
        Escreve(falta.left(p), 1);
        Executa({.tipo = Tipo::Cola, .texto = falta.mid(p, 2)});
        return Escreve(falta.mid(p + 2), 1);
    }
}

QString Jogador::Faz(const Ato &ato)
{
    const auto [tipo, a, b, c] = ato;
    const QString falta = m_regras.item == 0 ? QString() : Falta(m_regras.item, b);
    const int slot = 1 + (b % 40 < 12 ? b % 40 : b % 2);
    const Respostas r{.aceita = c % 5 != 0,
                      .slot = slot,
                      .nome = Um(kNomes, c),
                      .mantemNome = c % 5 == 1,
                      .desisteDoNome = c % 9 == 2};
    constexpr std::array kComo = {Tipo::Cola, Tipo::Compoe, Tipo::Digita};
    const int entrada = Um(kEntradas, a);
    // What a timer writes of a board half laid out is not foreseen.
    const bool monta = entrada == 0 || (entrada == 2 && c % 8 != 7);
    if (tipo == 0) Escreve(falta.left(a % 8 == 7 ? falta.size() - 1 : 1 + a % 3), b);
    if (tipo == 1)
        Executa({.tipo = Um(kComo, b), .texto = Um(kTextos, a).left(b % 3 == 2 ? 1 : -1)});
    if (tipo == 2) ResolveItem(1 + a % kPalavras, b, c);
    for (int k = a % 14; tipo == 3 && k >= 0 && m_regras.Aberto() <= kPalavras; --k)
        ResolveItem(m_regras.Aberto(), b);
    if (tipo == 4 && !falta.isEmpty()) Escreve(falta.chopped(1) + u'Ô', b);
    if (tipo == 5) Clica(CasaAoAcaso(a, c % 2 == 1), b % 3);
    if (tipo == 6) Clica({u"Lbt"_s, 1 + a % kPalavras}, b % 4 == 0 ? 2 : 0, r);
    if (tipo == 7) Executa({.alvo = CasaAoAcaso(a, b % 2 == 1)});
    if (tipo == 7 && b % 8 < 6) Executa({.tipo = Tipo::Tique, .n = 3});
    if (tipo == 7 && b % 8 < 2) Executa({.tipo = Tipo::Tique, .n = 2});
    if (tipo == 8) Executa({.alvo = {a % 2 == 0 ? u"Form1"_s : u"Pic_q2"_s}, .n = 1 + b % 570});
    if (tipo == 9) Executa({.tipo = Tipo::Tique, .n = 1 + a % 4});
    if (tipo == 10) Executa({.tipo = Tipo::Espera, .segundos = Um(kEsperas, a)});
    if (tipo == 10) Executa({.tipo = Tipo::Tique, .n = 1});
    if (tipo == 11) Clica({u"Label4"_s}, 0, r, a % 3 == 0 ? b : 0);
    if (tipo == 12) Clica({u"Label3"_s, entrada}, 0, r, monta ? c : 0, 3 + b / 3 % 60);
    if (tipo == 13) Clica({a % 2 == 0 ? u"Image2"_s : u"Image8"_s});
    if (tipo == 14) Executa({.tipo = Tipo::Tecla, .n = Um(kTeclas, a)});
    if (tipo == 15) Danifica(1 + a % 3, b);
    if (tipo == 16) PreparaRanking(a);
    if (tipo == 17) EncheMemoria();
    if (tipo == 18) ColaDois(a);
    return m_erro;
}

std::vector<Ato> Sorteados(std::uint64_t semente)
{
    AcasoMersenne acaso(semente);
    std::vector<Ato> atos = kInicios[semente % kInicios.size()];
    while (atos.size() < kAtosPorSessao) {
        Ato &ato = atos.emplace_back();
        int sorte = SorteiaNumero(acaso, 100);
        while (sorte > kPesos[static_cast<size_t>(ato.tipo)])
            sorte -= kPesos[static_cast<size_t>(ato.tipo++)];
        for (int *qual : {&ato.a, &ato.b, &ato.c})
            *qual = SorteiaNumero(acaso, 1000);
    }
    return atos;
}

} // namespace modelo
