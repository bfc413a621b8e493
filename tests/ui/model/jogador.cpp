#include "tests/ui/model/jogador.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace modelo {

namespace {

using Tipo = Gesto::Tipo;

/// Timers of the program run down when the player says so; what Qt itself times goes on.
constexpr int kMenorIntervaloMs = 50;
/// Places of the form with nothing on them, and with the strip that drags it, in pixels.
constexpr QPoint kForaDeTudo(560, 420), kNoTitulo(300, 15);
/// Draws on both sides of each limit that counts.
constexpr std::array kSortes = {0.0, 0.475, 0.485, 0.495, 0.505, 0.575, 0.585, 0.595, 0.605, 0.99};
constexpr int kSortesPorGesto = 60;
const QStringList kArquivos = {u"jf.dat"_s, u"save.ini"_s, u"Ranking.dat"_s};

QString Nome(const Gesto &gesto)
{
    static const QStringList kTipos =
        u"move to,click on,type,compose,paste,key,tick,wait"_s.split(u',');
    const QString nome = kTipos[static_cast<int>(gesto.tipo)] + u' ' + gesto.alvo.nome + u' ' +
                         QString::number(gesto.alvo.n) + u' ' + QString::number(gesto.n) + u' ' +
                         gesto.texto;
    return gesto.dentro.empty() ? nome : nome + u", meanwhile "_s + Nome(gesto.dentro[0]);
}

QPoint MeioDe(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

const QByteArray &Banco()
{
    static const QByteArray banco = [] {
        QByteArray bytes = BancoInventado(450);
        const QByteArray com = QString(u"ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜÇ"_s).toLatin1();
        for (int k = 0, vez = 0; k < bytes.size(); ++k) {
            const auto qual = (vez * 7 + k) % com.size();
            const bool troca = k % 76 < 15 && bytes[k] == "AEIOUAEIOUAOAEIOUUC"[qual];
            if (troca && ++vez % 3 == 0) bytes[k] = com[qual];
        }
        return bytes;
    }();
    return banco;
}

/// Chance as one gesture meets it: first what the test has laid out, behind it a stream of its own
/// for the builder.
class Jogador::Sorte final : public Acaso
{
public:
    explicit Sorte(std::uint64_t semente) : m_resto(semente) {}
    double Uniforme() override
    {
        if (++sorteios > static_cast<int>(fila.size())) return m_resto.Uniforme();
        return fila[static_cast<size_t>(sorteios) - 1];
    }
    std::deque<double> fila;
    int sorteios = 0;

private:
    AcasoMersenne m_resto;
};

Jogador::Jogador(std::uint64_t semente)
    : m_jogo(semente, Banco()), m_sementeDaSorte(semente * 1'000'003)
{
    Ambiente &ambiente = m_jogo.d().ambiente;
    auto sorte = std::make_unique<Sorte>(semente);
    m_sorte = sorte.get();
    ambiente.acaso = std::move(sorte);
    ambiente.tocaArquivo = [this](QString arquivo) {
        const QString pasta = m_jogo.valores.PastaPrograma + u'/';
        m_log << u"som "_s + (arquivo.startsWith(pasta) ? arquivo.mid(pasta.size()) : arquivo);
    };
    ambiente.mensagem = [this](const PedidoMensagem &pedido) { return Responde(pedido); };
    ambiente.terminaProcesso = [this] { m_log << u"fim"_s; };
    m_jogo.maquina.aoDeixarEventos = [this] { Cedeu(); };
    m_regras.aoCeder = [this] { CedeuNoModelo(false); };
    m_regras.aoCederNoPainel = [this] { CedeuNoModelo(true); };
    m_regras.montado = [this](auto &itens) { return Puzzle(itens); };
    qApp->installEventFilter(this);
}

Jogador::~Jogador()
{
    qApp->removeEventFilter(this);
}

QString Jogador::Comeca()
{
    m_jogo.Comeca();
    QTest::mouseMove(m_jogo.form->Janela().windowHandle(), kNoTitulo);
    const bool ativa = QTest::qWaitForWindowActive(&m_jogo.form->Janela());
    // What is painted is nobody's business here.
    m_jogo.form->Janela().setUpdatesEnabled(false);
    m_regras.agora = m_jogo.maquina.agora;
    m_regras.NovoJogo();
    Compara(ativa ? u"the start"_s : u"not active"_s);
    return m_erro;
}

// ---- Messages and dialogs

Resposta Jogador::Responde(const PedidoMensagem &pedido)
{
    static const QStringList kBotoes = {u"Ok"_s, u"OkCancelar"_s, u"SimNao"_s};
    m_log << kBotoes[static_cast<int>(pedido.botoes)] +
                 (pedido.icone == Icone::Pergunta ? u"? "_s : u" "_s) + pedido.texto;
    m_momentos << Le(m_jogo);
    m_jogo.maquina.agora += kSegundosDeMensagem;
    const bool aceita = m_gesto == nullptr || m_gesto->respostas.aceita;
    if (pedido.botoes == Botoes::SimNao) return aceita ? Resposta::Sim : Resposta::Nao;
    return aceita || pedido.botoes == Botoes::Ok ? Resposta::Ok : Resposta::Cancelar;
}

bool Jogador::eventFilter(QObject *alvo, QEvent *evento)
{
    const auto *timer = qobject_cast<QTimer *>(alvo);
    if (evento->type() == QEvent::Timer && timer != nullptr)
        return timer->interval() >= kMenorIntervaloMs;
    const bool mostra = evento->type() == QEvent::Show;
    if (!mostra && evento->type() != QEvent::Hide) return false;
    auto *form = dynamic_cast<toolkit::Form *>(alvo);
    if (form == nullptr || !form->isModal()) return false;
    if (mostra) {
        QTimer::singleShot(0, form, [this, form] { Encena(*form); });
    } else {
        // A window manager's duty: the owner of a window that has gone is active again.
        QWidget *dona = form->parentWidget();
        QTimer::singleShot(0, dona, [dona] {
            if (dona->isVisible()) dona->activateWindow();
        });
    }
    return false;
}

void Jogador::Encena(toolkit::Form &form)
{
    QCoreApplication::processEvents();
    const QPointer<toolkit::Form> viva(&form);
    const auto legenda = [&form](const char16_t *qual, int n = -1) {
        return forms::Acha<toolkit::Label>(form, qual, n).Caption();
    };
    const QString nome = form.objectName();
    QStringList linhas;
    if (nome == u"FrmCarregar" || nome == u"FrmSalvar")
        for (int n = 1; n <= 10; ++n)
            linhas << legenda(u"LbSave", n);
    for (int p = 1; nome == u"FrmHanking" && p <= 5; ++p)
        linhas << legenda(u"Label1", p) + u' ' + legenda(u"Label2", p) + u' ' +
                      legenda(u"Label3", p);
    const QLineEdit *campo = form.findChild<QLineEdit *>();
    if (nome == u"FrmSalvar2")
        linhas << legenda(u"Label3") + u' ' + campo->text() + u' ' + campo->selectedText();
    m_log << nome + (linhas.isEmpty() ? QString() : u' ' + linhas.join(u'|'));
    m_momentos << Le(m_jogo);
    m_jogo.maquina.agora += kSegundosDeDialogo;
    NoDialogo(form, m_gesto == nullptr ? Respostas() : m_gesto->respostas);
    if (viva && viva->isVisible()) {
        m_log << u"left open: "_s + nome;
        viva->Unload();
    }
}

void Jogador::NoDialogo(toolkit::Form &form, const Respostas &r)
{
    const QPointer<toolkit::Form> viva(&form);
    const QString nome = form.objectName();
    if ((nome == u"FrmCarregar" || nome == u"FrmSalvar") && r.slot <= 11) {
        ClicaNoDialogo(forms::Acha<toolkit::Label>(form, u"LbSave", r.slot));
        if (viva && viva->isVisible())
            ClicaNoDialogo(forms::Acha<toolkit::Label>(form, u"LbSave", 11));
    } else if (nome == u"FrmSeuNome" || (nome == u"FrmSalvar2" && !r.desisteDoNome)) {
        if (!r.mantemNome || nome == u"FrmSeuNome") {
            ::Tecla(form, Qt::Key_Delete);
            ::Digita(form, r.nome);
        }
        ::Tecla(form, Qt::Key_Return);
    } else if (nome == u"FrmHanking" || nome == u"FrmSobre") {
        nome == u"FrmHanking" ? ::Tecla(form, Qt::Key_Escape) : form.Unload();
    } else {
        ClicaNoDialogo(forms::Acha<toolkit::Image>(form, u"Image1"));
    }
}

void Jogador::ClicaNoDialogo(const toolkit::Control &controle)
{
    m_mouse = MeioDe(controle.Widget());
    ::Clica(controle);
}

// ---- Gestures in the program

void Jogador::Aponta(Gesto &gesto)
{
    toolkit::Form &form = m_jogo.form->Janela();
    QPoint lugar = form.mapToGlobal(kForaDeTudo);
    if (gesto.alvo.nome == u"Pic_q2") {
        while (m_regras.C(gesto.n).visivel)
            gesto.n = gesto.n % kCasas + 1;
        lugar = MeioDe(m_jogo.c().Text1(gesto.n).Widget());
    } else if (gesto.alvo.nome != u"Form1") {
        lugar = MeioDe(form.Procura(gesto.alvo.nome, gesto.alvo.n)->Widget());
    }
    gesto.real = ControleEm(form, form.childAt(form.mapFromGlobal(lugar)));
    gesto.movido = std::exchange(m_mouse, lugar) != lugar;
    if (gesto.movido) QTest::mouseMove(form.windowHandle(), form.mapFromGlobal(lugar));
}

void Jogador::NoPrograma(Gesto &gesto)
{
    toolkit::Form &form = m_jogo.form->Janela();
    const forms::ControlesForm1 &c = m_jogo.c();
    if (gesto.tipo == Tipo::Move || gesto.tipo == Tipo::Clica) Aponta(gesto);
    const QPoint lugar = form.mapFromGlobal(m_mouse);
    m_gesto = &gesto;
    if (gesto.tipo == Tipo::Clica && gesto.n == 2) {
        QTest::mouseDClick(form.windowHandle(), Qt::LeftButton, {}, lugar);
    } else if (gesto.tipo == Tipo::Clica) {
        const auto botao = gesto.n == 1 ? Qt::MiddleButton : Qt::LeftButton;
        QTest::mousePress(form.windowHandle(), botao, {}, lugar);
        for (size_t k = 0; k < 6; ++k)
            if ((c.Label3[k]->BorderStyle() == 1) !=
                (gesto.real.nome == u"Label3" && gesto.real.n == static_cast<int>(k)))
                m_log << u"the frame round the entries"_s;
        QTest::mouseRelease(form.windowHandle(), botao, {}, lugar);
    } else if (gesto.tipo == Tipo::Compoe) {
        QInputMethodEvent antes(u"´"_s, {}), letra;
        letra.setCommitString(gesto.texto);
        QApplication::sendEvent(form.focusWidget(), &antes);
        QApplication::sendEvent(form.focusWidget(), &letra);
    } else if (gesto.tipo == Tipo::Cola) {
        QApplication::clipboard()->setText(gesto.texto);
        ::Tecla(form, Qt::Key_V, Qt::ControlModifier);
    } else if (gesto.tipo == Tipo::Tique) {
        const std::array timers = {&c.Timer1, &c.Timer2, &c.Timer3, &c.Timer4};
        const toolkit::Timer *timer = timers[static_cast<size_t>(gesto.n) - 1];
        if (timer->Ligado()) timer->Tique();
    }
    if (gesto.tipo == Tipo::Digita) ::Digita(form, gesto.texto);
    if (gesto.tipo == Tipo::Tecla) ::Tecla(form, static_cast<Qt::Key>(gesto.n));
    m_jogo.maquina.agora += gesto.segundos;
}

void Jogador::Cedeu()
{
    if (m_gesto == nullptr || m_gesto->dentro.empty() || m_interrompido) return;
    const int quando = m_gesto->noPainel;
    if (quando > 0 && (!m_jogo.c().Picespere.Visible() || ++m_cedeuNoPainel < quando)) return;
    m_interrompido = true;
    // What comes in the middle of a click is no second half of a double one.
    QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;
    Gesto *fora = m_gesto;
    NoPrograma(fora->dentro[0]);
    m_gesto = fora;
}

// ---- The same in the model

void Jogador::NoModelo(const Gesto &gesto)
{
    m_doModelo = &gesto;
    m_regras.respostas = gesto.respostas;
    const bool mouse = gesto.tipo == Tipo::Move || gesto.tipo == Tipo::Clica;
    if (mouse && !m_regras.Alcanca(gesto.alvo, gesto.real))
        m_regras.log << u"the mouse meets "_s + gesto.real.nome;
    if (gesto.movido) m_regras.Move(gesto.real);
    if (gesto.tipo == Tipo::Clica) m_regras.Clica(gesto.real, gesto.n == 2);
    if (gesto.tipo == Tipo::Tique) m_regras.Tique(static_cast<size_t>(gesto.n));
    m_regras.Digita(gesto.texto);
    m_regras.agora += gesto.segundos;
}

void Jogador::CedeuNoModelo(bool noPainel)
{
    const Gesto *fora = m_doModelo;
    if (fora == nullptr || fora->dentro.empty() || !m_interrompido || m_interrompidoNoModelo ||
        noPainel != (fora->noPainel > 0))
        return;
    m_interrompidoNoModelo = true;
    NoModelo(fora->dentro[0]);
    m_doModelo = fora;
    m_regras.respostas = fora->respostas;
}

int Jogador::Puzzle(std::array<Item, kPalavras + 1> &itens) const
{
    for (size_t n = 1; n <= kPalavras; ++n) {
        const RegistroItem &um = m_jogo.d().tabuleiro.ItemPalavra[n];
        itens[n] = {um.Palavra, um.Dica, um.Sentido, um.Ponto};
    }
    return m_jogo.d().tabuleiro.Partida - m_partidaDoTabuleiro - 1;
}

// ---- Both, and the comparison

void Jogador::Executa(Gesto gesto)
{
    if (!m_erro.isEmpty()) return;
    AcasoMersenne acaso(++m_sementeDaSorte);
    m_sorte->fila.clear();
    for (int k = 0; k < kSortesPorGesto; ++k)
        m_sorte->fila.push_back(
            kSortes[static_cast<size_t>(SorteiaNumero(acaso, kSortes.size())) - 1]);
    m_regras.sorte = m_sorte->fila;
    m_sorte->sorteios = m_regras.sorteios = m_cedeuNoPainel = 0;
    m_interrompido = m_interrompidoNoModelo = false;
    NoPrograma(gesto);
    for (int k = 0; k < 3 || (k < 50 && !m_jogo.form->Janela().isActiveWindow()); ++k)
        QCoreApplication::processEvents();
    m_gesto = nullptr;
    NoModelo(gesto);
    m_doModelo = nullptr;
    Compara(Nome(gesto));
}

void Jogador::Compara(const QString &gesto)
{
    QStringList erros = {Diferencas(m_log, m_regras.log)};
    for (int k = 0; k < std::min(m_momentos.size(), m_regras.momentos.size()); ++k)
        erros << Diferencas(m_momentos[k], m_regras.momentos[k]);
    erros << Diferencas(Le(m_jogo), m_regras.Mostra());
    const std::array arquivos = {&m_regras.usadas, &m_regras.jogos, &m_regras.ranking};
    for (size_t k = 0; k < arquivos.size(); ++k) {
        QFile arquivo(m_jogo.Caminho(u"Dados/"_s + kArquivos[static_cast<int>(k)]));
        const auto bytes = arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
        if (std::exchange(m_bytes[k], bytes) != bytes) m_lidos[k] = LeArquivo(bytes);
        erros << Diferencas(m_lidos[k], *arquivos[k]);
    }
    const bool outro =
        std::exchange(m_partidaDoTabuleiro, m_jogo.d().tabuleiro.Partida) != m_partidaDoTabuleiro;
    m_partidas += outro ? 1 : 0;
    if (!outro && m_sorte->sorteios != m_regras.sorteios) erros << u"another number of draws"_s;
    if (m_interrompido != m_interrompidoNoModelo) erros << u"events run at another moment"_s;
    erros.removeAll(QString());
    if (!erros.isEmpty()) m_erro = gesto + u'\n' + erros.join(u'\n');
    for (QStringList *log : {&m_log, &m_regras.log})
        log->clear();
    m_momentos.clear();
    m_regras.momentos.clear();
}

} // namespace modelo
