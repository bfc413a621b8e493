#include "ui/records/save_form.h"

#include "core/machine/sound.h"
#include "core/machine/texts.h"
#include "ui/forms/slot_forms.h"
#include "ui/records/save_name_form.h"

FrmSalvar::FrmSalvar(const ContextoDialogo &contexto, const Tabuleiro &tabuleiro)
    : d(contexto),
      m_tabuleiro(tabuleiro),
      m_lista(contexto, forms::kFrmSalvar, QString::fromUtf16(forms::kSalvarAqui))
{
    m_lista.LbSave_Click = [this](int Index) { LbSave_Click(Index); };
}

void FrmSalvar::LbSave_Click(int Index)
{
    TocaSom(d.valores, d.ambiente, Som::Clique);
    if (Index < forms::kLbCancelar && PodeSobregravar(Index)) {
        PedeNome(Index);
    }
    m_lista.Unload();
}

bool FrmSalvar::PodeSobregravar(int n) const
{
    return m_lista.Livre(n) ||
           d.ambiente.mensagem({texto::Sobregravar(m_lista.Legenda(n)), Botoes::SimNao,
                                Icone::Pergunta}) == Resposta::Sim;
}

/// Shows the name's dialog on this one and waits for it.
void FrmSalvar::PedeNome(int n)
{
    FrmSalvar2 nome({d.valores, d.ambiente, m_lista.Janela()}, m_tabuleiro, n);
    if (!m_lista.Livre(n)) {
        nome.OfereceNome(m_lista.Legenda(n));
    }
    if (!m_lista.Lida()) {
        nome.PoupaOcupado();
    }
    nome.ShowModal();
}
