#include "ui/records/ranking_form.h"

#include "core/records/ranking_table.h"
#include "ui/forms/ranking_forms.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

static_assert(forms::kLinhasRanking == kLugares);

FrmHanking::FrmHanking(const ContextoDialogo &contexto)
    : d(contexto), m_form(toolkit::Moldura::Nenhuma, contexto.dona.Dpi())
{
    forms::Define(m_form, forms::kFrmHanking);
    LigaFechar();
    LigaTira();
    Form_Load();
}

void FrmHanking::Form_Load()
{
    DaForma(m_form, d.valores);
    const auto linhas = LeRanking(Caminho(d.valores.PastaDados, kArquivoRanking));
    const auto label = [this](const char16_t *coluna, int p) -> toolkit::Label & {
        return forms::Acha<toolkit::Label>(m_form, coluna, p);
    };
    for (int p = 1; p <= kLugares; ++p) {
        const LinhaRanking &linha = linhas[p];
        label(u"Label1", p).SetCaption(u'0' + QString::number(p));
        label(u"Label2", p).SetCaption(linha.Tempo);
        label(u"Label3", p).SetCaption(linha.Nome);
    }
    if (d.valores.DpiDiferente) {
        AjustarDpi(m_form);
    }
}

void FrmHanking::LigaFechar()
{
    const auto fecha = [this] { m_form.Unload(); };
    m_form.Click = fecha;
    m_form.KeyDown = [this](int tecla) { return Form_KeyDown(tecla); };
    for (const auto &controle : m_form.Controls()) {
        controle->Click = fecha;
        // A click anywhere closes, but only the button says so.
        if (controle->TemFonte()) {
            controle->SetAcessivel({.papel = toolkit::Papel::Texto});
        }
    }
    forms::Acha<toolkit::Image>(m_form, u"Image1").SetAcessivel({.nome = [] {
        return QStringLiteral("Fechar");
    }});
}

void FrmHanking::LigaTira()
{
    auto &tira = forms::Acha<toolkit::Image>(m_form, u"Image3");
    tira.MouseDown = [this](const toolkit::Mouse &) { m_arrastou = false; };
    tira.MouseMove = [this](const toolkit::Mouse &mouse) {
        m_arrastou = m_arrastou || mouse.botoes == Qt::LeftButton;
        ArrastaForm(m_form, mouse);
    };
    tira.Click = [this] {
        if (!m_arrastou) {
            m_form.Unload();
        }
    };
}

bool FrmHanking::Form_KeyDown(int tecla)
{
    const bool fecha = tecla == Qt::Key_Return || tecla == Qt::Key_Enter || tecla == Qt::Key_Escape;
    if (fecha) {
        m_form.Unload();
    }
    return fecha;
}
