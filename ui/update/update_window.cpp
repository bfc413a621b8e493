#include "ui/update/update_window.h"
#include "core/machine/texts.h"

#include "core/files/download_file.h"
#include "ui/forms/update_window.h"
#include "ui/toolkit/command_button.h"
#include "ui/toolkit/image.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/progress_bar.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace {

constexpr float kTudo = 100;
/// Most characters of the file's name that the window shows.
constexpr qsizetype kMaximoNaTela = 32;

/// A long name without its middle: its start and its extension say most.
QString SemOMeio(const QString &nome)
{
    constexpr qsizetype kFim = 10;
    return nome.size() <= kMaximoNaTela
               ? nome
               : nome.first(kMaximoNaTela - kFim - 1) + u'…' + nome.last(kFim);
}

} // namespace

FrmBaixar::FrmBaixar(ValoresPrograma &valores, Ambiente &ambiente, int dpi)
    : m_valores(valores),
      m_form(toolkit::Moldura::Nenhuma, dpi),
      // A file goes straight to its own folder, so there is no other for it.
      m_dl(ambiente, [] { return QString(); })
{
    forms::Define(m_form, forms::kFrmBaixar);
    Form_Load();
}

void FrmBaixar::Form_Load()
{
    const auto cancela = [this] { m_dl.CancelDownload(); };
    forms::Acha<toolkit::CommandButton>(m_form, u"Command1").Click = cancela;
    auto &fechar = forms::Acha<toolkit::Image>(m_form, u"Image1");
    fechar.Click = cancela;
    fechar.SetAcessivel({.nome = [] { return QStringLiteral("Fechar"); }});
    LigaTira(m_form, forms::Acha<toolkit::Image>(m_form, u"Image3"));
    m_form.Esc = cancela;
    m_form.QueryClose = cancela;
    DaForma(m_form, m_valores);
    if (m_valores.DpiDiferente) {
        AjustarDpi(m_form);
    }
}

FrmBaixar::Fim FrmBaixar::Baixa(const QString &endereco, const QString &pasta, QWidget *dona)
{
    const QString nome = NomeDeArquivo(endereco);
    MostraNome(nome);
    // The file gets its name when it is whole: a game that is ended meanwhile leaves none behind.
    const QString parcial =
        Caminho(pasta, QStringLiteral("Quadrelo-%1.parte").arg(QCoreApplication::applicationPid()));
    m_arquivo.clear();
    auto estado = EstadoDL::Lendo;
    // The first event of the window's own loop, so that the wait for the file runs inside it.
    QTimer::singleShot(0, &m_form, [&] {
        auto &barra = forms::Acha<toolkit::PictureBox>(m_form, u"PicBaixado");
        estado = m_dl.Download(endereco, parcial, [&barra](int percentual) {
            MostraProgresso(barra, static_cast<float>(percentual) / kTudo);
        });
        m_form.Unload();
    });
    m_form.ShowModal(dona);
    // The state says little: a reply of unknown length ends as incomplete, and is none the worse.
    if (m_dl.Recebeu(parcial) && QFileInfo(parcial).size() > 0) {
        m_arquivo = GuardaArquivo(parcial, pasta, nome);
    }
    QFile::remove(parcial);
    if (!m_arquivo.isEmpty()) {
        return Fim::Baixado;
    }
    return estado == EstadoDL::Cancelado ? Fim::Cancelado : Fim::Falhou;
}

void FrmBaixar::MostraNome(const QString &nome)
{
    forms::Acha<toolkit::Label>(m_form, u"Label2").SetCaption(SemOMeio(nome));
}

void BaixaAtualizacao(ValoresPrograma &valores, Ambiente &ambiente, const QString &pasta,
                      toolkit::Form &dona)
{
    FrmBaixar janela(valores, ambiente, dona.Dpi());
    switch (janela.Baixa(valores.LinkAtualizacao, pasta, &dona)) {
    case FrmBaixar::Fim::Baixado:
        ambiente.mensagem({texto::AtualizacaoGravada(QDir::toNativeSeparators(janela.Arquivo()))});
        break;
    case FrmBaixar::Fim::Falhou:
        ambiente.mensagem({texto::AtualizacaoFalhou()});
        break;
    case FrmBaixar::Fim::Cancelado:
        break;
    }
}
