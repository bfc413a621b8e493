#include "ui/records/load_form.h"

#include "core/machine/sound.h"
#include "core/machine/texts.h"
#include "ui/forms/slot_forms.h"

#include <QScopedValueRollback>
#include <utility>

FrmCarregar::FrmCarregar(const ContextoDialogo &contexto, std::function<void(int n)> carregaJogo)
    : d(contexto),
      CarregaJogo(std::move(carregaJogo)),
      m_lista(contexto, forms::kFrmCarregar, QString::fromUtf16(forms::kVazio))
{
    m_lista.LbSave_Click = [this](int Index) { LbSave_Click(Index); };
}

void FrmCarregar::LbSave_Click(int Index)
{
    TocaSom(d.valores, d.ambiente, Som::Clique);
    if (Index >= forms::kLbCancelar) {
        m_lista.Unload();
        return;
    }
    if (m_lista.Livre(Index)) {
        d.ambiente.mensagem({texto::SlotVazio()});
        return;
    }
    m_lista.Unload();
    d.ambiente.deixaEventos();
    const QScopedValueRollback semSom(d.valores.SomLigado, false);
    CarregaJogo(Index);
}
