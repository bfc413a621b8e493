#include "ui/toolkit/accessible_factory.h"

#include "ui/toolkit/accessible_control.h"
#include "ui/toolkit/announcer.h"
#include "ui/toolkit/overflow.h"

#include <QAccessibleWidget>

namespace toolkit {

namespace {

class LeituraForm final : public LeituraWidget
{
public:
    explicit LeituraForm(QWidget &form) : LeituraWidget(form) {}

    [[nodiscard]] QAccessible::Role role() const override
    {
        return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
    }
};

class LeituraAnuncio final : public QAccessibleWidget
{
public:
    explicit LeituraAnuncio(Anunciador &anunciador)
        : QAccessibleWidget(&anunciador, QAccessible::Notification)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text texto) const override
    {
        // Null while the widget is being destroyed.
        const auto *anunciador = dynamic_cast<const Anunciador *>(widget());
        return anunciador != nullptr && texto == QAccessible::Name ? anunciador->Texto()
                                                                   : QString();
    }
};

/// What the bubble says is announced; the window that shows its far end has nothing to add.
class LeituraTransbordo final : public QAccessibleWidget
{
public:
    explicit LeituraTransbordo(Transbordo &janela) : QAccessibleWidget(&janela) {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State estado = QAccessibleWidget::state();
        estado.invisible = true;
        return estado;
    }
};

QAccessibleInterface *Fabrica(const QString & /*classe*/, QObject *objeto)
{
    if (dynamic_cast<JanelaDeControles *>(objeto) != nullptr) {
        return new LeituraForm(static_cast<QWidget &>(*objeto));
    }
    if (auto *anunciador = dynamic_cast<Anunciador *>(objeto)) {
        return new LeituraAnuncio(*anunciador);
    }
    if (auto *transbordo = dynamic_cast<Transbordo *>(objeto)) {
        return new LeituraTransbordo(*transbordo);
    }
    auto *dele = dynamic_cast<WidgetDeControle *>(objeto);
    return dele == nullptr ? nullptr : CriaLeitura(static_cast<QWidget &>(*objeto), *dele);
}

} // namespace

void InstalaAcessibilidade()
{
    QAccessible::installFactory(Fabrica);
}

void ContaMudancas(const QWidget &janela)
{
    const auto widgets = janela.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (dynamic_cast<WidgetDeControle *>(widget) != nullptr) {
            QAccessibleInterface *leitura = QAccessible::queryAccessibleInterface(widget);
            if (auto *nossa = dynamic_cast<LeituraControle *>(leitura)) {
                nossa->ContaMudanca();
            }
        }
    }
}

} // namespace toolkit
