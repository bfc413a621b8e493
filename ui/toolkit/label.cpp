#include "ui/toolkit/label.h"

#include "ui/toolkit/thin_frame.h"

#include <QPainter>
#include <QStringList>

namespace toolkit {

namespace {

QStringList Linhas(const QString &texto)
{
    return texto.split(u'\r');
}

} // namespace

void Label::SetCaption(const QString &caption)
{
    if (caption == m_caption) {
        return;
    }
    m_caption = caption;
    MostraAspecto();
}

void Label::SetAutoSize(bool autoSize)
{
    m_autoSize = autoSize;
    MostraAspecto();
}

void Label::SetAlignment(Alinhamento alinhamento)
{
    m_alinhamento = alinhamento;
    MostraAspecto();
}

void Label::SetTransparente(bool transparente)
{
    m_transparente = transparente;
    MostraAspecto();
}

void Label::SetBorderStyle(int borda)
{
    m_borda = borda;
    MostraAspecto();
}

QString Label::NomePadrao() const
{
    return Linhas(m_caption).join(u' ');
}

Papel Label::PapelPadrao() const
{
    return Click ? Papel::Botao : m_caption.isEmpty() ? Papel::Nenhum : Papel::Texto;
}

void Label::CopiaDe(const Label &molde)
{
    m_caption = molde.m_caption;
    m_alinhamento = molde.m_alinhamento;
    m_autoSize = molde.m_autoSize;
    m_transparente = molde.m_transparente;
    m_borda = molde.m_borda;
    CopiaBase(molde);
}

void Label::MostraAspecto()
{
    Ajusta();
    Control::MostraAspecto();
}

void Label::Ajusta()
{
    if (!m_autoSize) {
        return;
    }
    const QFontMetrics medidas(FonteQt());
    int largura = 0;
    const QStringList linhas = Linhas(m_caption);
    for (const QString &linha : linhas) {
        largura = qMax(largura, medidas.horizontalAdvance(linha));
    }
    const float porPixel = GetOrigem().porPixel;
    const auto altura = static_cast<float>(medidas.height()) * static_cast<float>(linhas.size());
    // A right-aligned label grows to the left.
    const float novaLargura = static_cast<float>(largura) * porPixel;
    const float left =
        m_alinhamento == Alinhamento::Direita ? Left() + Width() - novaLargura : Left();
    Move(left, Top(), novaLargura, altura * porPixel);
}

void Label::Pinta(QPainter &pintor, QSize tamanho)
{
    if (!m_transparente) {
        pintor.fillRect(QRect(QPoint(), tamanho), BackColor());
    }
    if (m_borda != 0) {
        PintaMoldura(pintor, tamanho, kPreto);
    }
    pintor.setFont(FonteQt());
    pintor.setPen(ForeColor());
    const QFontMetrics medidas(pintor.font());
    int base = medidas.ascent();
    for (const QString &linha : Linhas(m_caption)) {
        const int largura = medidas.horizontalAdvance(linha);
        const int sobra = tamanho.width() - largura;
        pintor.save();
        if (sobra < 0) {
            pintor.scale(static_cast<qreal>(tamanho.width()) / largura, 1);
            pintor.drawText(0, base, linha);
        } else {
            const int x = m_alinhamento == Alinhamento::Esquerda  ? 0
                          : m_alinhamento == Alinhamento::Direita ? sobra
                                                                  : sobra / 2;
            pintor.drawText(x, base, linha);
        }
        pintor.restore();
        base += medidas.height();
    }
}

} // namespace toolkit
