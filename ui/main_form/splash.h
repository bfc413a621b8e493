#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"
#include "ui/toolkit/form.h"

#include <memory>
#include <QPointer>

class Form1;

/// The banner of the start: fixes the program-wide values, waits a second, loads the main form and
/// leaves.
class FrmSplash
{
public:
    /// `valores` and `ambiente` must outlive it; the paths and the title of `valores` are set here.
    /// The main form is put into `principal`. `dpi`: the screen's dots per inch.
    FrmSplash(ValoresPrograma &valores, Ambiente &ambiente, std::unique_ptr<Form1> &principal,
              int dpi);
    ~FrmSplash();
    Q_DISABLE_COPY_MOVE(FrmSplash)

    /// Shows the banner; what follows runs from the program's event loop.
    void Show();
    /// The banner's window, or null once it has gone.
    [[nodiscard]] toolkit::Form *Janela() { return m_form; }

private:
    void Form_Load();
    void Form_Activate();
    void MostraBanner();

    ValoresPrograma &m_valores;
    Ambiente &m_ambiente;
    std::unique_ptr<Form1> &m_principal;
    QPointer<toolkit::Form> m_form;
};

/// The title and the two directories, from the program's directory as the system reports it: a
/// separator at its end goes, unless the directory is the root of a file system where nothing else
/// names it.
void FixaValores(ValoresPrograma &valores, const QString &pastaDoPrograma);

/// "v " and the version's three numbers.
QString TextoVersao();
