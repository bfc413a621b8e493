#pragma once

#include "ui/toolkit/control.h"

class QPushButton;

namespace toolkit {

/// A push button. Fires Click for the mouse and for the keyboard alike.
class CommandButton final : public Control
{
public:
    explicit CommandButton(const Origem &origem);

    void SetCaption(const QString &caption);
    /// Enter anywhere on the form presses it.
    void SetDefault(bool padrao);
    [[nodiscard]] bool Default() const { return m_padrao; }
    /// Presses it.
    void Aciona();

protected:
    void MostraAspecto() override;
    /// A key held down, perhaps since the form before, does not press it.
    bool eventFilter(QObject *alvo, QEvent *evento) override;
    [[nodiscard]] bool ConsomeMouse() const override { return false; }

private:
    QPushButton *m_botao;
    bool m_padrao = false;
};

} // namespace toolkit
