#pragma once

#include "ui/toolkit/accessible.h"

#include <optional>
#include <QAccessibleWidget>

/// The accessibility interfaces of controls, for ui/toolkit/accessible.cpp alone.

namespace toolkit {

/// Whether `widget` can be found in the tree of its window.
bool EstaNaArvore(const QWidget &widget);
/// What lies in `dentro`, in reading order; controls that are Papel::Nenhum give way to what lies
/// in them.
QWidgetList FilhosLidos(const QWidget &dentro);
/// The container that `widget` counts as lying in; null for a window without an owner.
QWidget *PaiLido(const QWidget &widget);
/// Presses and releases the left button in the middle of `widget`.
void Clica(QWidget &widget);

/// A widget whose children are those of FilhosLidos.
class LeituraWidget : public QAccessibleWidget
{
public:
    explicit LeituraWidget(QWidget &widget) : QAccessibleWidget(&widget) {}

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int indice) const override;
    int indexOfChild(const QAccessibleInterface *filho) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
};

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
