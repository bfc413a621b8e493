#include "ui/records/player_name_form.h"

#include "ui/forms/ranking_forms.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

FrmSeuNome::FrmSeuNome(const ContextoDialogo &contexto)
    : d(contexto),
      m_form(toolkit::Moldura::Nenhuma, contexto.dona.Dpi()),
      m_text1((forms::Define(m_form, forms::kFrmSeuNome),
               forms::Acha<toolkit::TextBox>(m_form, u"Text1")))
{
    forms::NomeiaCampo(m_form, u"Text1", u"Label2");
    m_form.OnUnload = [this] { Form_Unload(); };
    m_form.Esc = [this] { m_form.Unload(); };
    forms::Acha<toolkit::CommandButton>(m_form, u"Command1").Click = [this] { m_form.Unload(); };
    LigaTira(m_form, forms::Acha<toolkit::Image>(m_form, u"Image3"));
    Form_Load();
}

void FrmSeuNome::Form_Load()
{
    DaForma(m_form, d.valores);
    m_text1.SetFocus();
    if (d.valores.DpiDiferente) {
        AjustarDpi(m_form);
    }
}

void FrmSeuNome::Form_Unload()
{
    const QString nome = m_text1.Text().trimmed();
    m_nomeJogador = nome.isEmpty() ? QStringLiteral("Sem Nome") : nome;
}
