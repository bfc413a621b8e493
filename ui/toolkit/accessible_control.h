#pragma once

#include "ui/toolkit/accessible.h"
#include "ui/toolkit/accessible_tree.h"

#include <optional>

/// The accessibility interfaces of controls, made by the factory alone.

namespace toolkit {

/// A control. Remembers what it has said, so that it can tell what has changed.
class LeituraControle : public LeituraWidget
{
public:
    LeituraControle(QWidget &widget, const Control &controle)
        : LeituraWidget(widget), m_controle(controle)
    {
    }

    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QString text(QAccessible::Text texto) const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    [[nodiscard]] QString localizedActionName(const QString &acao) const override;
    [[nodiscard]] QString localizedActionDescription(const QString &acao) const override;
    /// A press takes place once the event at hand is dealt with: it may open a dialog or end the
    /// process, and whoever asked for it is waiting for an answer.
    void doAction(const QString &acao) override;

    /// Tells what is no longer as it was said last.
    void ContaMudanca();

private:
    [[nodiscard]] bool Aciona() const;
    [[nodiscard]] QString Nome() const;
    [[nodiscard]] QString Descricao() const;

    const Control &m_controle;
    mutable std::optional<QString> m_nomeDito;
    mutable std::optional<QString> m_descricaoDita;
    mutable std::optional<bool> m_inativoDito;
};

/// The interface of a control's widget.
LeituraControle *CriaLeitura(QWidget &widget, WidgetDeControle &dele);

} // namespace toolkit
