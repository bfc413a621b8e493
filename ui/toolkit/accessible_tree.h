#pragma once

#include <QAccessibleWidget>

/// The tree that assistive technology walks. It is not that of the widgets: shadows, templates and
/// helpers are not in it, and what lies in a helper counts as lying in its container.

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

/// Whether a click of the player in the middle of `widget` would reach it: it shows, nothing lies
/// over it there, and no modal window keeps the player from its window.
bool RecebeClique(const QWidget &widget);
/// The same, where no heed is paid to modal windows.
bool EstaDescoberto(const QWidget &widget);

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

} // namespace toolkit
