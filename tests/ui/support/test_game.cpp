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

QString JogoDeTeste::FaltaNoEstado() const
{
    for (int i = 1; i <= kCelulas; ++i) {
        if (const QString falta = FaltaNaCelula(i); !falta.isEmpty()) {
            return QStringLiteral("cell %1: %2").arg(i).arg(falta);
        }
    }
    for (int n = 1; n <= kItens; ++n) {
        if (c().LB(n).Visible() != (n <= d().tabuleiro.QtdItens)) {
            return QStringLiteral("number %1 shows wrongly").arg(n);
        }
    }
    return d().estado.TudoResolvido ? QString() : FaltaNoCursor();
}

QString JogoDeTeste::FaltaNaCelula(int i) const
{
    const CelulaQuadrado &celula = d().Quadrado(i);
    const bool ocupada = d().Ocupada(i);
    const QString texto = c().Text1(i).Text();
    if (c().Text1(i).Visible() != ocupada || c().PicSombra.ExisteObjeto(i) != ocupada) {
        return QStringLiteral("box or shadow shows wrongly");
    }
    if (!ocupada) {
        return {};
    }
    if (celula.Itens.isEmpty() != d().valores.Desistiu) {
        return QStringLiteral("items \"%1\"").arg(celula.Itens);
    }
    if (celula.Fixa && texto.size() != 1) {
        return QStringLiteral("fixed with \"%1\"").arg(texto);
    }
    const QColor fundo = c().Text1(i).BackColor();
    if (celula.Fixa && !d().valores.Desistiu && fundo != kCorFixa) {
        return QStringLiteral("fixed with a wrong ground");
    }
    const ItensDaCelula itens = LeItens(celula.Itens);
    const bool selecionada = d().estado.item != 0 && (itens.primeiro == d().estado.item ||
                                                      itens.segundo == d().estado.item);
    if (!celula.Fixa && !selecionada && (!texto.isEmpty() || fundo != kCorLivre)) {
        return QStringLiteral("free and not selected, with \"%1\"").arg(texto);
    }
    return {};
}

QString JogoDeTeste::FaltaNoCursor() const
{
    const int cursor = d().estado.Focus;
    if (cursor == 0) {
        return c().Picture1.TemFoco() ? QString()
                                      : QStringLiteral("no cursor, but the focus on the board");
    }
    const RegistroItem &item = d().Item(d().estado.item);
    bool antes = true;
    bool achado = false;
    for (int k = 0; k < item.Palavra.size(); ++k) {
        const int i = CelulaDaLetra(item, k);
        antes = antes && i != cursor;
        achado = achado || i == cursor;
        const bool vazia = c().Text1(i).Text().isEmpty();
        if (!d().Quadrado(i).Fixa && vazia == antes) {
            return QStringLiteral("cell %1 is wrong for the cursor at %2").arg(i).arg(cursor);
        }
    }
    if (!achado || d().Quadrado(cursor).Fixa) {
        return QStringLiteral("cursor at %1, not a free cell of item %2")
            .arg(cursor)
            .arg(d().estado.item);
    }
    return c().Text1(cursor).TemFoco() ? QString()
                                       : QStringLiteral("the cell of the cursor lacks the focus");
}
