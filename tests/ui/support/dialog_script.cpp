#include "tests/ui/support/dialog_script.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QEvent>
#include <QPointer>
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
    if (evento->type() == QEvent::Show) {
        auto *form = dynamic_cast<toolkit::Form *>(alvo);
        if (form != nullptr && form->isModal()) {
            Mostrou(*form);
        }
    }
    return QObject::eventFilter(alvo, evento);
}

void RoteiroDialogos::Mostrou(toolkit::Form &form)
{
    QTimer::singleShot(0, &form, [this, &form] { Encena(form); });
}

void RoteiroDialogos::Encena(toolkit::Form &form)
{
    // The form hears of its activation by an event of its own.
    QCoreApplication::processEvents();
    const QPointer<toolkit::Form> viva(&form);
    if (m_cenas.empty() || m_cenas.front().nome != form.objectName()) {
        ADD_FAILURE() << "not expected: " << qPrintable(form.objectName());
    } else {
        const Cena cena = m_cenas.front();
        m_cenas.pop_front();
        cena.passos(form);
        if (viva && viva->isVisible()) {
            ADD_FAILURE() << "left open: " << qPrintable(cena.nome);
        }
    }
    if (viva && viva->isVisible()) {
        viva->Unload();
    }
}
