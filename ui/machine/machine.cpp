#include "ui/machine/machine.h"

#include "core/machine/day_clock.h"
#include "core/machine/sound.h"
#include "core/machine/steady_clock.h"
#include "ui/machine/sound_player.h"
#include "ui/toolkit/message_box.h"

#include <cstdlib>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QThread>
#include <QTime>
#include <QUrl>

namespace {

std::unique_ptr<Acaso> AcasoDoSistema()
{
    std::random_device entropia;
    return std::make_unique<AcasoMersenne>(std::uint64_t{entropia()} << 32 | entropia());
}

QStringList Sons(const ValoresPrograma &valores)
{
    QStringList arquivos;
    for (const QStringView nome : kArquivosDeSom) {
        arquivos << Caminho(valores.PastaPrograma, nome);
    }
    return arquivos;
}

} // namespace

Ambiente AmbienteReal(const ValoresPrograma &valores)
{
    const auto relogio = std::make_shared<RelogioDoDia>(QTime::currentTime(), &SegundosContinuos);
    Ambiente ambiente;
    ambiente.Agora = [relogio] { return relogio->Agora(); };
    ambiente.acaso = AcasoDoSistema();
    ambiente.tocaArquivo = CriaTocador(Sons(valores));
    ambiente.mensagem = [&valores](const PedidoMensagem &pedido) {
        return toolkit::MostraMensagem(valores.Titulo, pedido);
    };
    ambiente.abrePagina = [](const QString &endereco) {
        QDesktopServices::openUrl(QUrl(endereco));
    };
    ambiente.deixaEventos = [] { QCoreApplication::processEvents(); };
    ambiente.dorme = [](int ms) { QThread::msleep(static_cast<unsigned long>(ms)); };
    ambiente.terminaProcesso = [] { std::_Exit(0); };
    return ambiente;
}
