#include "ui/toolkit/announcer.h"

#include <QAccessible>
#include <utility>

namespace toolkit {

Anunciador::Anunciador(QWidget &janela) : QWidget(&janela)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    lower();
}

void Anunciador::Anuncia(const QString &texto)
{
    if (!QAccessible::isActive()) {
        return;
    }
    if (m_pendentes.isEmpty()) {
        QMetaObject::invokeMethod(this, &Anunciador::Diz, Qt::QueuedConnection);
    }
    m_pendentes << texto;
}

void Anunciador::Diz()
{
    m_texto = std::exchange(m_pendentes, {}).join(u' ');
    // Screen readers on Linux read out a notification that comes up, others listen to alerts.
    for (const auto tipo :
         {QAccessible::NameChanged, QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent evento(this, tipo);
        QAccessible::updateAccessibility(&evento);
    }
}

} // namespace toolkit
