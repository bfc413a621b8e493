#include "ui/update/about.h"

#include "assets/pictures.h"
#include "core/machine/shared_routines.h"
#include "core/machine/texts.h"
#include "core/registry/temp_folder.h"
#include "quadrelo_version.h"
#include "ui/forms/about.h"
#include "ui/toolkit/command_button.h"
#include "ui/toolkit/image.h"
#include "ui/toolkit/label.h"
#include "ui/update/update_window.h"
#include <QDate>
#include <QGuiApplication>
#include <QStandardPaths>
#include <utility>

namespace {

constexpr Versao kVersao{kVersaoMaior, kVersaoMenor, kVersaoRevisao};
const QString kSeparador = QStringLiteral("!*!");
const QString kElo = QStringLiteral("Link");

QString TextoCompleto(const Versao &versao)
{
    return QStringLiteral("%1.%2.%3").arg(versao.maior).arg(versao.menor).arg(versao.revisao);
}

} // namespace

LugaresDaRede LugaresDoPrograma(const ValoresPrograma &valores)
{
    return {QString::fromUtf16(kSite),
            [&valores] {
                return PastaTemporaria(*valores.registro, [](const QString &nome) {
                    return qEnvironmentVariable(qPrintable(nome));
                });
            },
            [] { return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation); }};
}

QString TextoCurto(const Versao &versao)
{
    return versao.revisao != 0 ? TextoCompleto(versao)
                               : QStringLiteral("%1.%2").arg(versao.maior).arg(versao.menor);
}

FrmSobre::FrmSobre(ValoresPrograma &valores, Ambiente &ambiente, int dpi, LugaresDaRede lugares)
    : m_valores(valores),
      m_ambiente(ambiente),
      m_lugares(std::move(lugares)),
      m_form(toolkit::Moldura::Ferramenta, dpi),
      m_dl1(ambiente, m_lugares.pastaTemporaria)
{
    forms::Define(m_form, forms::kFrmSobre);
    Form_Load();
}

void FrmSobre::Form_Load()
{
    auto &suporte = forms::Acha<toolkit::Label>(m_form, u"Label7");
    auto &atualizar = forms::Acha<toolkit::Label>(m_form, u"Label10");
    m_form.SetCaption(QStringLiteral(" Sobre o ") + m_valores.Titulo);
    const QCursor mao =
        toolkit::Ponteiro(forms::Acha<toolkit::Image>(m_form, u"Image5").GetPicture(), kPontoMao);
    suporte.SetMouseIcon(mao);
    atualizar.SetMouseIcon(mao);
    forms::Acha<toolkit::Label>(m_form, u"Label1")
        .SetCaption(QStringLiteral("Lumbra - %1  %2").arg(m_valores.Titulo, TextoCurto(kVersao)));
    forms::Acha<toolkit::Label>(m_form, u"Label6")
        .SetCaption(QStringLiteral("© %1 Lumbra").arg(QDate::currentDate().year()));

    const auto fecha = [this] { Command1_Click(); };
    forms::Acha<toolkit::CommandButton>(m_form, u"Command1").Click = fecha;
    m_form.QueryClose = fecha;
    m_form.EnterPadrao = fecha;
    m_form.Esc = fecha;
    suporte.Click = [this] { Label7_Click(); };
    atualizar.Click = [this] { Label10_Click(); };
}

void FrmSobre::Command1_Click()
{
    if (!m_verificando) {
        m_form.Unload();
    }
}

void FrmSobre::Label7_Click()
{
    m_ambiente.abrePagina(m_lugares.site + QStringLiteral("/html/faleconosco.html"));
}

void FrmSobre::Label10_Click()
{
    if (m_verificando) {
        return;
    }
    const QString r = Verifica();
    if (CampoTexto(r, kSeparador, 1) != kElo) {
        m_ambiente.mensagem({r});
        return;
    }
    const QString pergunta =
        texto::PerguntaAtualizar(TextoCurto(kVersao), CampoTexto(r, kSeparador, 3));
    if (m_ambiente.mensagem({pergunta, Botoes::SimNao}) != Resposta::Sim) {
        return;
    }
    m_valores.LinkAtualizacao = CampoTexto(r, kSeparador, 4);
    BaixaAtualizacao(m_valores, m_ambiente, m_lugares.pastaDownloads(), m_form);
}

/// GetUpdate with the hourglass, and with no way to close the form under it.
QString FrmSobre::Verifica()
{
    auto &ok = forms::Acha<toolkit::CommandButton>(m_form, u"Command1");
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ok.SetEnabled(false);
    m_verificando = true;
    QString r = GetUpdate();
    m_verificando = false;
    QGuiApplication::restoreOverrideCursor();
    ok.SetEnabled(true);
    return r;
}

QString FrmSobre::GetUpdate()
{
    const QString titulo = TrocaTexto(m_valores.Titulo, QStringLiteral(" "), QStringLiteral("%20"));
    const QString resposta =
        m_dl1.GetConteudo(m_lugares.site + QStringLiteral("/update.php?prog=") + titulo);
    if (!resposta.contains(kSeparador)) {
        return texto::SemConexao();
    }
    if (!MaiorVersion(TextoCompleto(kVersao), CampoTexto(resposta, kSeparador, 2))) {
        return texto::VersaoEmDia(m_valores.Titulo);
    }
    // The reply itself begins with a separator, so its fields stand one place further on here. One
    // that begins otherwise never gives the field "Link", and the player sees it as it is.
    return kSeparador + kElo + resposta;
}
