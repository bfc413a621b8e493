#pragma once

#include "ui/toolkit/form.h"

#include <deque>
#include <functional>
#include <QObject>

/// What a test does with the modal forms that the program will show, in their order.
///
/// A modal form waits inside the call that shows it, so its script is set before that call and runs
/// within it, once the form is up and active. A script has to close its form. A form that nobody
/// expects, one that a script leaves open, and a script whose form never came are failures of the
/// test; none of them hangs.
class RoteiroDialogos final : public QObject
{
public:
    using Passos = std::function<void(toolkit::Form &form)>;

    RoteiroDialogos();
    ~RoteiroDialogos() override;

    /// The next modal form is to be `nome` (a form's object name); `passos` is run on it.
    void Espera(const QString &nome, Passos passos);
    /// Number of scripts whose form has not come yet.
    [[nodiscard]] size_t Pendentes() const { return m_cenas.size(); }

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    struct Cena
    {
        QString nome;
        Passos passos;
    };

    void Mostrou(toolkit::Form &form);
    void Encena(toolkit::Form &form);

    std::deque<Cena> m_cenas;
};
