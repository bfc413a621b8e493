#include "ui/records/save_name_form.h"
#include "core/machine/texts.h"

#include "core/records/save_slot.h"
#include "ui/forms/slot_forms.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

#include <algorithm>
#include <QLocale>

FrmSalvar2::FrmSalvar2(const ContextoDialogo &contexto, const Tabuleiro &tabuleiro, int n)
    : d(contexto),
      m_tabuleiro(tabuleiro),
      m_form(toolkit::Moldura::Nenhuma, contexto.dona.Dpi()),
      m_text1((forms::Define(m_form, forms::kFrmSalvar2),
               forms::Acha<toolkit::TextBox>(m_form, u"Text1"))),
      m_label3(forms::Acha<toolkit::Label>(m_form, u"Label3"))
{
    forms::NomeiaCampo(m_form, u"Text1", u"Label2");
    m_label3.SetCaption(QString::number(n));
    m_form.Activate = [this] { Form_Activate(); };
    m_form.Esc = [this] { m_form.Unload(); };
    forms::Acha<toolkit::CommandButton>(m_form, u"Command1").Click = [this] { Command1_Click(); };
    auto &fechar = forms::Acha<toolkit::Image>(m_form, u"Image1");
    fechar.Click = [this] { m_form.Unload(); };
    fechar.SetAcessivel({.nome = [] { return QStringLiteral("Fechar"); }});
    LigaTira(m_form, forms::Acha<toolkit::Image>(m_form, u"Image3"));
    Form_Load();
}

void FrmSalvar2::Form_Load()
{
    DaForma(m_form, d.valores);
    CentralizaForm(m_form);
    if (d.valores.DpiDiferente) {
        AjustarDpi(m_form);
    }
}

void FrmSalvar2::Form_Activate()
{
    if (!m_text1.Text().isEmpty()) {
        m_text1.SelecionaTudo();
    }
    m_text1.SetFocus();
}

void FrmSalvar2::Command1_Click()
{
    // The board is in view again while the file is written.
    m_form.Hide();
    d.dona.Hide();
    d.ambiente.deixaEventos();
    d.ambiente.deixaEventos();
    if (m_text1.Text().isEmpty()) {
        m_text1.SetText(texto::SemNome(m_label3.Caption().toInt()));
    }
    SalvarJogo(m_label3.Caption().toInt(), m_text1.Text());
    m_form.Unload();
}

/// A write that fails goes unnoticed.
void FrmSalvar2::SalvarJogo(int n, const QString &NomeJogo)
{
    if (m_tabuleiro.QtdItens < kItens) {
        return;
    }
    const QString arquivo = Caminho(d.valores.PastaDados, kArquivoJogos);
    if (m_poupaOcupado && !NomesDosSlots(arquivo).nome[n].isEmpty()) {
        return;
    }
    const double tempo = std::clamp(d.ambiente.Agora() - d.valores.HoraInicio, 0.0, kMaximoDoTempo);
    SalvaSlot(arquivo, n, NomeJogo, m_tabuleiro, tempo, QLocale::system().decimalPoint());
}
