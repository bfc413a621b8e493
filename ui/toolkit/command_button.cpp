#include "ui/toolkit/command_button.h"

#include "ui/toolkit/keyboard.h"

#include <QPushButton>

namespace toolkit {

CommandButton::CommandButton(const Origem &origem)
    : Control(origem), m_botao(new QPushButton(origem.pai))
{
    UsaWidget(m_botao);
    QObject::connect(m_botao, &QPushButton::clicked, this, [this] {
        if (Click) {
            const auto copia = Click;
            copia();
        }
    });
}

void CommandButton::SetCaption(const QString &caption)
{
    m_botao->setText(caption);
}

void CommandButton::SetDefault(bool padrao)
{
    m_padrao = padrao;
    m_botao->setDefault(padrao);
}

void CommandButton::Aciona()
{
    m_botao->click();
}

bool CommandButton::eventFilter(QObject *alvo, QEvent *evento)
{
    return TeclaRepetida(*evento) || Control::eventFilter(alvo, evento);
}

void CommandButton::MostraAspecto()
{
    m_botao->setFont(FonteQt());
    m_botao->setEnabled(Enabled());
}

} // namespace toolkit
