#pragma once

#include <array>
#include <functional>
#include <memory>
#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace toolkit {

/// A picture of the game: one drawing at its natural size and at twice and three times that size.
/// The larger ones are loaded when a screen asks for them. Copies share what is loaded.
class Picture
{
public:
    Picture() = default;

    /// Loads `:/figuras/<nome>.png`; its `@2x` and `@3x` stand beside it. The pictures are part of
    /// the executable, so a name that does not exist is a fault of the program.
    explicit Picture(const QString &nome);

    [[nodiscard]] bool IsNull() const { return !m_conteudo; }
    /// Natural size in pixels.
    [[nodiscard]] QSize Tamanho() const { return m_conteudo ? m_conteudo->pixels.size() : QSize(); }
    /// The natural picture's pixels, from which a window region is cut.
    [[nodiscard]] const QImage &Pixels() const { return m_conteudo->pixels; }
    /// The same picture with the pixels of exactly the colour `cor` painted over by their
    /// neighbours in the row.
    [[nodiscard]] Picture Coberta(QRgb cor) const;
    /// The same picture with the pixels of exactly the colour `cor` transparent.
    [[nodiscard]] Picture Vazada(QRgb cor) const;
    /// The drawing that is sharp on a screen of `escala` device pixels to the pixel: the smallest
    /// that is large enough. Its devicePixelRatio is its own scale.
    [[nodiscard]] const QPixmap &ParaEscala(qreal escala) const;
    /// That drawing brought to exactly `escala`, for those who show it without smoothing.
    [[nodiscard]] QPixmap NoTamanhoDe(qreal escala) const;

private:
    [[nodiscard]] Picture Tratada(const std::function<QImage(QImage)> &trato) const;

    struct Conteudo
    {
        QString nome;
        QImage pixels;
        /// What each drawing goes through once it is loaded, if anything.
        std::function<QImage(QImage)> trato;
        std::array<QPixmap, 3> desenhos;
    };

    std::shared_ptr<Conteudo> m_conteudo;
};

/// The pointer drawn in `figura`; `ponta` is its hot spot, in the picture's pixels.
QCursor Ponteiro(const Picture &figura, QPoint ponta);

} // namespace toolkit
