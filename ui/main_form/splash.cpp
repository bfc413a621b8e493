#include "ui/main_form/splash.h"

#include "core/registry/screen_dpi.h"
#include "quadrelo_version.h"
#include "ui/forms/splash.h"
#include "ui/main_form/form1.h"
#include "ui/toolkit/font.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"

#include <QTimer>

namespace {

constexpr int kEsperaMs = 1000;
/// The wait for the banner's first painting.
constexpr int kVoltasBanner = 60;
constexpr int kVoltaMs = 5;

} // namespace

FrmSplash::FrmSplash(ValoresPrograma &valores, Ambiente &ambiente,
                     std::unique_ptr<Form1> &principal, int dpi)
    : m_valores(valores),
      m_ambiente(ambiente),
      m_principal(principal),
      m_form(new toolkit::Form(forms::kFrmSplash.moldura, dpi))
{
    toolkit::TrazFontes(Caminho(m_valores.PastaPrograma, u"fonts"));
    forms::Define(*m_form, forms::kFrmSplash);
    Form_Load();
}

FrmSplash::~FrmSplash()
{
    delete m_form;
}

void FrmSplash::Show()
{
    m_form->Show();
    // Qt lets events run while it shows such a window; a handler that ends with the window's end
    // must not run inside that.
    QTimer::singleShot(0, m_form, [this] { Form_Activate(); });
}

void FrmSplash::Form_Load()
{
    if (LeAppliedDPI(m_valores) != toolkit::kDpiPadrao) {
        auto &medida = forms::Acha<toolkit::PictureBox>(*m_form, u"Picture1");
        medida.SetPicture(m_form->GetPicture());
        if (medida.Width() != m_form->Width() || medida.Height() != m_form->Height()) {
            m_valores.DpiDiferente = true;
            AjustarDpi(*m_form);
        }
    }
    CentralizaForm(*m_form);
    forms::Acha<toolkit::Label>(*m_form, u"Label3").SetCaption(TextoVersao());
}

/// Lets events run until the banner is there to be seen: a system can call a window active before
/// it has been painted, and its second must not run on an empty screen. A window that is never
/// painted is not waited for.
void FrmSplash::MostraBanner()
{
    m_ambiente.deixaEventos();
    for (int volta = 0; volta < kVoltasBanner && !m_form->Pintada(); ++volta) {
        m_ambiente.dorme(kVoltaMs);
        m_ambiente.deixaEventos();
    }
    m_ambiente.deixaEventos();
}

void FrmSplash::Form_Activate()
{
    MostraBanner();
    m_ambiente.dorme(kEsperaMs);
    m_ambiente.deixaEventos();
    m_principal = std::make_unique<Form1>(m_valores, m_ambiente, m_form->Dpi());
    m_ambiente.deixaEventos();
    m_principal->Show();
    m_form->Unload();
    // A window that is only hidden would stay in the screen reader's tree. This is its own handler.
    m_form->deleteLater();
}

void FixaValores(ValoresPrograma &valores, const QString &pastaDoPrograma)
{
    valores.Titulo = QStringLiteral("Quadrelo");
    valores.PastaPrograma = pastaDoPrograma;
    if (pastaDoPrograma.size() > 1 &&
        (pastaDoPrograma.endsWith(u'\\') || pastaDoPrograma.endsWith(u'/'))) {
        valores.PastaPrograma.chop(1);
    }
    valores.PastaDados = Caminho(valores.PastaPrograma, u"Dados");
}

QString TextoVersao()
{
    return QStringLiteral("v %1.%2.%3").arg(kVersaoMaior).arg(kVersaoMenor).arg(kVersaoRevisao);
}
