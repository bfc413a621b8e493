#include "tests/ui/support/listener.h"

#include <map>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

std::map<QAccessible::Event, QStringList> &Recebidos()
{
    static std::map<QAccessible::Event, QStringList> recebidos;
    return recebidos;
}

/// Says whether assistive technology is there; otherwise the system alone can.
void Ativa(bool ativa)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(ativa);
}

void Recebe(QAccessibleEvent *evento)
{
    if (const QAccessibleInterface *leitura = evento->accessibleInterface()) {
        Recebidos()[evento->type()] << leitura->text(QAccessible::Name);
    }
}

} // namespace

Ouvinte::Ouvinte()
{
    Recebidos().clear();
    Ativa(true);
    QAccessible::installUpdateHandler(Recebe);
}

Ouvinte::~Ouvinte()
{
    QAccessible::installUpdateHandler(nullptr);
    Ativa(false);
}

QStringList Ouvinte::Ouvidos(QAccessible::Event tipo)
{
    QCoreApplication::processEvents();
    return std::exchange(Recebidos()[tipo], {});
}

QAccessibleInterface &Ouvinte::De(const toolkit::Control &controle)
{
    QAccessibleInterface *leitura = QAccessible::queryAccessibleInterface(controle.Widget());
    Q_ASSERT(leitura != nullptr);
    return *leitura;
}

QString Ouvinte::Nome(const toolkit::Control &controle)
{
    return De(controle).text(QAccessible::Name);
}

bool Ouvinte::Inativo(const toolkit::Control &controle)
{
    return De(controle).state().disabled;
}

void Ouvinte::Pressiona(const toolkit::Control &controle)
{
    QAccessibleActionInterface *acoes = De(controle).actionInterface();
    if (acoes != nullptr && !acoes->actionNames().isEmpty()) {
        acoes->doAction(acoes->actionNames().constFirst());
    }
    QCoreApplication::processEvents();
}

QList<QAccessibleInterface *> Ouvinte::Arvore(QAccessibleInterface &raiz)
{
    QList<QAccessibleInterface *> arvore;
    for (int k = 0; k < raiz.childCount(); ++k) {
        QAccessibleInterface *filho = raiz.child(k);
        arvore << filho << Arvore(*filho);
    }
    return arvore;
}
