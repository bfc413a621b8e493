#pragma once

#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QPointer>
#include <QTimer>

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

    RoteiroDialogos() { qApp->installEventFilter(this); }
    ~RoteiroDialogos() override
    {
        for (const auto &[nome, passos] : m_cenas)
            ADD_FAILURE() << "never shown: " << qPrintable(nome);
    }
    Q_DISABLE_COPY_MOVE(RoteiroDialogos)

    /// The next modal form is to be `nome` (a form's object name); `passos` is run on it.
    void Espera(const QString &nome, const Passos &passos) { m_cenas.push_back({nome, passos}); }
    /// Number of scripts whose form has not come yet.
    [[nodiscard]] size_t Pendentes() const { return m_cenas.size(); }

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override
    {
        auto *form = evento->type() == QEvent::Show ? dynamic_cast<toolkit::Form *>(alvo) : nullptr;
        if (form != nullptr && form->isModal())
            QTimer::singleShot(0, form, [this, form] { Encena(*form); });
        return false;
    }

private:
    void Encena(toolkit::Form &form)
    {
        // The form hears of its activation by an event of its own.
        QCoreApplication::processEvents();
        const QPointer<toolkit::Form> viva(&form);
        const QString nome = form.objectName();
        if (m_cenas.empty() || m_cenas.front().first != nome) {
            ADD_FAILURE() << "not expected: " << qPrintable(nome);
        } else {
            const auto passos = m_cenas.front().second;
            m_cenas.pop_front();
            passos(form);
            EXPECT_FALSE(viva && viva->isVisible()) << "left open: " << qPrintable(nome);
        }
        if (viva && viva->isVisible()) viva->Unload();
    }

    std::deque<std::pair<QString, Passos>> m_cenas;
};

/// A test that opens dialogs from a game in play.
class TesteComDialogos : public ::testing::Test
{
protected:
    /// Starts a game on a screen of `dpi` dots per inch.
    explicit TesteComDialogos(int dpi = toolkit::kDpiPadrao) : jogo(1, BancoInventado(600), dpi)
    {
        jogo.Comeca();
    }
    /// Path of a file among those that the program writes.
    [[nodiscard]] QString Dados(QStringView nome) const
    {
        return Caminho(jogo.valores.PastaDados, nome);
    }

    JogoDeTeste jogo;
    RoteiroDialogos dialogos;
};
