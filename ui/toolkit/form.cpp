#include "ui/toolkit/form.h"

#include "ui/toolkit/accessible_factory.h"
#include "ui/toolkit/command_button.h"
#include "ui/toolkit/keyboard.h"
#include "ui/toolkit/window_region.h"

#include <algorithm>
#include <QCloseEvent>
#include <QEventLoop>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <utility>

namespace toolkit {

namespace {

Qt::WindowFlags Bandeiras(Moldura moldura)
{
    switch (moldura) {
    case Moldura::Abertura:
        return Qt::SplashScreen | Qt::FramelessWindowHint;
    case Moldura::Ferramenta:
        return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
               Qt::WindowCloseButtonHint;
    case Moldura::Nenhuma:
        break;
    }
    return Qt::Window | Qt::FramelessWindowHint;
}

} // namespace

Form::Form(Moldura moldura, int dpi) : QWidget(nullptr, Bandeiras(moldura)), m_dpi(dpi)
{
    InstalaAcessibilidade();
    setMouseTracking(true);
    QPalette claro;
    claro.setColor(QPalette::Window, QColor(240, 240, 240));
    claro.setColor(QPalette::WindowText, kPreto);
    setPalette(claro);
}

Form::~Form()
{
    // Controls may still hear of focus changes, and be asked for their names, while their siblings
    // go.
    for (const auto &controle : m_controls) {
        controle->GotFocus = nullptr;
        controle->SetAcessivel({});
    }
    m_controls.clear();
}

void Form::SetPicture(const Picture &picture)
{
    m_picture = picture;
    m_pintura = picture;
    update();
}

void Form::SetIcone(const QString &nome)
{
    QIcon icone;
    for (const int tamanho : {16, 32, 48, 256}) {
        icone.addFile(QStringLiteral(":/figuras/%1%2.png").arg(nome).arg(tamanho));
    }
    setWindowIcon(icone);
}

void Form::SetLeft(float left)
{
    m_left = left;
    m_lugarDado = true;
    MostraTamanho();
}

void Form::SetTop(float top)
{
    m_top = top;
    m_lugarDado = true;
    MostraTamanho();
}

void Form::SetSize(float width, float height)
{
    m_width = width;
    m_height = height;
    MostraTamanho();
}

void Form::MostraTamanho()
{
    const float porPixel = TwipsPorPixel(m_dpi);
    setFixedSize(qRound(m_width / porPixel), qRound(m_height / porPixel));
    if (m_lugarDado) {
        move(qRound(m_left / porPixel), qRound(m_top / porPixel));
    }
}

Origem Form::OrigemDe(const QString &nome, int indice, const PictureBox *dentro)
{
    if (dentro != nullptr) {
        return {nome, indice, dentro->Widget(), dentro->PorPixelDentro(), m_dpi};
    }
    return {nome, indice, this, TwipsPorPixel(m_dpi), m_dpi};
}

Control &Form::Guarda(std::unique_ptr<Control> controle)
{
    m_controls.push_back(std::move(controle));
    return *m_controls.back();
}

void Form::Descarrega(const Control &controle)
{
    const auto achado = std::find_if(m_controls.begin(), m_controls.end(),
                                     [&controle](const auto &um) { return um.get() == &controle; });
    if (achado != m_controls.end()) {
        m_controls.erase(achado);
    }
}

Control *Form::Procura(QStringView nome, int indice) const
{
    const auto achado = std::find_if(m_controls.begin(), m_controls.end(), [&](const auto &um) {
        return um->Index() == indice && um->Name() == nome;
    });
    return achado == m_controls.end() ? nullptr : achado->get();
}

void Form::Show()
{
    show();
    raise();
    activateWindow();
}

void Form::ShowModal(QWidget *dona)
{
    // A window of its own on the owner: modal, in front of it, and not in the task bar.
    setParent(dona, (windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    if (!m_lugarDado && dona != nullptr) {
        const QPoint centro = dona->window()->frameGeometry().center();
        move(centro - QPoint(width() / 2, height() / 2));
    }
    Show();
    QEventLoop espera;
    m_espera = &espera;
    espera.exec();
    m_espera = nullptr;
}

void Form::Unload()
{
    if (m_descarregado) {
        return;
    }
    m_descarregado = true;
    if (OnUnload) {
        OnUnload();
    }
    hide();
    if (m_espera != nullptr) {
        m_espera->quit();
    }
}

void Form::SetWindowRgn(const std::function<QRegion(qreal)> &regiao, QRgb chave)
{
    m_regiao = regiao;
    setAttribute(Qt::WA_TranslucentBackground, JanelasCompostas());
    m_pintura = JanelasCompostas() ? m_picture.Vazada(chave) : m_picture.Coberta(chave);
    Recorta();
}

void Form::Recorta()
{
    if (m_regiao && windowHandle() != nullptr) {
        RecortaJanela(*windowHandle(), m_regiao);
    }
}

void Form::AvisaMudanca()
{
    if (std::exchange(m_mudancaPorContar, true)) {
        return;
    }
    const auto conta = [this] {
        m_mudancaPorContar = false;
        ContaMudancas(*this);
    };
    QMetaObject::invokeMethod(this, conta, Qt::QueuedConnection);
}

void Form::paintEvent(QPaintEvent * /*evento*/)
{
    m_pintada = true;
    if (!m_picture.IsNull()) {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        pintor.drawPixmap(QRect(QPoint(), m_pintura.Tamanho()),
                          m_pintura.ParaEscala(devicePixelRatioF()));
    }
}

void Form::mouseMoveEvent(QMouseEvent *evento)
{
    if (MouseMove) {
        MouseMove({evento->buttons(), evento->position().toPoint()});
    }
}

void Form::mouseReleaseEvent(QMouseEvent *evento)
{
    if (Click && evento->button() == Qt::LeftButton) {
        Click();
    }
}

void Form::keyPressEvent(QKeyEvent *evento)
{
    if (evento->isAutoRepeat() || (KeyDown && KeyDown(evento->key()))) {
        return;
    }
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        TrataEnter();
    } else if (evento->key() == Qt::Key_Escape && Esc) {
        Esc();
    } else {
        QWidget::keyPressEvent(evento);
    }
}

void Form::TrataEnter()
{
    if (EnterPadrao) {
        EnterPadrao();
        return;
    }
    for (const auto &controle : m_controls) {
        auto *botao = dynamic_cast<CommandButton *>(controle.get());
        if (botao != nullptr && botao->Default()) {
            botao->Aciona();
            return;
        }
    }
}

void Form::closeEvent(QCloseEvent *evento)
{
    // The program closes a form by Unload; here somebody outside asks.
    evento->ignore();
    if (QueryClose) {
        QueryClose();
    } else {
        Unload();
    }
}

void Form::showEvent(QShowEvent *evento)
{
    QWidget::showEvent(evento);
    Recorta();
    // Another screen can have another resolution.
    QObject::connect(windowHandle(), &QWindow::screenChanged, this, &Form::Recorta,
                     Qt::UniqueConnection);
    m_pintada = false;
    m_ativadoNestaMostra = false;
    // Where no window manager tells us that we are active, being shown must do.
    QTimer::singleShot(0, this, [this] {
        if (isVisible() && !m_ativadoNestaMostra) {
            m_ativadoPorMostra = true;
            DisparaActivate();
        }
    });
}

void Form::hideEvent(QHideEvent *evento)
{
    QWidget::hideEvent(evento);
    if (!evento->spontaneous()) {
        DevolveTeclado(*this);
    }
}

void Form::DisparaActivate()
{
    m_ativadoNestaMostra = true;
    if (Activate) {
        Activate();
    }
}

bool Form::event(QEvent *evento)
{
    if (evento->type() == QEvent::WindowActivate) {
        const bool feito = QWidget::event(evento);
        // The activation that belongs to a showing already reported is no new one.
        if (!std::exchange(m_ativadoPorMostra, false)) {
            DisparaActivate();
        }
        return feito;
    }
    return QWidget::event(evento);
}

} // namespace toolkit
