#include "tests/ui/model/jogador.h"

#include <QFile>

namespace modelo {

namespace {

constexpr std::array kChaos = {0xFFFFFFU, 0xFFFFB1U, 0xD5F5FFU};
constexpr int kMaisDiferencas = 12;

/// Collects the lines of a snapshot; both sides name the same things in the same order.
struct Linhas
{
    Retrato linhas;

    void Poe(const char *nome, const QString &valor)
    {
        linhas << QString::fromLatin1(nome) + u'=' + valor;
    }
    void Poe(const char *nome, double valor) { Poe(nome, QString::number(valor, 'f', 2)); }
    void Poe(const char *nome, int n, const QString &valor)
    {
        linhas << QString::fromLatin1(nome) + QString::number(n) + u'=' + valor;
    }
};

QString Cor(unsigned rgb)
{
    return QString::number(rgb & 0xFFFFFFU, 16);
}

QString Sim(bool sim)
{
    return sim ? QStringLiteral("1") : QStringLiteral("0");
}

QString Junta(std::initializer_list<QString> partes)
{
    return QStringList(partes).join(u'|');
}

QString Inteiro(float valor)
{
    return QString::number(std::lround(valor));
}

QString CasaDoPrograma(const JogoDeTeste &jogo, int i)
{
    const toolkit::TextBox &casa = jogo.c().Text1(i);
    const auto &sombra = jogo.c().PicSombra;
    if (!casa.Visible()) {
        return sombra.ExisteObjeto(i) ? QStringLiteral("a shadow") : QString();
    }
    const CelulaQuadrado &q = jogo.d().Quadrado(i);
    const bool temSombra = sombra.ExisteObjeto(i) && sombra(i).Visible() &&
                           sombra(i).Left() == casa.Left() + 2 && sombra(i).Top() == casa.Top() + 2;
    return Junta({casa.Text(), Cor(casa.BackColor().rgb()), Cor(casa.ForeColor().rgb()), q.Itens,
                  q.Sentido, Sim(q.Fixa), q.Letra, Sim(temSombra && casa.Enabled()),
                  Inteiro(casa.Left()), Inteiro(casa.Top()), Inteiro(casa.Width())});
}

QString CasaDoModelo(const Casa &casa, int i)
{
    if (!casa.visivel) {
        return {};
    }
    QStringList itens;
    for (const int n : casa.itens) {
        itens << QString::number(n);
    }
    return Junta({casa.texto, Cor(kChaos[static_cast<size_t>(casa.chao)]),
                  Cor(casa.vermelha ? 0xFF0000 : 0), itens.join(u','), casa.sentido, Sim(casa.fixa),
                  casa.letra, Sim(true), QString::number(12 + 18 * ((i - 1) % 26)),
                  QString::number(13 + 18 * ((i - 1) / 26)), QStringLiteral("19")});
}

QString ItemDoPrograma(const JogoDeTeste &jogo, int n)
{
    const RegistroItem &item = jogo.d().Item(n);
    const toolkit::Label &botao = jogo.c().Lbt(n);
    const toolkit::Label &numero = jogo.c().LB(n);
    const toolkit::TextBox &casa = jogo.c().Text1(item.Ponto);
    const bool deitado = item.Sentido == u'H';
    const bool lugar =
        deitado ? numero.Top() == casa.Top() && numero.Left() == casa.Left() - numero.Width()
                : numero.Top() == casa.Top() - numero.Height() && numero.Left() == casa.Left() + 5;
    QString marca;
    if (jogo.c().ImgR.ExisteObjeto(n)) {
        const toolkit::Image &img = jogo.c().ImgR(n);
        marca = Junta({Sim(img.Visible()), Inteiro(img.Left()), Inteiro(img.Width()),
                       Inteiro(img.Top()), Inteiro(img.Height())});
    }
    return Junta({item.Palavra, item.Sentido, QString::number(item.Ponto), item.Dica,
                  Sim(item.ItemResolvido), Sim(botao.Visible()), botao.Caption(),
                  Sim(botao.GetFont().Bold), Cor(botao.ForeColor().rgb()), Inteiro(botao.Left()),
                  numero.Caption(), Sim(numero.Visible() && lugar), marca});
}

QString ItemDoModelo(const Item &item, int n)
{
    const QString numero = QString::number(n);
    const QString marca =
        item.marca ? Junta({Sim(true), QString::number(item.marcaLeft),
                            QString::number(item.marcaWidth), QStringLiteral("6720|285")})
                   : QString();
    return Junta({item.palavra, item.sentido, QString::number(item.ponto), item.dica,
                  Sim(item.resolvido), Sim(item.botao), numero, Sim(item.aceso),
                  Cor(item.aceso ? 0xFFFFFF : 0), QString::number(195 + 315 * (n - 1)), numero,
                  Sim(true), marca});
}

/// Left and lower edge of the bubble, and what its size is more than its text's, all in twips.
QString BalaoDoPrograma(const forms::ControlesForm1 &c)
{
    const toolkit::PictureBox &b = c.Picture2;
    return b.Visible() ? Junta({Inteiro(b.Left()), Inteiro(b.Top() + b.Height()),
                                Inteiro(b.Width() - 15 * c.LbHint.Width()),
                                Inteiro(b.Height() - 15 * c.LbHint.Height())})
                       : QString();
}

int CasaComFoco(const JogoDeTeste &jogo)
{
    const QWidget *foco = jogo.form->Janela().focusWidget();
    const Alvo alvo = ControleEm(jogo.form->Janela(), foco);
    return alvo.nome == u"Text1" ? alvo.n : 0;
}

} // namespace

Retrato Le(const JogoDeTeste &jogo)
{
    const forms::ControlesForm1 &c = jogo.c();
    const EstadoForm1 &e = jogo.d().estado;
    Linhas l;
    for (int i = 1; i <= kCasas; ++i) {
        l.Poe("cell ", i, CasaDoPrograma(jogo, i));
    }
    for (int n = 1; n <= kPalavras; ++n) {
        l.Poe("item ", n, ItemDoPrograma(jogo, n));
    }
    l.Poe("item", e.item);
    l.Poe("Focus", e.Focus);
    l.Poe("focus of the keyboard", CasaComFoco(jogo));
    l.Poe("flags", Junta({Sim(e.NoClick), Sim(e.TudoResolvido), Sim(jogo.valores.Desistiu),
                          Sim(jogo.valores.SomLigado)}));
    l.Poe("avisoa", e.avisoa);
    l.Poe("HoraInicio", jogo.valores.HoraInicio);
    l.Poe("clue", c.Label1.Caption());
    l.Poe("clock", c.Label2.Caption());
    l.Poe("panel, shield, help, give up",
          Junta({Sim(c.Picespere.Visible()), Sim(c.Image4.Visible()), Sim(c.Label4.Visible()),
                 Sim(c.Image6.Visible())}));
    l.Poe("timers", Junta({Sim(c.Timer1.Ligado()), Sim(c.Timer2.Ligado()), Sim(c.Timer3.Ligado()),
                           Sim(c.Timer4.Ligado())}));
    for (const toolkit::Timer *um : {&c.Timer1, &c.Timer2, &c.Timer3, &c.Timer4}) {
        l.Poe("interval", um->Interval());
    }
    l.Poe("bubble", Junta({Sim(c.Picture2.Visible()), Sim(c.ImgHintDire.Visible()),
                           Sim(c.ImgHintDire2.Visible()), c.LbHint.Caption()}));
    l.Poe("bubble's place", BalaoDoPrograma(c));
    l.Poe("marker", Sim(c.Image1.Visible()) + u' ' + Inteiro(c.Image1.Left()));
    l.Poe("sheet", QStringLiteral("%1 %2").arg(c.Pic_q2.Left()).arg(c.Pic_q2.Top()));
    return l.linhas;
}

Retrato Regras::Mostra() const
{
    Linhas l;
    for (int i = 1; i <= kCasas; ++i) {
        l.Poe("cell ", i, CasaDoModelo(casas[static_cast<size_t>(i)], i));
    }
    for (int n = 1; n <= kPalavras; ++n) {
        l.Poe("item ", n, ItemDoModelo(I(n), n));
    }
    l.Poe("item", item);
    l.Poe("Focus", Focus);
    l.Poe("focus of the keyboard", Focus);
    l.Poe("flags", Junta({Sim(NoClick), Sim(TudoResolvido), Sim(Desistiu), Sim(SomLigado)}));
    l.Poe("avisoa", avisoa);
    l.Poe("HoraInicio", HoraInicio);
    l.Poe("clue", dica);
    l.Poe("clock", relogio);
    l.Poe("panel, shield, help, give up",
          Junta({Sim(painel), Sim(escudo), Sim(socorro), Sim(desistir)}));
    l.Poe("timers", Junta({Sim(timers[1]), Sim(timers[2]), Sim(timers[3]), Sim(timers[4])}));
    for (const int ms : {300, 3000, 500, 8000}) {
        l.Poe("interval", ms);
    }
    l.Poe("bubble", Junta({Sim(balao), Sim(seta), Sim(seta2), textoBalao}));
    const QString lugar =
        QStringLiteral("%1|%2|%3").arg(balaoLeft).arg(balaoBaixo).arg(extraBalao);
    l.Poe("bubble's place", balao ? lugar : QString());
    l.Poe("marker", Sim(marcador) + u' ' + QString::number(marcadorLeft));
    l.Poe("sheet", QStringLiteral("%1 %2").arg(folhaLeft).arg(folhaTop));
    return l.linhas;
}

Alvo ControleEm(const toolkit::Form &form, const QWidget *widget)
{
    for (; widget != nullptr && widget != &form; widget = widget->parentWidget()) {
        for (const auto &controle : form.Controls()) {
            if (controle->Widget() == widget) {
                return {controle->Name(), controle->Index()};
            }
        }
    }
    return {widget == nullptr ? QString() : QStringLiteral("Form1"), -1};
}

Arquivo LeArquivo(const QString &caminho)
{
    QFile arquivo(caminho);
    Arquivo lido;
    if (!arquivo.open(QIODevice::ReadOnly)) {
        return lido;
    }
    QString secao;
    const QStringList linhas = QString::fromLatin1(arquivo.readAll()).split(QStringLiteral("\r\n"));
    for (const QString &linha : linhas) {
        const auto igual = linha.indexOf(u'=');
        if (linha.startsWith(u'[')) {
            secao = linha.mid(1).chopped(1) + u'/';
        } else if (igual > 0) {
            lido[secao + linha.left(igual)] = linha.mid(igual + 1);
        }
    }
    return lido;
}

QString Diferencas(const QStringList &programa, const QStringList &modelo)
{
    QStringList linhas;
    for (qsizetype k = 0; k < std::max(programa.size(), modelo.size()); ++k) {
        if (programa.value(k) != modelo.value(k) && linhas.size() < kMaisDiferencas) {
            linhas << QStringLiteral("  program: ") + programa.value(k, QStringLiteral("-")) +
                          QStringLiteral("\n  rules:   ") + modelo.value(k, QStringLiteral("-"));
        }
    }
    return linhas.join(u'\n').replace(u'\r', u'/');
}

QString Diferencas(const Arquivo &programa, const Arquivo &modelo)
{
    const auto linhas = [](const Arquivo &arquivo) {
        QStringList todas;
        for (auto k = arquivo.begin(); k != arquivo.end(); ++k) {
            const bool tempo = k.key().startsWith(u"jogo") && k.key().endsWith(u"Tempo");
            const QString valor =
                tempo ? QString::number(QString(k.value()).replace(u',', u'.').toDouble(), 'f', 2)
                      : k.value();
            todas << k.key() + u'=' + valor;
        }
        return todas;
    };
    return Diferencas(linhas(programa), linhas(modelo));
}

} // namespace modelo
