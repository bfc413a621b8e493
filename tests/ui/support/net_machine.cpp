#include "tests/ui/support/net_machine.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

namespace {

/// No wait of a test takes this long unless it never ends by itself.
constexpr qint64 kPresoMs = 30'000;
constexpr double kMuitoTempoS = 1'000;

} // namespace

MaquinaDeRede::MaquinaDeRede()
{
    QDir(m_pasta.path()).mkpath(QStringLiteral("temp"));
    ambiente.Agora = [this] { return agora; };
    ambiente.deixaEventos = [this] { DaVolta(); };
    ambiente.mensagem = [this](const PedidoMensagem &pedido) {
        mensagens.push_back(pedido);
        return resposta;
    };
    ambiente.abrePagina = [this](const QString &endereco) { paginas << endereco; };
    QObject::connect(&m_relogio, &QTimer::timeout, &m_relogio, [this] { ++tiques; });
    m_relogio.start(1);
    m_desdeOInicio.start();
}

void MaquinaDeRede::DaVolta()
{
    QCoreApplication::processEvents();
    agora += passo;
    if (aCadaVolta) {
        aCadaVolta();
    }
    if (m_desdeOInicio.elapsed() > kPresoMs) {
        preso = true;
        agora += kMuitoTempoS;
    }
}

QStringList MaquinaDeRede::Arquivos() const
{
    QStringList nomes;
    QDirIterator todos(m_pasta.path(), QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (todos.hasNext()) {
        todos.next();
        nomes << todos.fileName();
    }
    nomes.sort();
    return nomes;
}

QString MaquinaDeRede::PastaTemporaria() const
{
    return m_pasta.filePath(QStringLiteral("temp/"));
}

QString MaquinaDeRede::PastaDownloads() const
{
    return m_pasta.filePath(QStringLiteral("Conceição/Transferências"));
}
