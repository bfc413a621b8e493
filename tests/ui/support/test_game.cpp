#include "tests/ui/support/test_game.h"

#include "core/files/codepage.h"
#include "ui/main_form/splash.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Shares of word lengths 3 to 10, in hundredths.
constexpr std::array kPartes = {4, 12, 20, 22, 18, 12, 7, 5};

QString PalavraInventada(Acaso &acaso)
{
    constexpr QStringView kVogais = u"AEIOUAEOÃÉ";
    constexpr QStringView kConsoantes = u"BCDFGLMNPRSTVÇRSTNL";
    int sorte = SorteiaNumero(acaso, 100);
    size_t letras = 0;
    while (letras < kPartes.size() && sorte > kPartes[letras])
        sorte -= kPartes[letras++];
    QString palavra;
    for (size_t k = 0; k < letras + 3; ++k) {
        const QStringView fonte = k % 2 == 0 ? kConsoantes : kVogais;
        palavra += fonte[SorteiaNumero(acaso, static_cast<int>(fonte.size())) - 1];
    }
    return palavra;
}

QWindow *JanelaDe(const toolkit::Control &controle)
{
    return controle.Widget()->window()->windowHandle();
}

QPoint MeioNaJanela(const toolkit::Control &controle)
{
    const QWidget *widget = controle.Widget();
    return widget->mapTo(widget->window(), widget->rect().center());
}

} // namespace

void Clica(const toolkit::Control &controle)
{
    QTest::mouseClick(JanelaDe(controle), Qt::LeftButton, {}, MeioNaJanela(controle));
}

void Clica(toolkit::Form &form, QPoint lugar)
{
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, lugar);
}

void Paira(const toolkit::Control &controle)
{
    QTest::mouseMove(JanelaDe(controle), MeioNaJanela(controle));
}

void Digita(toolkit::Form &form, const QString &texto)
{
    for (const QChar letra : texto)
        QTest::sendKeyEvent(QTest::Click, form.windowHandle(),
                            static_cast<Qt::Key>(letra.toUpper().unicode()), QString(letra), {});
}

void Tecla(toolkit::Form &form, Qt::Key tecla, Qt::KeyboardModifiers com)
{
    QTest::keyClick(form.windowHandle(), tecla, com);
}

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
        botoes = pedido.botoes;
        if (respostas.empty()) return botoes == Botoes::SimNao ? Resposta::Sim : Resposta::Ok;
        const Resposta resposta = respostas.front();
        respostas.pop_front();
        return resposta;
    };
    ambiente.abrePagina = [this](const QString &endereco) { paginas << endereco; };
    ambiente.deixaEventos = [this] {
        if (aoDeixarEventos) aoDeixarEventos();
        QCoreApplication::processEvents();
    };
    ambiente.dorme = [](int) {};
    ambiente.terminaProcesso = [this] { ++fins; };
    return ambiente;
}

QByteArray BancoInventado(int quantas)
{
    AcasoMersenne acaso(1);
    QStringList palavras;
    while (palavras.size() < quantas) {
        const QString palavra = PalavraInventada(acaso);
        if (!palavras.contains(palavra)) palavras << palavra;
    }
    QByteArray bytes;
    for (const QString &palavra : palavras)
        bytes += ParaCodePage(palavra).leftJustified(kBytesPalavra, ' ') +
                 ParaCodePage(u"Dica de "_s + palavra).leftJustified(kBytesDica, ' ') + ' ';
    return bytes;
}

JogoDeTeste::JogoDeTeste(std::uint64_t semente, const QByteArray &banco, int dpi)
    : m_registro(dpi), m_ambiente(maquina.Seam(semente))
{
    FixaValores(valores, pasta.path());
    valores.registro = &m_registro.Acesso();
    QDir(pasta.path()).mkdir(u"Dados"_s);
    QFile arquivo(Caminho(kArquivoBanco));
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(banco) < 0)
        qFatal("the bank cannot be written");
    arquivo.close();
    form = std::make_unique<Form1>(valores, m_ambiente, dpi);
}

QString JogoDeTeste::Caminho(QStringView nome) const
{
    return QDir(pasta.path()).filePath(nome.toString());
}

void JogoDeTeste::Comeca()
{
    form->Show();
    const bool pronto =
        QTest::qWaitFor([this] { return c().Timer1.Ligado() || !maquina.mensagens.isEmpty(); });
    if (!pronto || !QTest::qWaitForWindowActive(&form->Janela())) qFatal("no game begins");
}

QString JogoDeTeste::LetrasLivres(int n) const
{
    const RegistroItem &item = d().Item(n);
    QString letras;
    for (int k = 0; k < item.Palavra.size(); ++k)
        if (!d().Quadrado(CelulaDaLetra(item, k)).Fixa) letras += item.Palavra[k];
    return letras;
}

void JogoDeTeste::Resolve(int n) const
{
    Seleciona(n);
    Digita(LetrasLivres(n));
}

void JogoDeTeste::ResolveAte(int quantos) const
{
    while (ContaResolvidos(d().tabuleiro) < quantos)
        Resolve(PrimeiroAberto(d().tabuleiro));
}
