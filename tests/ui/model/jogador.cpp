#include "tests/ui/model/jogador.h"

#include "tests/ui/support/player.h"
#include "ui/forms/ranking_forms.h"
#include "ui/forms/slot_forms.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace modelo {

namespace {

using Tipo = Gesto::Tipo;

/// Timers of the program run down when the player says so; what Qt itself times goes on.
constexpr int kMenorIntervaloMs = 50;
/// A place of the form with nothing on it, in pixels.
constexpr QPoint kForaDeTudo(560, 420);
constexpr bool kDuplosNosBotoes = false;

/// Draws on both sides of each limit that counts.
constexpr std::array kSortes = {0.0, 0.475, 0.485, 0.495, 0.505, 0.575, 0.585, 0.595, 0.605, 0.99};
const QStringList kArquivos = {QStringLiteral("jf.dat"), QStringLiteral("save.ini"),
                               QStringLiteral("Ranking.dat")};
const QStringList kNomes = {QStringLiteral("Ana"),         QString(),
                            QStringLiteral("  Zé e Ção "), QStringLiteral("Conceição da Silva"),
                            QStringLiteral("   "),         QStringLiteral("Vazio"),
                            QStringLiteral("Salvar aqui"), QStringLiteral("a & b")};
const QStringList kTextos = {
    QStringLiteral("ABC"),     QStringLiteral("ACB"), QStringLiteral("x y"), QStringLiteral(" "),
    QStringLiteral("-"),       QStringLiteral("ß"),   QStringLiteral("õ"),   QStringLiteral("7"),
    QStringLiteral("890"),     QStringLiteral("st"),  QStringLiteral("ÚÀ"),  QString(3000, u'Z'),
    QStringLiteral("a\u0303"), QStringLiteral("Ý"),   QStringLiteral("é")};

const QByteArray &Banco()
{
    static const QByteArray banco = BancoInventado(600);
    return banco;
}

QString Nome(const Gesto &gesto)
{
    constexpr std::array kTipos = {"move to", "click on", "type", "compose",
                                   "paste",   "key",      "tick", "wait"};
    QString nome =
        QStringLiteral("%1 %2 %3 %4%5")
            .arg(QString::fromLatin1(kTipos[static_cast<size_t>(gesto.tipo)]), gesto.alvo.nome)
            .arg(gesto.alvo.n)
            .arg(gesto.n)
            .arg(gesto.texto.left(20));
    return gesto.dentro.empty() ? nome : nome + QStringLiteral(" while ") + Nome(gesto.dentro[0]);
}

void Grava(const QString &caminho, const Arquivo &arquivo)
{
    QByteArray bytes;
    QString antes;
    for (auto k = arquivo.begin(); k != arquivo.end(); ++k) {
        const QStringList partes = k.key().split(u'/');
        if (partes[0] != antes) {
            antes = partes[0];
            bytes += '[' + antes.toLatin1() + "]\r\n";
        }
        bytes += partes[1].toLatin1() + '=' + k.value().toLatin1() + "\r\n";
    }
    QFile saida(caminho);
    if (saida.open(QIODevice::WriteOnly)) {
        saida.write(bytes);
    }
}

toolkit::Label &LbSave(const toolkit::Form &form, int n)
{
    return forms::Acha<toolkit::Label>(form, u"LbSave", n);
}

} // namespace

/// Chance as one gesture meets it: first what the test has laid out, behind it a stream of its own
/// for the builder.
class Jogador::Sorte final : public Acaso
{
public:
    explicit Sorte(std::uint64_t semente) : m_resto(semente) {}
    double Uniforme() override
    {
        ++sorteios;
        if (fila.empty()) {
            return m_resto.Uniforme();
        }
        const double u = fila.front();
        fila.pop_front();
        return u;
    }
    std::deque<double> fila;
    int sorteios = 0;

private:
    AcasoMersenne m_resto;
};

Jogador::Jogador(std::uint64_t semente)
    : m_jogo(semente, Banco()), m_sementeDaSorte(semente * 1000003)
{
    Ambiente &ambiente = m_jogo.d().ambiente;
    auto sorte = std::make_unique<Sorte>(semente);
    m_sorte = sorte.get();
    ambiente.acaso = std::move(sorte);
    ambiente.tocaArquivo = [this](const QString &arquivo) {
        const QString pasta = m_jogo.valores.PastaPrograma + u'/';
        Anota(QStringLiteral("som ") +
              (arquivo.startsWith(pasta) ? arquivo.mid(pasta.size()) : arquivo));
    };
    ambiente.mensagem = [this](const PedidoMensagem &pedido) { return Responde(pedido); };
    ambiente.terminaProcesso = [this] { Anota(QStringLiteral("fim")); };
    m_jogo.maquina.aoDeixarEventos = [this] { Cedeu(); };
    m_regras.aoCeder = [this] { CedeuNoModelo(false); };
    m_regras.aoCederNoPainel = [this] { CedeuNoModelo(true); };
    m_regras.montado = [this] { return Puzzle(); };
    qApp->installEventFilter(this);
}

Jogador::~Jogador()
{
    qApp->removeEventFilter(this);
}

void Jogador::Anota(const QString &linha)
{
    m_log << linha;
}

Resposta Jogador::Responde(const PedidoMensagem &pedido)
{
    constexpr std::array kBotoes = {"Ok", "OkCancelar", "SimNao"};
    Anota(QString::fromLatin1(kBotoes[static_cast<size_t>(pedido.botoes)]) +
          (pedido.icone == Icone::Pergunta ? QStringLiteral("? ") : QStringLiteral(" ")) +
          pedido.texto);
    m_momentos << Le(m_jogo);
    m_jogo.maquina.agora += kSegundosDeMensagem;
    const bool aceita = m_gesto == nullptr || m_gesto->respostas.aceita;
    switch (pedido.botoes) {
    case Botoes::SimNao:
        return aceita ? Resposta::Sim : Resposta::Nao;
    case Botoes::OkCancelar:
        return aceita ? Resposta::Ok : Resposta::Cancelar;
    default:
        return Resposta::Ok;
    }
}

// ---- Dialogs

bool Jogador::eventFilter(QObject *alvo, QEvent *evento)
{
    if (const auto *timer = qobject_cast<QTimer *>(alvo); evento->type() == QEvent::Timer) {
        return timer != nullptr && timer->interval() >= kMenorIntervaloMs;
    }
    if (evento->type() == QEvent::Show || evento->type() == QEvent::Hide) {
        auto *form = dynamic_cast<toolkit::Form *>(alvo);
        if (form != nullptr && form->isModal() && evento->type() == QEvent::Show) {
            QTimer::singleShot(0, form, [this, form] { Encena(*form); });
        } else if (form != nullptr && form->isModal()) {
            // A window manager's duty: the owner of a window that has gone is active again.
            QWidget *dona = form->parentWidget();
            QTimer::singleShot(0, dona, [dona] {
                if (dona->isVisible()) {
                    dona->activateWindow();
                }
            });
        }
    }
    return false;
}

void Jogador::Encena(toolkit::Form &form)
{
    QCoreApplication::processEvents();
    const QPointer<toolkit::Form> viva(&form);
    const Respostas r = m_gesto == nullptr ? Respostas() : m_gesto->respostas;
    const QString nome = form.objectName();
    // The mouse leaves the main form; its next place there is a new one.
    m_mouse = {};
    QString linha = nome;
    const auto legenda = [&form](const char16_t *qual, int n) {
        return forms::Acha<toolkit::Label>(form, qual, n).Caption();
    };
    const bool lista = nome == u"FrmCarregar" || nome == u"FrmSalvar";
    QLineEdit *campo = form.findChild<QLineEdit *>();
    if (lista) {
        QStringList nomes;
        for (int n = 1; n <= 10; ++n) {
            nomes << LbSave(form, n).Caption();
        }
        linha += u' ' + nomes.join(u'|');
    } else if (nome == u"FrmSalvar2") {
        linha += QStringLiteral(" %1 %2 %3")
                     .arg(legenda(u"Label3", -1), campo->text(), campo->selectedText());
    } else if (nome == u"FrmHanking") {
        linha += u' ';
        for (int p = 1; p <= 5; ++p) {
            linha += legenda(u"Label1", p) + u' ' + legenda(u"Label2", p) + u' ' +
                     legenda(u"Label3", p) + u'|';
        }
    }
    Anota(linha);
    m_momentos << Le(m_jogo);
    m_jogo.maquina.agora += kSegundosDeDialogo;
    if (lista && r.slot <= 11) {
        ClicaNaJanela(LbSave(form, r.slot));
        if (viva && viva->isVisible()) {
            ClicaNaJanela(LbSave(form, 11));
        }
    } else if (lista || (nome == u"FrmSalvar2" && r.desisteDoNome)) {
        ClicaNaJanela(forms::Acha<toolkit::Image>(form, u"Image1"));
    } else if (nome == u"FrmSalvar2" || nome == u"FrmSeuNome") {
        if (!r.mantemNome || nome == u"FrmSeuNome") {
            Tecla(form, Qt::Key_Delete);
            ::Digita(form, r.nome);
        }
        Tecla(form, Qt::Key_Return);
    } else if (nome == u"FrmHanking") {
        Tecla(form, Qt::Key_Escape);
    } else {
        viva->Unload();
    }
    if (viva && viva->isVisible()) {
        Anota(QStringLiteral("left open: ") + nome);
        viva->Unload();
    }
}

// ---- Gestures in the program

void Jogador::Aponta(Gesto &gesto)
{
    toolkit::Form &form = m_jogo.form->Janela();
    QPoint lugar = kForaDeTudo;
    if (gesto.alvo.nome == u"Pic_q2") {
        while (m_regras.casas[static_cast<size_t>(gesto.n)].visivel) {
            gesto.n = gesto.n % kCasas + 1;
        }
        const QWidget *casa = m_jogo.c().Text1(gesto.n).Widget();
        lugar = casa->mapTo(&form, casa->rect().center());
    } else if (gesto.alvo.nome != u"Form1") {
        const QWidget *widget = form.Procura(gesto.alvo.nome, gesto.alvo.n)->Widget();
        lugar = widget->mapTo(&form, widget->rect().center());
    }
    gesto.real = ControleEm(form, form.childAt(lugar) == nullptr ? &form : form.childAt(lugar));
    gesto.movido = lugar != m_mouse;
    m_mouse = lugar;
    if (gesto.movido) {
        QTest::mouseMove(form.windowHandle(), lugar);
    }
}

void Jogador::NoPrograma(Gesto &gesto)
{
    toolkit::Form &form = m_jogo.form->Janela();
    QWindow *janela = form.windowHandle();
    if (gesto.tipo == Tipo::Move || gesto.tipo == Tipo::Clica) {
        Aponta(gesto);
    }
    m_gesto = &gesto;
    switch (gesto.tipo) {
    case Tipo::Move:
        break;
    case Tipo::Clica:
        if (gesto.n == 2) {
            QTest::mouseDClick(janela, Qt::LeftButton, {}, m_mouse);
        } else {
            const QPoint lugar = m_mouse;
            const auto botao = gesto.n == 1 ? Qt::MiddleButton : Qt::LeftButton;
            QTest::mousePress(janela, botao, {}, lugar);
            if (gesto.real.nome == u"Label3" &&
                m_jogo.c().Label3[static_cast<size_t>(gesto.real.n)]->BorderStyle() != 1) {
                Anota(QStringLiteral("no frame round the entry"));
            }
            QTest::mouseRelease(janela, botao, {}, lugar);
        }
        break;
    case Tipo::Digita:
        ::Digita(form, gesto.texto);
        break;
    case Tipo::Compoe:
        if (QObject *foco = form.focusWidget()) {
            QInputMethodEvent antes(QStringLiteral("´"), {});
            QApplication::sendEvent(foco, &antes);
            QInputMethodEvent letra;
            letra.setCommitString(gesto.texto);
            QApplication::sendEvent(form.focusWidget(), &letra);
        }
        break;
    case Tipo::Cola:
        QApplication::clipboard()->setText(gesto.texto);
        ::Tecla(form, Qt::Key_V, Qt::ControlModifier);
        break;
    case Tipo::Tecla:
        ::Tecla(form, static_cast<Qt::Key>(gesto.n));
        break;
    case Tipo::Tique: {
        const std::array timers = {&m_jogo.c().Timer1, &m_jogo.c().Timer2, &m_jogo.c().Timer3,
                                   &m_jogo.c().Timer4};
        if (const auto *timer = timers[static_cast<size_t>(gesto.n) - 1]; timer->Ligado()) {
            timer->Tique();
        }
        break;
    }
    case Tipo::Espera:
        m_jogo.maquina.agora += gesto.segundos;
        break;
    }
}

void Jogador::Cedeu()
{
    if (m_gesto == nullptr || m_gesto->dentro.empty() || m_interrompido) {
        return;
    }
    if (m_gesto->noPainel > 0 &&
        (!m_jogo.c().Picespere.Visible() || ++m_cedeuNoPainel < m_gesto->noPainel)) {
        return;
    }
    m_interrompido = true;
    Gesto *fora = m_gesto;
    NoPrograma(fora->dentro[0]);
    m_gesto = fora;
}

// ---- The same in the model

void Jogador::NoModelo(const Gesto &gesto)
{
    m_doModelo = &gesto;
    m_regras.respostas = gesto.respostas;
    if ((gesto.tipo == Tipo::Move || gesto.tipo == Tipo::Clica) &&
        !m_regras.Alcanca(gesto.alvo, gesto.real)) {
        m_regras.log << QStringLiteral("not reached: ") + Nome(gesto) + gesto.real.nome;
    }
    if (gesto.movido) {
        m_regras.Move(gesto.real);
    }
    switch (gesto.tipo) {
    case Tipo::Clica:
        m_regras.Clica(gesto.real, gesto.n == 2);
        break;
    case Tipo::Digita:
    case Tipo::Compoe:
    case Tipo::Cola:
        m_regras.Digita(gesto.texto);
        break;
    case Tipo::Tique:
        m_regras.Tique(gesto.n);
        break;
    case Tipo::Espera:
        m_regras.agora += gesto.segundos;
        break;
    default:
        break;
    }
}

void Jogador::CedeuNoModelo(bool noPainel)
{
    const Gesto *fora = m_doModelo;
    if (fora == nullptr || fora->dentro.empty() || !m_interrompido || m_interrompidoNoModelo ||
        noPainel != (fora->noPainel > 0)) {
        return;
    }
    m_interrompidoNoModelo = true;
    NoModelo(fora->dentro[0]);
    m_doModelo = fora;
    m_regras.respostas = fora->respostas;
}

Montado Jogador::Puzzle() const
{
    const Tabuleiro &t = m_jogo.d().tabuleiro;
    Montado montado;
    for (size_t n = 1; n <= kPalavras; ++n) {
        const RegistroItem &um = t.ItemPalavra[n];
        montado.itens[n].palavra = um.Palavra;
        montado.itens[n].sentido = um.Sentido;
        montado.itens[n].ponto = um.Ponto;
        montado.itens[n].dica = um.Dica;
    }
    montado.falhas = t.Partida - m_partidaDoTabuleiro - 1;
    return montado;
}

// ---- Both, and the comparison

void Jogador::Executa(Gesto gesto)
{
    if (!m_erro.isEmpty()) {
        return;
    }
    std::deque<double> sorte;
    AcasoMersenne acaso(++m_sementeDaSorte);
    for (int k = 0; k < 60; ++k) {
        sorte.push_back(kSortes[static_cast<size_t>(SorteiaNumero(acaso, kSortes.size()) - 1)]);
    }
    m_sorte->fila = m_regras.sorte = sorte;
    m_sorte->sorteios = m_regras.sorteios = 0;
    m_interrompido = m_interrompidoNoModelo = false;
    m_cedeuNoPainel = 0;
    NoPrograma(gesto);
    m_gesto = nullptr;
    for (int k = 0; k < 3 || (k < 50 && !m_jogo.form->Janela().isActiveWindow()); ++k) {
        QCoreApplication::processEvents();
    }
    NoModelo(gesto);
    m_doModelo = nullptr;
    Compara(Nome(gesto));
}

void Jogador::Compara(const QString &gesto)
{
    QStringList erros = {Diferencas(m_log, m_regras.log)};
    for (int k = 0; k < std::min(m_momentos.size(), m_regras.momentos.size()); ++k) {
        const QString nele = Diferencas(m_momentos[k], m_regras.momentos[k]);
        erros << (nele.isEmpty() ? nele : QStringLiteral(" while it waits:\n") + nele);
    }
    erros << Diferencas(Le(m_jogo), m_regras.Mostra());
    const std::array arquivos = {&m_regras.usadas, &m_regras.jogos, &m_regras.ranking};
    for (size_t k = 0; k < arquivos.size(); ++k) {
        const QString caminho = m_jogo.Caminho(QStringLiteral("Dados/") + kArquivos[int(k)]);
        QFile arquivo(caminho);
        const QByteArray bytes =
            arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
        if (std::exchange(m_bytes[k], bytes) != bytes) {
            m_lidos[k] = LeArquivo(caminho);
        }
        erros << Diferencas(m_lidos[k], *arquivos[k]);
    }
    const int partida = m_jogo.d().tabuleiro.Partida;
    if (partida == m_partidaDoTabuleiro && m_sorte->sorteios != m_regras.sorteios) {
        erros << QStringLiteral("  draws: %1, by the rules %2")
                     .arg(m_sorte->sorteios)
                     .arg(m_regras.sorteios);
    }
    if (m_interrompido != m_interrompidoNoModelo) {
        erros << QStringLiteral("  events ran where none should, or the other way round");
    }
    m_partidas += partida == m_partidaDoTabuleiro ? 0 : 1;
    m_partidaDoTabuleiro = partida;
    erros.removeAll(QString());
    if (!erros.isEmpty()) {
        m_erro = gesto + QStringLiteral(":\n") + erros.join(u'\n');
    }
    m_log.clear();
    m_momentos.clear();
    m_regras.log.clear();
    m_regras.momentos.clear();
}

QString Jogador::Comeca()
{
    m_jogo.Comeca();
    const bool ativa = QTest::qWaitForWindowActive(&m_jogo.form->Janela());
    m_regras.agora = m_jogo.maquina.agora;
    m_regras.Comeca();
    Compara(ativa ? QStringLiteral("the start") : QStringLiteral("not active"));
    return m_erro;
}

// ---- Acts as gestures

void Jogador::ClicaEm(const Alvo &alvo, int como, const Respostas &r, int com)
{
    Gesto gesto{Tipo::Clica, alvo, {}, como};
    gesto.respostas = r;
    Interrompe(gesto, com);
    Executa(gesto);
}

/// Lets something arrive while the gesture lets events run; 0: nothing does.
void Jogador::Interrompe(Gesto &gesto, int com)
{
    const Alvo botao{QStringLiteral("Lbt"), 1 + com / 8 % kPalavras};
    const QString letra(QChar(u'A' + com / 8 % 26));
    switch (com % 8) {
    case 1:
        gesto.dentro = {{Tipo::Clica, botao, {}}};
        break;
    case 2:
        gesto.dentro = {{Tipo::Clica, CasaAoAcaso(com / 8, false), {}}};
        break;
    case 3:
        gesto.dentro = {{Tipo::Digita, {}, letra}};
        break;
    case 4:
        gesto.dentro = {{Tipo::Clica, {QStringLiteral("Label3"), 0}, {}}};
        break;
    case 5:
        gesto.dentro = {{Tipo::Clica, {QStringLiteral("Label3"), 1}, {}}};
        break;
    case 6:
        gesto.dentro = {{Tipo::Clica, {QStringLiteral("Label4")}, {}}};
        break;
    case 7:
        gesto.dentro = {{Tipo::Tique, {}, {}, 1}};
        break;
    default:
        break;
    }
}

Alvo Jogador::CasaAoAcaso(int a, bool cruzamento) const
{
    QList<int> casas;
    for (int i = 1; i <= kCasas; ++i) {
        const Casa &casa = m_regras.casas[static_cast<size_t>(i)];
        if (casa.visivel && (!cruzamento || casa.sentido == u'M')) {
            casas << i;
        }
    }
    return {QStringLiteral("Text1"), casas[a % static_cast<int>(casas.size())]};
}

/// The letters that item `n` lacks from the cursor on, as the player types them.
QString Jogador::Falta(int n, int como) const
{
    QString letras;
    const QList<int> casas = m_regras.CasasDe(n);
    for (const int i : casas) {
        const Casa &casa = m_regras.casas[static_cast<size_t>(i)];
        letras += casa.fixa || !casa.texto.isEmpty() ? QString() : QString(casa.letra);
    }
    if (como % 5 == 4) {
        // A letter taken apart has its accent behind it.
        letras = letras.normalized(QString::NormalizationForm_D);
        letras.removeIf([](QChar letra) { return letra.category() == QChar::Mark_NonSpacing; });
    }
    return como % 5 == 0 ? letras.toLower() : letras;
}

void Jogador::Escreve(const QString &letras, int como, int interrompe)
{
    for (qsizetype k = 0; k < letras.size(); ++k) {
        Gesto gesto{como % 5 == 2   ? Tipo::Compoe
                    : como % 5 == 3 ? Tipo::Cola
                                    : Tipo::Digita,
                    {},
                    letras.mid(k, 1)};
        gesto.respostas.nome = kNomes[como / 5 % static_cast<int>(kNomes.size())];
        Interrompe(gesto, k + 1 == letras.size() ? interrompe : 0);
        Executa(gesto);
    }
}

void Jogador::ResolveItem(int n, int como, int interrompe)
{
    if (m_regras.itens[static_cast<size_t>(n)].resolvido || m_regras.Desistiu) {
        return;
    }
    Respostas r;
    r.nome = kNomes[como % static_cast<int>(kNomes.size())];
    ClicaEm({QStringLiteral("Lbt"), n}, 0, r);
    if (m_regras.item == n && m_regras.Focus != 0) {
        Escreve(Falta(n, como), como, interrompe);
    }
}

void Jogador::Menu(const Ato &ato)
{
    Respostas r;
    r.aceita = ato.c % 4 != 0;
    r.slot = 1 + ato.b % 40;
    r.slot = r.slot > 12 ? r.slot % 3 + 1 : r.slot;
    r.nome = kNomes[ato.c % static_cast<int>(kNomes.size())];
    r.mantemNome = ato.c % 5 == 1;
    r.desisteDoNome = ato.c % 9 == 2;
    Gesto gesto{Tipo::Clica, {QStringLiteral("Label3"), ato.a % 6}, {}};
    gesto.respostas = r;
    if (ato.b % 3 == 0 && (ato.a % 6 == 0 || ato.a % 6 == 2)) {
        Interrompe(gesto, ato.c);
        gesto.noPainel = 3 + ato.b / 3 % 60;
    }
    Executa(gesto);
}

/// Breaks a saved game in the file, or changes it to one that can still be opened.
void Jogador::Danifica(int slot, int como)
{
    const QString secao = QStringLiteral("jogo%1/").arg(slot);
    if (!m_regras.jogos.contains(secao + QStringLiteral("Nome"))) {
        return;
    }
    const std::array<std::pair<const char *, const char *>, 10> kEstragos = {
        {{"Ponto3", "x"},
         {"Sentido5", "L"},
         {"Tempo", "-1"},
         {"Palavra26", ""},
         {"ItemResolvido9", "?"},
         {"Ponto1", "572"},
         {"Tempo", "1e999"},
         {"Tempo", "90061,75"},
         {"Nome", "Vazio"},
         {"Nome", "  "}}};
    const auto &[chave, valor] = kEstragos[static_cast<size_t>(como % 10)];
    m_regras.jogos[secao + QString::fromLatin1(chave)] = QString::fromLatin1(valor);
    if (como % 10 < 7) {
        m_regras.danificados << slot;
    }
    Grava(m_jogo.Caminho(u"Dados/save.ini"), m_regras.jogos);
}

/// A ranking with times round that of this moment.
void Jogador::PreparaRanking(int como)
{
    const int t = static_cast<int>(m_regras.agora - m_regras.HoraInicio);
    for (int p = 1; p <= 5; ++p) {
        const QString secao = QStringLiteral("Ranking%1/").arg(p);
        const int tempo = std::max(0, t + p - 1 - como % 7);
        m_regras.ranking[secao + QStringLiteral("Nome")] = QString(QChar(u'A' + p));
        m_regras.ranking[secao + QStringLiteral("Tempo")] = QString::number(tempo);
    }
    Grava(m_jogo.Caminho(u"Dados/Ranking.dat"), m_regras.ranking);
}

void Jogador::Pairar(int a, int b)
{
    Executa({Tipo::Move, CasaAoAcaso(a, b % 2 == 1), {}});
    if (b % 8 < 6) {
        Executa({Tipo::Tique, {}, {}, 3});
    }
    if (b % 8 < 2) {
        Executa({Tipo::Tique, {}, {}, 2});
    }
}

QString Jogador::Faz(const Ato &ato)
{
    constexpr std::array kTeclas = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Backspace,
                                    Qt::Key_Left, Qt::Key_Delete,  Qt::Key_Return,
                                    Qt::Key_Home, Qt::Key_Escape};
    constexpr std::array kEsperas = {0.25, 1.0, 59.75, 600.0, 3599.5, 20000.0, 86400.0};
    const Alvo botao{QStringLiteral("Lbt"), 1 + ato.a % kPalavras};
    const QString falta = m_regras.item == 0 ? QString() : Falta(m_regras.item, ato.b);
    switch (ato.tipo) {
    case 0:
        Escreve(falta.left(1 + ato.a % 3), ato.b, 0);
        break;
    case 1:
        Executa({ato.b % 3 == 0   ? Tipo::Digita
                 : ato.b % 3 == 1 ? Tipo::Compoe
                                  : Tipo::Cola,
                 {},
                 ato.b % 3 == 0 ? kTextos[ato.a % kTextos.size()].left(1)
                                : kTextos[ato.a % kTextos.size()]});
        break;
    case 2:
        ResolveItem(botao.n, ato.b, ato.c);
        break;
    case 3:
        for (int k = ato.a % 14; k >= 0 && m_regras.Resolvidos() < kPalavras; --k) {
            int n = 1;
            while (m_regras.itens[static_cast<size_t>(n)].resolvido) {
                ++n;
            }
            ResolveItem(n, ato.b, 0);
        }
        break;
    case 4:
        Escreve(falta.isEmpty() ? falta : falta.chopped(1) + u'Ô', ato.b, 0);
        break;
    case 5:
        ClicaEm(CasaAoAcaso(ato.a, ato.c % 2 == 1), ato.b % 3);
        break;
    case 6:
        ClicaEm(botao, kDuplosNosBotoes && ato.b % 4 == 0 ? 2 : 0);
        break;
    case 7:
        Pairar(ato.a, ato.b);
        break;
    case 8:
        ato.a % 2 == 0 ? Executa({Tipo::Move, {QStringLiteral("Form1")}, {}})
                       : Executa({Tipo::Move, {QStringLiteral("Pic_q2")}, {}, 1 + ato.b % 570});
        break;
    case 9:
        Executa({Tipo::Tique, {}, {}, 1 + ato.a % 4});
        break;
    case 10:
        Executa({Tipo::Espera, {}, {}, 0, kEsperas[static_cast<size_t>(ato.a) % kEsperas.size()]});
        Executa({Tipo::Tique, {}, {}, 1});
        break;
    case 11: {
        Respostas r;
        r.aceita = ato.a % 6 != 0;
        r.nome = kNomes[ato.b % static_cast<int>(kNomes.size())];
        ClicaEm({QStringLiteral("Label4")}, 0, r, ato.c % 3 == 0 ? ato.c : 0);
        break;
    }
    case 12:
        Menu(ato);
        break;
    case 13:
        ClicaEm({ato.a % 2 == 0 ? QStringLiteral("Image2") : QStringLiteral("Image8")});
        break;
    case 14:
        Executa({Tipo::Tecla, {}, {}, kTeclas[static_cast<size_t>(ato.a) % kTeclas.size()]});
        break;
    case 15:
        Danifica(1 + ato.a % 3, ato.b);
        break;
    default:
        PreparaRanking(ato.a);
    }
    return m_erro;
}

std::vector<Ato> Sorteados(std::uint64_t semente)
{
    // Which act how often, in hundredths; solving comes last but one, so that games end.
    constexpr std::array kPesos = {10, 8, 8, 6, 4, 9, 6, 9, 4, 7, 4, 7, 9, 1, 3, 3, 2};
    AcasoMersenne acaso(semente);
    std::vector<Ato> atos;
    for (int k = 0; k < kAtosPorSessao; ++k) {
        int sorte = SorteiaNumero(acaso, 100);
        Ato ato;
        while (sorte > kPesos[static_cast<size_t>(ato.tipo)]) {
            sorte -= kPesos[static_cast<size_t>(ato.tipo++)];
        }
        ato.a = SorteiaNumero(acaso, 1000);
        ato.b = SorteiaNumero(acaso, 1000);
        ato.c = SorteiaNumero(acaso, 1000);
        atos.push_back(ato);
    }
    return atos;
}

} // namespace modelo
