#pragma once

#include "ui/toolkit/control.h"
#include "ui/toolkit/picture.h"
#include "ui/toolkit/picture_box.h"
#include "ui/toolkit/window_drag.h"

#include <memory>
#include <QWidget>
#include <vector>

class QEventLoop;

namespace toolkit {

/// The frame of a form: none (the form is its bitmap), none and no place in the task bar either, or
/// a tool window's with a title bar.
enum class Moldura { Nenhuma, Abertura, Ferramenta };

/// A window of the game. Lengths are in twips at the screen's DPI; there is no frame but a tool
/// window's, so outer size and client size are the same for the others.
///
/// Owns its controls, in the order of their creation.
class Form : public QWidget, public JanelaDeControles
{
public:
    /// `dpi`: dots per inch that a twip counts by.
    Form(Moldura moldura, int dpi);
    ~Form() override;

    [[nodiscard]] int Dpi() const { return m_dpi; }
    [[nodiscard]] const Picture &GetPicture() const { return m_picture; }
    void SetPicture(const Picture &picture);
    /// The icon `:/figuras/<nome><tamanho>.png` in the sizes that a task bar asks for.
    void SetIcone(const QString &nome);
    void SetCaption(const QString &caption) { setWindowTitle(caption); }

    [[nodiscard]] float Left() const { return m_left; }
    [[nodiscard]] float Top() const { return m_top; }
    /// Whether the form has been given a place; one that has not is centred on its owner when it is
    /// shown.
    [[nodiscard]] bool TemLugar() const { return m_lugarDado; }
    void SetLeft(float left);
    void SetTop(float top);
    [[nodiscard]] float Width() const { return m_width; }
    [[nodiscard]] float Height() const { return m_height; }
    void SetSize(float width, float height);
    /// Client size in twips; the forms that are measured by it have no frame.
    [[nodiscard]] float ScaleWidth() const { return m_width; }
    [[nodiscard]] float ScaleHeight() const { return m_height; }

    [[nodiscard]] const std::vector<std::unique_ptr<Control>> &Controls() const
    {
        return m_controls;
    }
    /// Makes a control in the form itself or, with `dentro`, in one of its picture boxes, behind
    /// all that lies there already.
    template <class T>
    T &Cria(const QString &nome, int indice = -1, const PictureBox *dentro = nullptr)
    {
        return static_cast<T &>(Guarda(std::make_unique<T>(OrigemDe(nome, indice, dentro))));
    }
    /// Destroys a control.
    void Descarrega(const Control &controle);
    /// The control of that name and index, or null.
    [[nodiscard]] Control *Procura(QStringView nome, int indice = -1) const;

    /// Shows the form, not modal.
    void Show();
    /// Whether the form has been painted since it was shown last.
    [[nodiscard]] bool Pintada() const { return m_pintada; }
    /// Shows the form modal on `dona` and waits until it is closed.
    void ShowModal(QWidget *dona);
    void Hide() { hide(); }
    /// Closes the form and ends the wait of ShowModal.
    void Unload();

    /// Moves the window with the pointer.
    [[nodiscard]] Arrasto &GetArrasto() { return m_arrasto; }
    /// Cuts the window to a region. `regiao` gives it in device pixels for a screen of `escala`
    /// device pixels to the pixel; an empty one leaves the window a rectangle. `chave` is the
    /// colour of the picture's pixels that lie outside: they are never shown.
    void SetWindowRgn(const std::function<QRegion(qreal escala)> &regiao, QRgb chave);

    void AvisaMudanca() override;

    /// Fires when the form becomes the active window, the first time at the latest when it is
    /// shown.
    std::function<void()> Activate;
    /// Fires once, on every way of closing, before the form is gone.
    std::function<void()> OnUnload;
    /// The window manager or the keyboard asks to close the form. Without a handler it closes.
    std::function<void()> QueryClose;
    std::function<void()> Click;
    std::function<void(const Mouse &)> MouseMove;
    /// A key (Qt::Key) that no control has taken. True: it is dealt with. Like the two below, it
    /// hears of a key that is held down once only: held from one form to the next, it would go
    /// through both.
    std::function<bool(int tecla)> KeyDown;
    /// Enter, where no button with the focus takes it. Without a handler it presses the form's
    /// default button.
    std::function<void()> EnterPadrao;
    /// Esc.
    std::function<void()> Esc;

protected:
    void paintEvent(QPaintEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void hideEvent(QHideEvent *evento) override;
    bool event(QEvent *evento) override;

private:
    [[nodiscard]] Origem OrigemDe(const QString &nome, int indice, const PictureBox *dentro);
    Control &Guarda(std::unique_ptr<Control> controle);
    void TrataEnter();
    void MostraTamanho();
    void DisparaActivate();
    void Recorta();

    int m_dpi;
    Picture m_picture;
    /// The picture as it is painted, without the key colour.
    Picture m_pintura;
    std::function<QRegion(qreal)> m_regiao;
    Arrasto m_arrasto{*this};
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    bool m_lugarDado = false;
    bool m_descarregado = false;
    bool m_pintada = false;
    bool m_ativadoNestaMostra = false;
    bool m_ativadoPorMostra = false;
    bool m_mudancaPorContar = false;
    QEventLoop *m_espera = nullptr;
    std::vector<std::unique_ptr<Control>> m_controls;
};

} // namespace toolkit
