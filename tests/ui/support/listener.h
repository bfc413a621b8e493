#pragma once

#include "tests/ui/support/test_game.h"

#include <QAccessible>

/// A screen reader at work as long as the object lives: takes the events that the program raises
/// and asks the questions that it would ask.
class Ouvinte
{
public:
    Ouvinte();
    ~Ouvinte();

    /// Names of the objects that raised events of `tipo` since the last time, each as it was named
    /// then. Lets what is due happen first.
    [[nodiscard]] static QStringList Ouvidos(QAccessible::Event tipo);

    /// The interface of a control's widget.
    static QAccessibleInterface &De(const toolkit::Control &controle);
    static QString Nome(const toolkit::Control &controle);
    static bool Inativo(const toolkit::Control &controle);
    /// Does the control's first action, and lets what follows happen.
    static void Pressiona(const toolkit::Control &controle);
    /// All that lies below `raiz`, in reading order, containers before what lies in them.
    static QList<QAccessibleInterface *> Arvore(QAccessibleInterface &raiz);
};
