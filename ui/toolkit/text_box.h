#pragma once

#include "ui/toolkit/control.h"
#include "ui/toolkit/label.h"

class QLineEdit;

namespace toolkit {

/// A one-line text box: a real one, with input methods, dead keys, clipboard and a menu of its own.
/// Line ends and other control characters, which a paste can bring, become blanks.
class TextBox final : public Control
{
public:
    explicit TextBox(const Origem &origem);

    [[nodiscard]] QString Text() const;
    void SetText(const QString &texto);
    /// Most characters that the box takes, by whatever way they come in; 0 means no limit.
    void SetMaxLength(int maximo);
    void SetAlignment(Alinhamento alinhamento);
    void SelecionaTudo();
    /// A cell of the board: the mouse selects words and not characters, text can be dropped only on
    /// the cell that has the cursor, and the menu belongs to that cell too.
    void SetCelula();

    /// The text has changed, by the player or by the program. Fires at once, inside the change, and
    /// only when the text really differs; can fire inside itself.
    std::function<void()> Change;

    void CopiaDe(const TextBox &molde);

protected:
    void MostraAspecto() override;
    [[nodiscard]] Papel PapelPadrao() const override { return Papel::Campo; }
    [[nodiscard]] bool ConsomeMouse() const override { return m_celula; }

private:
    class Campo;
    void TextoMudou();

    Campo *m_campo;
    bool m_celula = false;
};

} // namespace toolkit
