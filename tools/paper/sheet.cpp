#include "tools/paper/sheet.h"

#include <algorithm>
#include <quadrelo_version.h>

namespace {

/// The rows and columns in use, from 0.
struct Moldura
{
    int topo = kLinhas;
    int base = -1;
    int esquerda = kColunas;
    int direita = -1;
};

Moldura MolduraDe(const Tabuleiro &tabuleiro)
{
    Moldura m;
    for (int i = 1; i <= kCelulas; ++i) {
        if (tabuleiro.Ocupada[static_cast<size_t>(i)]) {
            m.topo = std::min(m.topo, LinhaDe(i));
            m.base = std::max(m.base, LinhaDe(i));
            m.esquerda = std::min(m.esquerda, ColunaDe(i));
            m.direita = std::max(m.direita, ColunaDe(i));
        }
    }
    return m;
}

} // namespace

CasaFolha Folha::Casa(int linha, int coluna) const
{
    const bool dentro = linha >= 0 && linha < linhas && coluna >= 0 && coluna < colunas;
    return dentro ? casas[static_cast<size_t>(linha * colunas + coluna)] : CasaFolha{};
}

Folha FazFolha(const Tabuleiro &tabuleiro)
{
    const Moldura moldura = MolduraDe(tabuleiro);
    Folha folha;
    folha.linhas = moldura.base - moldura.topo + 1;
    folha.colunas = moldura.direita - moldura.esquerda + 1;
    folha.casas.resize(static_cast<size_t>(folha.linhas * folha.colunas));
    for (int n = 1; n <= tabuleiro.QtdItens; ++n) {
        const RegistroItem &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        const bool deitada = item.Sentido == u'H';
        for (int k = 0; k < item.Palavra.size(); ++k) {
            const int i = CelulaDaLetra(item, k);
            CasaFolha &casa = folha.casas[static_cast<size_t>(
                (LinhaDe(i) - moldura.topo) * folha.colunas + ColunaDe(i) - moldura.esquerda)];
            casa.letra = item.Palavra[k];
            (deitada ? casa.horizontal : casa.vertical) += k == 0 ? n : 0;
            (deitada ? casa.seguePraDireita : casa.seguePraBaixo) |= k + 1 < item.Palavra.size();
        }
        (deitada ? folha.horizontais : folha.verticais).push_back({n, item.Palavra, item.Dica});
    }
    return folha;
}

QString FalaOrigem(const OrigemFolha &origem)
{
    return QStringLiteral("Quadrelo %1.%2.%3")
               .arg(kVersaoMaior)
               .arg(kVersaoMenor)
               .arg(kVersaoRevisao) +
           QStringLiteral(" · banco %1 (%2 palavras) · semente %3 · jogo %4")
               .arg(origem.banco, QString::number(origem.perguntas),
                    QString::number(origem.semente), QString::number(origem.jogo)) +
           (origem.memoria ? QStringLiteral(" com memória") : QString());
}
