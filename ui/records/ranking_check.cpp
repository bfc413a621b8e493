#include "ui/records/ranking_check.h"

#include "core/records/ranking_table.h"
#include "ui/forms/slot_forms.h"
#include "ui/records/player_name_form.h"
#include "ui/records/ranking_form.h"

static_assert(forms::kMaximoNome == kTamanhoNome);

bool VerificaRecords(const ContextoDialogo &contexto, int t)
{
    const QString arquivo = Caminho(contexto.valores.PastaDados, kArquivoRanking);
    const int p = ProcuraLugar(arquivo, t);
    if (p == 0) {
        return false;
    }
    FrmSeuNome seuNome(contexto);
    seuNome.ShowModal();
    // A write that fails goes unnoticed.
    GravaLugar(arquivo, p, seuNome.NomeJogador(), t);
    FrmHanking(contexto).ShowModal();
    return true;
}
