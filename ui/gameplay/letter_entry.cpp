#include "ui/gameplay/letter_entry.h"

#include "core/machine/shared_routines.h"

void EntradaLetras::Text1_Change(int Index)
{
    if (!m_ativa) {
        return;
    }
    toolkit::TextBox &celula = d.c.Text1(Index);
    if (d.valores.Desistiu) {
        celula.SetText(Maiusculas(d.Quadrado(Index).Letra));
        return;
    }
    if (d.estado.item != 0 && !celula.Text().isEmpty() && !Corrige(celula)) {
        Anda(Index);
    }
}

/// Whether the text had to be corrected; the correction has then raised the handler anew.
bool EntradaLetras::Corrige(toolkit::TextBox &celula)
{
    const QString texto = celula.Text();
    if (const QString maiusculas = Maiusculas(texto); texto != maiusculas) {
        celula.SetText(maiusculas);
        return true;
    }
    // The search is for the whole text: a longer one that is a run of the list passes as well.
    if (!kLetrasAceitas.contains(texto)) {
        celula.SetText({});
        return true;
    }
    return false;
}

/// From cell `i`, which holds a letter, to the next free cell of the selected item. The walk does
/// not know how long the word is: it ends at the first cell that belongs to no word.
void EntradaLetras::Anda(int i)
{
    const int item = d.estado.item;
    const int passo = PassoDe(d.Item(item).Sentido);
    if (passo == 0) {
        return;
    }
    for (;;) {
        const int proxima = i + passo;
        if (!d.Ocupada(proxima)) {
            VerificaPalavra(item);
            return;
        }
        if (!d.Quadrado(proxima).Fixa) {
            d.estado.Focus = proxima;
            d.c.Text1(proxima).SetFocus();
            return;
        }
        if (d.c.Text1(proxima).Text().isEmpty()) {
            return;
        }
        i = proxima;
    }
}

void EntradaLetras::Text1_GotFocus(int Index)
{
    if (d.estado.Focus < 1) {
        d.c.Picture1.SetFocus();
    } else if (d.estado.Focus != Index) {
        d.c.Text1(d.estado.Focus).SetFocus();
    }
}
