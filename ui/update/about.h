#pragma once

#include "core/machine/program_state.h"
#include "ui/toolkit/form.h"
#include "ui/update/downloader.h"

/// Where the update check goes and where it may write.
struct LugaresDaRede
{
    /// The web site, without a slash at its end.
    QString site;
    /// The folder for temporary files, with a separator at its end.
    std::function<QString()> pastaTemporaria;
    /// The player's download folder.
    std::function<QString()> pastaDownloads;
};

/// The program's own site and the player's own folders. `valores` must outlive the result.
LugaresDaRede LugaresDoPrograma(const ValoresPrograma &valores);

/// A version's numbers.
struct Versao
{
    int maior;
    int menor;
    int revisao;
};

/// A version as the player reads it: a revision of 0 is left out.
QString TextoCurto(const Versao &versao);

/// The About form: names the game and its version, opens the support page, and asks the web site
/// for a newer version. The one place where the game goes to the network, and only on a click.
class FrmSobre
{
public:
    /// `valores` and `ambiente` must outlive it. `dpi`: the screen's dots per inch.
    FrmSobre(ValoresPrograma &valores, Ambiente &ambiente, int dpi, LugaresDaRede lugares);

    /// Shows the form in the middle of `dona` and waits until it is closed.
    void ShowModal(QWidget *dona) { m_form.ShowModal(dona); }
    [[nodiscard]] toolkit::Form &Janela() { return m_form; }

    /// Asks the service for the newest version: a message for the player or, where there is a newer
    /// one, "!*!Link" followed by the reply. Events run meanwhile.
    QString GetUpdate();

private:
    void Form_Load();
    void Command1_Click();
    void Label7_Click();
    void Label10_Click();
    QString Verifica();

    ValoresPrograma &m_valores;
    Ambiente &m_ambiente;
    LugaresDaRede m_lugares;
    toolkit::Form m_form;
    DL m_dl1;
    /// A check is running: the form must not go, and no second check may start.
    bool m_verificando = false;
};
