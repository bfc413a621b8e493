#include "tests/ui/support/dialog_script.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <utility>

RoteiroDialogos::RoteiroDialogos()
{
    qApp->installEventFilter(this);
}

RoteiroDialogos::~RoteiroDialogos()
{
    for (const Cena &cena : m_cenas) {
        ADD_FAILURE() << "never shown: " << qPrintable(cena.nome);
    }
}

void RoteiroDialogos::Espera(const QString &nome, Passos passos)
{
    m_cenas.push_back({nome, std::move(passos)});
}

bool RoteiroDialogos::eventFilter(QObject *alvo, QEvent *evento)
{
    auto *form = evento->type() == QEvent::Show ? dynamic_cast<toolkit::Form *>(alvo) : nullptr;
    if (form != nullptr && form->isModal()) {
        QTimer::singleShot(0, form, [this, form] { Encena(*form); });
    }
    return QObject::eventFilter(alvo, evento);
}

void RoteiroDialogos::Encena(toolkit::Form &form)
{
    // The form hears of its activation by an event of its own.
    QCoreApplication::processEvents();
    if (!m_cenas.empty() && m_cenas.front().nome == form.objectName()) {
        EncenaProxima(form);
    } else {
        ADD_FAILURE() << "not expected: " << qPrintable(form.objectName());
    }
    form.Unload();
    if (QWidget *dona = form.parentWidget(); dona->isVisible()) {
        dona->activateWindow();
        QCoreApplication::processEvents();
    }
}

void RoteiroDialogos::EncenaProxima(toolkit::Form &form)
{
    const Cena cena = m_cenas.front();
    m_cenas.pop_front();
    cena.passos(form);
    if (form.isVisible()) {
        ADD_FAILURE() << "left open: " << qPrintable(cena.nome);
    }
}
