#include "tests/ui/support/game_fixture.h"

#include "app/splash.h"
#include "bank/codepage.h"
#include "bank/question_bank.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTest>

namespace {

constexpr int kPalavrasDoBanco = 700;

/// A word of syllables, 4 to 11 letters.
QString PalavraInventada(AcasoMersenne &acaso)
{
    static const QString consoantes = QStringLiteral("BCDFGLMNPRSTVÇ");
    static const QString vogais = QStringLiteral("AAEEIIOOUÃÉÔ");
    QString palavra;
    const int tamanho = 3 + SorteiaNumero(acaso, 8);
    while (palavra.size() < tamanho) {
        const QString &letras = palavra.size() % 2 == 0 ? consoantes : vogais;
        palavra += letras[SorteiaNumero(acaso, static_cast<int>(letras.size())) - 1];
    }
    return palavra;
}

} // namespace

double AcasoDeTeste::Uniforme()
{
    if (proximos.empty()) {
        return m_gerador->Uniforme();
    }
    const double u = proximos.front();
    proximos.pop_front();
    return u;
}

JogoDeTeste::JogoDeTeste(int dpi) : m_registro(dpi)
{
    FixaValores(m_valores, m_pasta.path());
    QDir().mkpath(m_valores.PastaDados);
    GravaArquivo(Caminho(m_valores.PastaPrograma, kArquivoBanco), BancoDeTeste());
    m_valores.registro = &m_registro.Acesso();
    FazAmbiente();
    m_principal = std::make_unique<Form1>(m_valores, m_ambiente, dpi);
    m_principal->Show();
    if (!QTest::qWaitFor([this] { return C().Timer1.Ligado() && Janela().isActiveWindow(); })) {
        qFatal("the game does not start");
    }
    sons.clear();
}

JogoDeTeste::~JogoDeTeste() = default;

void JogoDeTeste::FazAmbiente()
{
    auto acaso = std::make_unique<AcasoDeTeste>();
    m_acaso = acaso.get();
    m_ambiente.acaso = std::move(acaso);
    m_ambiente.Agora = [this] { return agora; };
    m_ambiente.tocaArquivo = [this](const QString &arquivo) {
        sons << QFileInfo(arquivo).fileName();
    };
    m_ambiente.mensagem = [this](const PedidoMensagem &pedido) {
        mensagens << pedido.texto;
        if (naMensagem) {
            naMensagem();
        }
        Resposta resposta = pedido.botoes == Botoes::SimNao ? Resposta::Sim : Resposta::Ok;
        if (!respostas.empty()) {
            resposta = respostas.front();
            respostas.pop_front();
        }
        return resposta;
    };
    m_ambiente.abrePagina = [this](const QString &endereco) { paginas << endereco; };
    m_ambiente.deixaEventos = [this] {
        if (aoDeixarEventos) {
            aoDeixarEventos();
        }
        QCoreApplication::processEvents();
    };
    m_ambiente.dorme = [](int) {};
    m_ambiente.terminaProcesso = [this] { ++terminos; };
}

void JogoDeTeste::Menu(int k)
{
    Clica(*C().Label3[static_cast<size_t>(k)]);
}

QString JogoDeTeste::Relogio()
{
    C().Timer1.Tique();
    return C().Label2.Caption();
}

void JogoDeTeste::Resolve(int n)
{
    if (Jogo().estado.item != n) {
        Clica(C().Lbt(n));
    }
    DigitaSelecionado();
}

void JogoDeTeste::DigitaSelecionado()
{
    const RegistroItem item = Jogo().Item(Jogo().estado.item);
    QString falta;
    for (int k = 0; k < item.Palavra.size(); ++k) {
        if (!Jogo().Quadrado(CelulaDaLetra(item, k)).Fixa) {
            falta += item.Palavra[k];
        }
    }
    Digita(Janela(), falta);
}

QByteArray BancoDeTeste()
{
    AcasoMersenne acaso(7);
    QByteArray bytes;
    QSet<QString> feitas;
    while (feitas.size() < kPalavrasDoBanco) {
        const QString palavra = PalavraInventada(acaso);
        if (!feitas.contains(palavra)) {
            feitas.insert(palavra);
            bytes += ParaCodePage(palavra).leftJustified(kBytesPalavra, ' ');
            bytes += ParaCodePage(QStringLiteral("Dica de %1").arg(palavra))
                         .leftJustified(kBytesRegistro - kBytesPalavra, ' ');
        }
    }
    return bytes;
}

void GravaArquivo(const QString &caminho, const QByteArray &bytes)
{
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(caminho));
    }
}

QByteArray LeArquivo(const QString &caminho)
{
    QFile arquivo(caminho);
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("(missing)");
}
