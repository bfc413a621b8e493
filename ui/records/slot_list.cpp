#include "ui/records/slot_list.h"

#include "core/records/save_slot.h"
#include "ui/forms/slot_forms.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

#include <utility>

static_assert(forms::kLbCancelar == kSlots + 1);

namespace {

constexpr QColor kCorSobMouse(0, 0, 255);

toolkit::Label &LbSave(const toolkit::Form &form, int Index)
{
    return forms::Acha<toolkit::Label>(form, u"LbSave", Index);
}

} // namespace

ListaSlots::ListaSlots(const ContextoDialogo &contexto, const forms::DefForm &def, QString vazio)
    : d(contexto), m_vazio(std::move(vazio)), m_form(toolkit::Moldura::Nenhuma, contexto.dona.Dpi())
{
    forms::Define(m_form, def);
    for (int Index = 1; Index <= forms::kLbCancelar; ++Index) {
        toolkit::Label &label = LbSave(m_form, Index);
        label.Click = [this, Index] { LbSave_Click(Index); };
        label.MouseMove = [this, Index](const toolkit::Mouse &) { LbSave_MouseMove(Index); };
    }
    auto &fechar = forms::Acha<toolkit::Image>(m_form, u"Image1");
    fechar.Click = [this] { Unload(); };
    fechar.SetAcessivel({.nome = [] { return QStringLiteral("Fechar"); }});
    LigaTira(m_form, forms::Acha<toolkit::Image>(m_form, u"Image3"));
    m_form.Esc = [this] { Unload(); };
    Form_Load();
}

void ListaSlots::Form_Load()
{
    DaForma(m_form, d.valores);
    CentralizaForm(m_form);
    const auto nomes = NomesDosSlots(Caminho(d.valores.PastaDados, kArquivoJogos));
    m_lida = nomes.lidos;
    for (int n = 1; n <= kSlots; ++n) {
        const QString &nome = nomes.nome[n];
        LbSave(m_form, n).SetCaption(nome.isEmpty() ? m_vazio : nome);
    }
    if (d.valores.DpiDiferente) {
        AjustarDpi(m_form);
    }
}

const QString &ListaSlots::Legenda(int n) const
{
    return LbSave(m_form, n).Caption();
}

void ListaSlots::LbSave_MouseMove(int Index)
{
    if (Index == m_sobLbSave) {
        return;
    }
    LbSave(m_form, Index).SetForeColor(kCorSobMouse);
    if (m_sobLbSave != 0) {
        LbSave(m_form, m_sobLbSave).SetForeColor(toolkit::kPreto);
    }
    m_sobLbSave = Index;
}
