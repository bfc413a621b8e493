#include "ui/toolkit/accessible_tree.h"

#include "ui/toolkit/announcer.h"
#include "ui/toolkit/control.h"

#include <algorithm>
#include <limits>
#include <QApplication>
#include <QMouseEvent>

namespace toolkit {

namespace {

enum class Presenca { Presente, Transparente, Ausente };

Presenca PresencaDe(const QWidget &widget)
{
    // What lies outside of its container nobody can find, but the focus can lie there.
    const bool fora = !widget.parentWidget()->rect().intersects(widget.geometry());
    if (widget.isHidden() || (fora && !widget.hasFocus())) {
        return Presenca::Ausente;
    }
    if (const auto *aviso = dynamic_cast<const Anunciador *>(&widget)) {
        return aviso->Texto().isEmpty() ? Presenca::Ausente : Presenca::Presente;
    }
    const auto *dele = dynamic_cast<const WidgetDeControle *>(&widget);
    if (dele == nullptr) {
        return Presenca::Presente;
    }
    const Acessivel &dito = dele->Dono().GetAcessivel();
    if (dito.presente && !dito.presente()) {
        return Presenca::Ausente;
    }
    return dele->Dono().PapelAtual() == Papel::Nenhum ? Presenca::Transparente : Presenca::Presente;
}

int OrdemDe(const QWidget *widget)
{
    if (const auto *dele = dynamic_cast<const WidgetDeControle *>(widget)) {
        return dele->Dono().GetAcessivel().ordem;
    }
    // The last announcement stands below everything else, as a status line does.
    return dynamic_cast<const Anunciador *>(widget) != nullptr ? std::numeric_limits<int>::max()
                                                               : 0;
}

void Junta(const QWidget &dentro, QWidgetList &lista)
{
    // Children lie from back to front.
    const QObjectList &filhos = dentro.children();
    for (auto um = filhos.rbegin(); um != filhos.rend(); ++um) {
        auto *filho = qobject_cast<QWidget *>(*um);
        if (filho == nullptr || filho->isWindow()) {
            continue;
        }
        const Presenca presenca = PresencaDe(*filho);
        if (presenca == Presenca::Presente) {
            lista << filho;
        } else if (presenca == Presenca::Transparente) {
            Junta(*filho, lista);
        }
    }
}

} // namespace

bool EstaNaArvore(const QWidget &widget)
{
    for (const QWidget *w = &widget; !w->isWindow(); w = w->parentWidget()) {
        const Presenca presenca = PresencaDe(*w);
        if (presenca == Presenca::Ausente || (w == &widget && presenca != Presenca::Presente)) {
            return false;
        }
    }
    return true;
}

QWidgetList FilhosLidos(const QWidget &dentro)
{
    QWidgetList lista;
    Junta(dentro, lista);
    std::stable_sort(lista.begin(), lista.end(),
                     [](const QWidget *a, const QWidget *b) { return OrdemDe(a) < OrdemDe(b); });
    return lista;
}

QWidget *PaiLido(const QWidget &widget)
{
    QWidget *pai = widget.parentWidget();
    while (pai != nullptr && !pai->isWindow()) {
        const auto *dele = dynamic_cast<const WidgetDeControle *>(pai);
        if (dele == nullptr || dele->Dono().PapelAtual() != Papel::Nenhum) {
            break;
        }
        pai = pai->parentWidget();
    }
    return pai;
}

bool EstaDescoberto(const QWidget &widget)
{
    const QWidget *janela = widget.window();
    return widget.isVisible() &&
           janela->childAt(widget.mapTo(janela, widget.rect().center())) == &widget;
}

bool RecebeClique(const QWidget &widget)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return EstaDescoberto(widget) && (modal == nullptr || modal == widget.window());
}

void Clica(QWidget &widget)
{
    const QPointer<QWidget> vivo(&widget);
    const QPointF meio = widget.rect().center();
    const QPointF global = widget.mapToGlobal(meio);
    for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        // The press may have destroyed the control.
        if (vivo) {
            const Qt::MouseButtons ainda =
                tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent evento(tipo, meio, global, Qt::LeftButton, ainda, Qt::NoModifier);
            QApplication::sendEvent(vivo, &evento);
        }
    }
}

int LeituraWidget::childCount() const
{
    return static_cast<int>(FilhosLidos(*widget()).size());
}

QAccessibleInterface *LeituraWidget::child(int indice) const
{
    const QWidgetList filhos = FilhosLidos(*widget());
    return indice < 0 || indice >= filhos.size()
               ? nullptr
               : QAccessible::queryAccessibleInterface(filhos[indice]);
}

int LeituraWidget::indexOfChild(const QAccessibleInterface *filho) const
{
    return filho == nullptr ? -1
                            : static_cast<int>(FilhosLidos(*widget()).indexOf(filho->object()));
}

QAccessibleInterface *LeituraWidget::childAt(int x, int y) const
{
    QWidget *em = widget()->childAt(widget()->mapFromGlobal(QPoint(x, y)));
    const QWidgetList filhos = FilhosLidos(*widget());
    while (em != nullptr && em != widget() && !filhos.contains(em)) {
        em = em->parentWidget();
    }
    return em == nullptr || em == widget() ? nullptr : QAccessible::queryAccessibleInterface(em);
}

} // namespace toolkit
