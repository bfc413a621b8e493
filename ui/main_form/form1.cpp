#include "ui/main_form/form1.h"

#include "assets/pictures.h"
#include "core/files/whole_file.h"
#include "core/registry/screen_dpi.h"
#include "ui/records/load_form.h"
#include "ui/records/ranking_check.h"
#include "ui/records/ranking_form.h"
#include "ui/records/save_form.h"
#include "ui/update/about.h"
#include "ui/window/center_form.h"
#include "ui/window/dpi_adjuster.h"
#include "ui/window/window_shape.h"

namespace {

/// Pitch of the item buttons, in twips.
constexpr float kPassoBotoes = 315;
constexpr QColor kCorTabuleiro(0, 130, 198);

} // namespace

Form1::Form1(ValoresPrograma &valores, Ambiente &ambiente, int dpi)
    : m_valores(valores),
      m_ambiente(ambiente),
      m_form(toolkit::Moldura::Nenhuma, dpi),
      m_c((forms::Define(m_form, forms::kForm1), m_form)),
      m_balaoDeFora(m_c.Picture2),
      m_banco(std::make_unique<BancoPerguntas>()),
      m_jogo{m_tabuleiro, valores, m_estado, m_c, ambiente},
      m_vista(m_jogo),
      m_selecao(m_jogo),
      m_entrada(m_jogo),
      m_verificacao(m_jogo, m_selecao),
      m_balao(m_jogo),
      m_relogio(m_jogo),
      m_comandos(m_jogo, m_selecao, m_verificacao),
      m_carga(m_jogo, {m_vista, m_selecao, m_entrada, m_verificacao}),
      m_acessivel(m_jogo)
{
    m_form.SetIcone(QStringLiteral("Icone"));
    LigaTabuleiro();
    LigaBalao();
    LigaComandos();
    LigaDialogos();
    LigaRelogio();
    Form_Load();
    LigaAcessibilidade();
}

void Form1::Form_Load()
{
    m_valores.SomLigado = true;
    for (const auto *nome : {kArquivoUsadas, kArquivoJogos, kArquivoRanking}) {
        LimpaRestos(Caminho(m_valores.PastaDados, nome));
    }
    LeUsadas(m_memoria, Caminho(m_valores.PastaDados, kArquivoUsadas));
    DaForma(m_form, m_valores);
    CentralizaForm(m_form);
    const QCursor mao = toolkit::Ponteiro(m_c.Image5.GetPicture(), kPontoMao);
    m_c.Lbt(0).SetMouseIcon(mao);
    m_c.Text1(0).SetMouseIcon(mao);
    m_c.Label4.SetMouseIcon(mao);
    CarregaLista(*m_banco, Caminho(m_valores.PastaPrograma, kArquivoBanco));
    m_indice = std::make_unique<IndiceBanco>(*m_banco);
    m_ciclo = std::make_unique<CicloJogo>(m_jogo, DadosBanco{*m_banco, *m_indice, m_memoria},
                                          m_vista, m_selecao);
    m_c.Text1(0).SetCelula();
    m_vista.CarregaQuadrados();
    m_c.Picespere.SetBackColor(kCorTabuleiro);
    m_c.Pic_q1.SetBackColor(kCorTabuleiro);
    m_c.Pic_q2.SetBackColor(kCorTabuleiro);
    CarregaBotoes();
    AjustaAoDpi(LeAppliedDPI(m_valores));
}

void Form1::CarregaBotoes()
{
    for (int n = 1; n <= kItens; ++n) {
        m_ambiente.deixaEventos();
        m_c.LB.Load(n);
        if (!m_c.Lbt.ExisteObjeto(n)) {
            toolkit::Label &botao = m_c.Lbt.Load(n);
            botao.SetCaption(QString::number(n));
            botao.SetTop(m_c.Lbt(n - 1).Top());
            botao.SetLeft(n == 1 ? m_c.Lbt(0).Left() : m_c.Lbt(n - 1).Left() + kPassoBotoes);
            botao.SetVisible(true);
        }
        m_ambiente.deixaEventos();
    }
}

void Form1::AjustaAoDpi(int dpiAplicado)
{
    m_valores.DpiDiferente = dpiAplicado != toolkit::kDpiPadrao;
    if (!m_valores.DpiDiferente) {
        return;
    }
    m_c.Picture3.SetPicture(m_form.GetPicture());
    if (m_c.Picture3.Width() != m_form.Width() || m_c.Picture3.Height() != m_form.Height()) {
        AjustarDpi(m_form);
    }
}

void Form1::Form_Activate()
{
    m_ambiente.deixaEventos();
    m_ambiente.deixaEventos();
    if (!m_jaAtivou) {
        m_jaAtivou = true;
        m_ciclo->NovoJogo();
    }
}

void Form1::LigaTabuleiro()
{
    m_form.Activate = [this] { Form_Activate(); };
    // The window manager's close, in whatever state, ends like "Sair".
    m_form.QueryClose = [this] { m_ambiente.terminaProcesso(); };
    m_c.Picture1.SetRecebeFoco();
    m_c.Text1.AoCarregar = [this](toolkit::TextBox &celula, int i) {
        celula.Change = [this, i] { m_entrada.Text1_Change(i); };
        celula.GotFocus = [this, i] { m_entrada.Text1_GotFocus(i); };
        celula.MouseDown = [this, i](const toolkit::Mouse &) {
            m_verificacao.ConfereSelecao(m_selecao.Text1_MouseDown(i));
        };
        celula.DblClick = [this, i] { m_verificacao.ConfereSelecao(m_selecao.Text1_DblClick(i)); };
        celula.MouseMove = [this, i](const toolkit::Mouse &) { m_balao.Text1_MouseMove(i); };
    };
    m_c.Lbt.AoCarregar = [this](toolkit::Label &botao, int n) {
        botao.Click = [this, n] { m_verificacao.ConfereSelecao(m_selecao.CliqueNoBotao(n)); };
    };
    m_entrada.VerificaPalavra = [this](int i) { m_verificacao.VerificaPalavra(i); };
}

void Form1::LigaBalao()
{
    const auto fora = [this](const toolkit::Mouse &) { m_balao.ForaDasCelulas(); };
    m_form.MouseMove = fora;
    m_c.Pic_q1.MouseMove = fora;
    m_c.Pic_q2.MouseMove = fora;
    m_c.Picespere.MouseMove = fora;
}

void Form1::LigaComandos()
{
    for (int k = 0; k < static_cast<int>(m_c.Label3.size()); ++k) {
        toolkit::Label &entrada = *m_c.Label3[k];
        entrada.Click = [this, k] { m_comandos.Label3_Click(k); };
        entrada.MouseDown = [this, k](const toolkit::Mouse &) { m_comandos.Label3_MouseDown(k); };
        entrada.MouseUp = [this, k](const toolkit::Mouse &) { m_comandos.Label3_MouseUp(k); };
    }
    m_c.Label4.Click = [this] { m_comandos.Label4_Click(); };
    m_c.Image2.Click = [this] { m_comandos.Image2_Click(); };
    m_c.Image8.Click = [this] { m_comandos.Image8_Click(); };
    LigaTira(m_form, m_c.Image3);
    m_comandos.NovoJogo = [this] { m_ciclo->NovoJogo(); };
    m_comandos.AbreSobre = [this] {
        FrmSobre sobre(m_valores, m_ambiente, m_form.Dpi(), LugaresDoPrograma(m_valores));
        sobre.ShowModal(&m_form);
    };
}

void Form1::LigaDialogos()
{
    m_comandos.AbreCarregar = [this] {
        FrmCarregar(Dialogos(), [this](int n) { m_carga.CarregaJogo(n); }).ShowModal();
    };
    m_comandos.AbreSalvar = [this] { FrmSalvar(Dialogos(), m_tabuleiro).ShowModal(); };
    m_comandos.AbreRanking = [this] { FrmHanking(Dialogos()).ShowModal(); };
    m_verificacao.VerificaRecords = [this](int t) { return ::VerificaRecords(Dialogos(), t); };
}

void Form1::LigaRelogio()
{
    m_c.Timer1.Tique = [this] { m_relogio.Timer1_Timer(); };
    m_c.Timer2.Tique = [this] { m_balao.Timer2_Timer(); };
    m_c.Timer3.Tique = [this] { m_balao.Timer3_Timer(); };
    m_c.Timer4.Tique = [this] {
        m_c.Timer4.SetLigado(false);
        GravaUsadas(m_memoria, Caminho(m_valores.PastaDados, kArquivoUsadas), m_tabuleiro);
    };
}

void Form1::LigaAcessibilidade()
{
    m_acessivel.Descreve();
    m_verificacao.AoJulgar = [this](int i, bool certa) { m_acessivel.PalavraJulgada(i, certa); };
    m_comandos.AoDarLetra = [this](int c) { m_acessivel.LetraDada(c); };
    m_comandos.AoDesistir = [this] { m_acessivel.SolucaoMostrada(); };
}
