#pragma once

#include "ui/toolkit/painted_control.h"

namespace toolkit {

enum class Alinhamento { Esquerda, Direita, Centro };

/// A text on a form. A carriage return breaks the line; an ampersand is a character like any other.
/// A line that is wider than the label is drawn narrower, so that no text is cut off.
class Label final : public PaintedControl
{
public:
    using PaintedControl::PaintedControl;

    [[nodiscard]] const QString &Caption() const { return m_caption; }
    void SetCaption(const QString &caption);
    /// The label sizes itself to its caption.
    void SetAutoSize(bool autoSize);
    void SetAlignment(Alinhamento alinhamento);
    /// Transparent: no ground is painted.
    void SetTransparente(bool transparente);
    /// 0: no border; 1: a thin frame.
    void SetBorderStyle(int borda);
    [[nodiscard]] int BorderStyle() const { return m_borda; }
    /// The caption, its lines joined.
    [[nodiscard]] QString NomePadrao() const override;

    /// A new member of the template's control array, hidden.
    void CopiaDe(const Label &molde);
    void Pinta(QPainter &pintor, QSize tamanho) override;

protected:
    void MostraAspecto() override;
    [[nodiscard]] Papel PapelPadrao() const override;

private:
    void Ajusta();

    QString m_caption;
    Alinhamento m_alinhamento = Alinhamento::Esquerda;
    bool m_autoSize = false;
    bool m_transparente = false;
    int m_borda = 0;
};

} // namespace toolkit
