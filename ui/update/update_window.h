#pragma once

#include "core/machine/program_state.h"
#include "ui/toolkit/form.h"
#include "ui/update/downloader.h"

/// The window that shows how the file of a newer version comes in. The player can cancel it.
class FrmBaixar
{
public:
    enum class Fim { Baixado, Cancelado, Falhou };

    /// `valores` and `ambiente` must outlive it. `dpi`: the screen's dots per inch.
    FrmBaixar(ValoresPrograma &valores, Ambiente &ambiente, int dpi);

    /// Shows the window modal on `dona` and fetches `endereco` into `pasta`, under a name that is
    /// made from the address and that nothing there has. Returns when all is over. Where the result
    /// is not Baixado, nothing is left in the folder.
    Fim Baixa(const QString &endereco, const QString &pasta, QWidget *dona);

    /// Full path of the file that was downloaded last, "" while there is none.
    [[nodiscard]] const QString &Arquivo() const { return m_arquivo; }

private:
    void Form_Load();
    void MostraNome(const QString &nome);

    ValoresPrograma &m_valores;
    toolkit::Form m_form;
    DL m_dl;
    QString m_arquivo;
};

/// Fetches the file of a newer version into the folder `pasta`, with a window of its own, and tells
/// the player where it is or that there is none; a download that the player has cancelled needs no
/// words. The file is never opened.
void BaixaAtualizacao(ValoresPrograma &valores, Ambiente &ambiente, const QString &pasta,
                      toolkit::Form &dona);
