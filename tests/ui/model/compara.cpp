#include "tests/ui/model/jogador.h"

#include <cmath>
#include <QFile>

using namespace Qt::StringLiterals;

namespace modelo {

namespace {

constexpr std::array kChaos = {QColor(255, 255, 255), QColor(255, 255, 177), QColor(213, 245, 255)};
constexpr qsizetype kMaisDiferencas = 12;
/// What a snapshot holds behind its cells and its items.
const QStringList kNomes = {u"item, Focus, focus of the keyboard"_s,
                            u"NoClick, TudoResolvido, Desistiu, SomLigado"_s,
                            u"avisoa, HoraInicio"_s,
                            u"clue, clock"_s,
                            u"panel, shield, help, give up"_s,
                            u"timers"_s,
                            u"their intervals"_s,
                            u"bubble"_s,
                            u"bubble's place"_s,
                            u"marker, sheet"_s};

template <class T>
decltype(auto) Em(const T &valor)
{
    if constexpr (std::is_same_v<T, QColor>)
        return QString::number(valor.rgb() & 0xFFFFFFU, 16);
    else if constexpr (std::is_floating_point_v<T>)
        return QString::number(std::round(double(valor) * 4) / 4, 'f', 2);
    else if constexpr (std::is_arithmetic_v<T>)
        return QString::number(valor);
    else
        return static_cast<const T &>(valor);
}

template <class... T>
QString Junta(const T &...partes)
{
    QString linha;
    ((linha += Em(partes), linha += u'|'), ...);
    return linha;
}

QString CasaDoPrograma(const JogoDeTeste &jogo, int i)
{
    const toolkit::TextBox &casa = jogo.c().Text1(i);
    const auto &sombra = jogo.c().PicSombra;
    if (!casa.Visible()) return sombra.ExisteObjeto(i) ? u"a shadow"_s : QString();
    const CelulaQuadrado &q = jogo.d().Quadrado(i);
    const bool sob = sombra.ExisteObjeto(i) && sombra(i).Visible() &&
                     sombra(i).Left() == casa.Left() + 2 && sombra(i).Top() == casa.Top() + 2;
    return Junta(casa.Text(), casa.BackColor(), casa.ForeColor(), q.Itens, q.Sentido, q.Fixa,
                 q.Letra, sob && casa.Enabled(), int(casa.Left()), int(casa.Top()),
                 int(casa.Width()));
}

QString CasaDoModelo(const Casa &casa, int i)
{
    if (!casa.visivel) return {};
    QStringList itens;
    for (const int n : casa.itens)
        itens << QString::number(n);
    return Junta(casa.texto, kChaos[static_cast<size_t>(casa.chao)],
                 QColor(casa.vermelha ? 255 : 0, 0, 0), itens.join(u','), casa.sentido, casa.fixa,
                 casa.letra, true, 12 + 18 * ((i - 1) % 26), 13 + 18 * ((i - 1) / 26), 19);
}

QString ItemDoPrograma(const JogoDeTeste &jogo, int n)
{
    const RegistroItem &item = jogo.d().Item(n);
    const toolkit::Label &botao = jogo.c().Lbt(n), &lb = jogo.c().LB(n);
    const toolkit::TextBox &casa = jogo.c().Text1(item.Ponto);
    const bool deitado = item.Sentido == u'H';
    const bool lugar = lb.Top() == casa.Top() - (deitado ? 0 : lb.Height()) &&
                       lb.Left() == casa.Left() + (deitado ? -lb.Width() : 5);
    const toolkit::Image *marca =
        jogo.c().ImgR.ExisteObjeto(n) ? &jogo.c().ImgR(n) : &jogo.c().Image5;
    const bool marcado = marca != &jogo.c().Image5;
    return Junta(item.Palavra, item.Sentido, item.Ponto, item.Dica, item.ItemResolvido,
                 botao.Visible(), botao.Caption(), botao.GetFont().Bold, botao.ForeColor(),
                 botao.Left(), lb.Caption(), lb.Visible() && lugar, marcado && marca->Visible(),
                 marcado ? Junta(marca->Left(), marca->Width(), marca->Top(), marca->Height())
                         : QString());
}

QString ItemDoModelo(const Item &um, int n)
{
    return Junta(um.palavra, um.sentido, um.ponto, um.dica, um.resolvido, um.botao, n, um.aceso,
                 um.aceso ? kChaos[0] : QColor(0, 0, 0), 195.0 + 315 * (n - 1), n, true, um.marca,
                 um.marca ? Junta(double(um.marcaLeft), double(um.marcaWidth), 6720.0, 285.0)
                          : QString());
}

QStringList Linhas(Arquivo arquivo)
{
    QStringList linhas;
    for (auto k = arquivo.begin(); k != arquivo.end(); ++k) {
        const bool tempo = k.key().startsWith(u"jogo") && k.key().endsWith(u"Tempo");
        linhas << k.key() + u'=' + (tempo ? Em(k->replace(u',', u'.').toDouble()) : k.value());
    }
    return linhas;
}

} // namespace

Retrato Le(const JogoDeTeste &jogo)
{
    const forms::ControlesForm1 &c = jogo.c();
    const EstadoForm1 &e = jogo.d().estado;
    const Alvo foco = ControleEm(jogo.form->Janela(), jogo.form->Janela().focusWidget());
    Retrato l;
    for (int i = 1; i <= kCasas; ++i)
        l << CasaDoPrograma(jogo, i);
    for (int n = 1; n <= kPalavras; ++n)
        l << ItemDoPrograma(jogo, n);
    l << Junta(e.item, e.Focus, foco.nome == u"Text1" ? foco.n : 0);
    l << Junta(e.NoClick, e.TudoResolvido, jogo.valores.Desistiu, jogo.valores.SomLigado);
    l << Junta(e.avisoa, jogo.valores.HoraInicio) << Junta(c.Label1.Caption(), c.Label2.Caption());
    l << Junta(c.Picespere.Visible(), c.Image4.Visible(), c.Label4.Visible(), c.Image6.Visible());
    l << Junta(c.Timer1.Ligado(), c.Timer2.Ligado(), c.Timer3.Ligado(), c.Timer4.Ligado());
    l << Junta(c.Timer1.Interval(), c.Timer2.Interval(), c.Timer3.Interval(), c.Timer4.Interval());
    const toolkit::PictureBox &b = c.Picture2;
    l << Junta(b.Visible(), c.ImgHintDire.Visible(), c.ImgHintDire2.Visible(), c.LbHint.Caption());
    l << (b.Visible() ? Junta(std::lround(b.Left()), std::lround(b.Top() + b.Height()),
                              std::lround(b.Width() - 15 * c.LbHint.Width()),
                              std::lround(b.Height() - 15 * c.LbHint.Height()))
                      : QString());
    return l << Junta(c.Image1.Visible(), c.Image1.Left(), c.Pic_q2.Left(), c.Pic_q2.Top());
}

Retrato Regras::Mostra() const
{
    Retrato l;
    for (int i = 1; i <= kCasas; ++i)
        l << CasaDoModelo(C(i), i);
    for (int n = 1; n <= kPalavras; ++n)
        l << ItemDoModelo(I(n), n);
    l << Junta(item, Focus, Focus) << Junta(NoClick, TudoResolvido, Desistiu, SomLigado);
    l << Junta(avisoa, HoraInicio) << Junta(dica, relogio);
    l << Junta(painel, escudo, socorro, desistir);
    l << Junta(timers[1], timers[2], timers[3], timers[4]) << Junta(300, 3000, 500, 8000);
    l << Junta(balao, seta, seta2, textoBalao);
    l << (balao ? Junta(balaoLeft, balaoBaixo, sobraBalao) : QString());
    return l << Junta(marcador, double(marcadorLeft), folhaLeft, folhaTop);
}

Alvo ControleEm(const toolkit::Form &form, const QWidget *widget)
{
    for (; widget != nullptr && widget != &form; widget = widget->parentWidget())
        for (const auto &controle : form.Controls())
            if (controle->Widget() == widget) return {controle->Name(), controle->Index()};
    return {u"Form1"_s};
}

Arquivo LeArquivo(const QByteArray &bytes)
{
    Arquivo lido;
    QString secao;
    const QStringList linhas = QString::fromLatin1(bytes).split(u"\r\n"_s);
    for (const QString &linha : linhas) {
        const auto igual = linha.indexOf(u'=');
        if (linha.startsWith(u'[')) secao = linha.mid(1).chopped(1) + u'/';
        if (igual > 0) lido[secao + linha.left(igual)] = linha.mid(igual + 1);
    }
    return lido;
}

QString Diferencas(const QStringList &programa, const QStringList &modelo)
{
    QStringList linhas;
    for (qsizetype k = 0; k < std::max(programa.size(), modelo.size()); ++k) {
        if (programa.value(k) == modelo.value(k)) continue;
        QString nome;
        if (programa.size() > kCasas) {
            nome = k < kCasas ? u"cell %1"_s.arg(k + 1) : u"item %1"_s.arg(k - kCasas + 1);
            nome = kNomes.value(k - kCasas - kPalavras, nome) + u": "_s;
        }
        linhas << nome + programa.value(k, u"-"_s) + u"\n by the rules: "_s +
                      modelo.value(k, u"-"_s);
    }
    return linhas.mid(0, kMaisDiferencas).join(u'\n').replace(u'\r', u'/');
}

QString Diferencas(const Arquivo &programa, const Arquivo &modelo)
{
    return programa == modelo ? QString() : Diferencas(Linhas(programa), Linhas(modelo));
}

} // namespace modelo
