#include "tests/ui/support/test_game.h"

#include "core/files/codepage.h"
#include "core/records/ranking_table.h"
#include "ui/main_form/splash.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {

/// Shares of word lengths 3 to 10, in hundredths.
constexpr std::array kPartes = {4, 12, 20, 22, 18, 12, 7, 5};

QString PalavraInventada(Acaso &acaso)
{
    constexpr QStringView kVogais = u"AEIOUAEOÃÉ";
    constexpr QStringView kConsoantes = u"BCDFGLMNPRSTVÇRSTNL";
    int sorte = SorteiaNumero(acaso, 100);
    int letras = 3;
    for (const int parte : kPartes) {
        if (sorte <= parte) {
            break;
        }
        sorte -= parte;
        ++letras;
    }
    QString palavra;
    for (int k = 0; k < letras; ++k) {
        const QStringView fonte = k % 2 == 0 ? kConsoantes : kVogais;
        palavra += fonte[SorteiaNumero(acaso, static_cast<int>(fonte.size())) - 1];
    }
    return palavra;
}

} // namespace

Ambiente MaquinaDeTeste::Seam(std::uint64_t semente)
{
    Ambiente ambiente;
    ambiente.Agora = [this] { return agora; };
    ambiente.acaso = std::make_unique<AcasoMersenne>(semente);
    ambiente.tocaArquivo = [this](const QString &arquivo) {
        sons << QFileInfo(arquivo).fileName();
    };
    ambiente.mensagem = [this](const PedidoMensagem &pedido) {
        mensagens << pedido.texto;
        if (naMensagem) {
            naMensagem();
        }
        if (!respostas.empty()) {
            const Resposta resposta = respostas.front();
            respostas.pop_front();
            return resposta;
        }
        return pedido.botoes == Botoes::SimNao ? Resposta::Sim : Resposta::Ok;
    };
    ambiente.abrePagina = [this](const QString &endereco) { paginas << endereco; };
    ambiente.deixaEventos = [this] {
        if (aoDeixarEventos) {
            aoDeixarEventos();
        }
        QCoreApplication::processEvents();
    };
    ambiente.dorme = [](int) {};
    ambiente.terminaProcesso = [this] { ++fins; };
    return ambiente;
}

QByteArray BancoInventado(int quantas, std::uint64_t semente)
{
    AcasoMersenne acaso(semente);
    QStringList palavras;
    while (palavras.size() < quantas) {
        const QString palavra = PalavraInventada(acaso);
        if (!palavras.contains(palavra)) {
            palavras << palavra;
        }
    }
    QByteArray bytes;
    for (const QString &palavra : palavras) {
        bytes += ParaCodePage(palavra).leftJustified(kBytesPalavra, ' ');
        bytes +=
            ParaCodePage(QStringLiteral("Dica de ") + palavra).leftJustified(kBytesDica, ' ') + ' ';
    }
    return bytes;
}

JogoDeTeste::JogoDeTeste(std::uint64_t semente, const QByteArray &banco, int dpi)
    : m_registro(dpi), m_ambiente(maquina.Seam(semente))
{
    FixaValores(valores, pasta.path());
    valores.registro = &m_registro.Acesso();
    QDir(pasta.path()).mkdir(QStringLiteral("Dados"));
    QFile arquivo(Caminho(kArquivoBanco));
    if (arquivo.open(QIODevice::WriteOnly)) {
        arquivo.write(banco);
    }
    arquivo.close();
    form = std::make_unique<Form1>(valores, m_ambiente, dpi);
}

QString JogoDeTeste::Caminho(QStringView nome) const
{
    return QDir(pasta.path()).filePath(nome.toString());
}

void JogoDeTeste::EncheRanking() const
{
    for (int p = 1; p <= kLugares; ++p) {
        GravaLugar(Caminho(u"Dados/Ranking.dat"), p, QStringLiteral("Ana"), 0);
    }
}

void JogoDeTeste::Comeca()
{
    form->Show();
    const bool pronto =
        QTest::qWaitFor([this] { return c().Timer1.Ligado() || !maquina.mensagens.isEmpty(); });
    Q_ASSERT(pronto);
    QCoreApplication::processEvents();
}

void JogoDeTeste::Clica(const toolkit::Control &controle, Qt::MouseButton botao)
{
    QTest::mouseClick(controle.Widget(), botao);
}

void JogoDeTeste::Paira(const toolkit::Control &controle)
{
    QMouseEvent movimento(QEvent::MouseMove, QPointF(2, 2),
                          controle.Widget()->mapToGlobal(QPointF(2, 2)), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
    QApplication::sendEvent(controle.Widget(), &movimento);
}

void JogoDeTeste::Digita(const QString &texto)
{
    for (const QChar letra : texto) {
        if (QWidget *foco = form->Janela().focusWidget()) {
            // QTest's own key clicks know no letter beyond ASCII.
            for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent evento(tipo, Qt::Key_unknown, Qt::NoModifier, letra);
                QApplication::sendEvent(foco, &evento);
            }
        }
    }
}

void JogoDeTeste::Tecla(Qt::Key tecla, Qt::KeyboardModifiers mais)
{
    if (QWidget *foco = form->Janela().focusWidget()) {
        QTest::keyClick(foco, tecla, mais);
    }
}

void JogoDeTeste::Cola(const QString &texto)
{
    QApplication::clipboard()->setText(texto);
    Tecla(Qt::Key_V, Qt::ControlModifier);
}

void JogoDeTeste::Seleciona(int n)
{
    Clica(c().Lbt(n));
}

QString JogoDeTeste::LetrasLivres(int n) const
{
    const RegistroItem &item = d().Item(n);
    QString letras;
    for (int k = 0; k < item.Palavra.size(); ++k) {
        letras += d().Quadrado(CelulaDaLetra(item, k)).Fixa ? QString() : QString(item.Palavra[k]);
    }
    return letras;
}

void JogoDeTeste::Resolve(int n)
{
    Seleciona(n);
    Digita(LetrasLivres(n));
}

void JogoDeTeste::ResolveAte(int quantos)
{
    while (ContaResolvidos(d().tabuleiro) < quantos) {
        Resolve(PrimeiroAberto(d().tabuleiro));
    }
}
