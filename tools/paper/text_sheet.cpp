#include "tools/paper/formats.h"

#include <QStringList>

namespace {

/// Columns of the terminal for one cell with the line left of it, and for what stands left of all.
constexpr int kPassoX = 3;
constexpr int kPassoY = 2;
constexpr int kMargem = 2;

/// Meeting lines, by the directions in which they go: 1 up, 2 right, 4 down, 8 left.
constexpr QStringView kEncontros = u" ╵╶└╷│┌├╴┘─┴┐┤┬┼";

/// Characters on squared paper.
class Grade
{
public:
    explicit Grade(const Folha &folha) : m_folha(folha)
    {
        const QString vazia(kMargem + folha.colunas * kPassoX + 1, u' ');
        for (int y = 0; y <= folha.linhas * kPassoY; ++y) {
            m_linhas << vazia;
        }
    }

    QStringList Desenha(bool solucao)
    {
        for (int l = 0; l <= m_folha.linhas; ++l) {
            for (int c = 0; c <= m_folha.colunas; ++c) {
                PoeLinhas(l, c);
            }
        }
        for (int l = 0; l < m_folha.linhas; ++l) {
            for (int c = 0; c < m_folha.colunas; ++c) {
                PoeCasa(l, c, solucao);
            }
        }
        for (QString &linha : m_linhas) {
            while (linha.endsWith(u' ')) {
                linha.chop(1);
            }
        }
        return m_linhas;
    }

private:
    [[nodiscard]] bool Existe(int l, int c) const { return m_folha.Casa(l, c).Existe(); }
    /// Whether a line runs along the upper side of a cell, or along its left side.
    [[nodiscard]] bool LinhaAcima(int l, int c) const { return Existe(l - 1, c) || Existe(l, c); }
    [[nodiscard]] bool LinhaAEsquerda(int l, int c) const
    {
        return Existe(l, c - 1) || Existe(l, c);
    }

    void Poe(int y, int x, QStringView texto)
    {
        m_linhas[y].replace(kMargem + x, texto.size(), texto.toString());
    }

    /// The upper left corner of a cell, its upper side and its left side. Double lines part cells
    /// that touch and have no word in common.
    void PoeLinhas(int l, int c)
    {
        const int encontro = (LinhaAEsquerda(l - 1, c) ? 1 : 0) | (LinhaAcima(l, c) ? 2 : 0) |
                             (LinhaAEsquerda(l, c) ? 4 : 0) | (LinhaAcima(l, c - 1) ? 8 : 0);
        Poe(l * kPassoY, c * kPassoX, kEncontros.mid(encontro, 1));
        if (LinhaAcima(l, c)) {
            const bool barra =
                Existe(l - 1, c) && Existe(l, c) && !m_folha.Casa(l - 1, c).seguePraBaixo;
            Poe(l * kPassoY, c * kPassoX + 1, barra ? u"══" : u"──");
        }
        if (LinhaAEsquerda(l, c)) {
            const bool barra =
                Existe(l, c - 1) && Existe(l, c) && !m_folha.Casa(l, c - 1).seguePraDireita;
            Poe(l * kPassoY + 1, c * kPassoX, barra ? u"║" : u"│");
        }
    }

    void PoeCasa(int l, int c, bool solucao)
    {
        const CasaFolha casa = m_folha.Casa(l, c);
        if (solucao && casa.Existe()) {
            Poe(l * kPassoY + 1, c * kPassoX + 1, QString(casa.letra));
        }
        if (casa.vertical != 0) {
            Poe(l * kPassoY, c * kPassoX + 1, QString::number(casa.vertical));
        }
        if (casa.horizontal != 0) {
            // Where the cell to the left is in use, the number goes above like the others, or,
            // where that place is taken, into the cell.
            const QString numero = QString::number(casa.horizontal).rightJustified(2);
            const bool livre = !Existe(l, c - 1);
            const int y = l * kPassoY + (livre || casa.vertical != 0 ? 1 : 0);
            Poe(y, c * kPassoX + (livre ? -2 : 1), livre ? numero : numero.trimmed());
        }
    }

    const Folha &m_folha;
    QStringList m_linhas;
};

void PoeDicas(QStringList &linhas, const QString &nome, const std::vector<PalavraFolha> &palavras)
{
    linhas << QString() << nome;
    for (const PalavraFolha &p : palavras) {
        linhas << QStringLiteral("%1. %2").arg(p.numero, 2).arg(p.dica);
    }
}

} // namespace

QByteArray TextoDaFolha(const Folha &folha, const OrigemFolha &origem, bool solucao)
{
    QStringList linhas{origem.titulo, QString()};
    linhas << Grade(folha).Desenha(solucao);
    PoeDicas(linhas, QStringLiteral("Horizontais"), folha.horizontais);
    PoeDicas(linhas, QStringLiteral("Verticais"), folha.verticais);
    linhas << QString() << FalaOrigem(origem) << QString();
    // A bank made by hand can hold anything, and a terminal obeys.
    QString texto = linhas.join(u'\n');
    for (QChar &letra : texto) {
        letra = letra.category() == QChar::Other_Control && letra != u'\n' ? QChar(u' ') : letra;
    }
    return texto.toUtf8() + '\n';
}
