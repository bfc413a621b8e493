#include "core/builder/build_state.h"

#include "core/builder/placement_tests.h"

bool Montagem::JaFoi(int k)
{
    return d.busca == BuscaUsadas::Indice ? m_marcas.JaFoi(k)
                                          : jafoi(d.banco.BancoPalavra[k], d.memoria, d.tabuleiro);
}

void Montagem::Poe(int k, int ponto, QChar sentido)
{
    Carrega_Palavra(d.tabuleiro, d.exibicao,
                    {d.banco.BancoPalavra[k], ponto, sentido, d.banco.BancoDica[k]});
    m_marcas.Marca(k);
}

const std::vector<Travessia> &Montagem::Travessias()
{
    if (m_itensDasTravessias == d.tabuleiro.QtdItens) {
        return m_travessias;
    }
    m_itensDasTravessias = d.tabuleiro.QtdItens;
    m_travessias.clear();
    for (int i = 1; i <= kCelulas; ++i) {
        if (!d.tabuleiro.Ocupada[i]) {
            continue;
        }
        // A cell where two words cross is offered the direction across, and finds a neighbour in
        // the way.
        const CelulaQuadrado &celula = d.tabuleiro.Quadrado[i];
        const bool desce = celula.Sentido == u'H';
        const int antes = Vazios(d.tabuleiro, i, desce ? u'T' : u'L');
        const int depois = antes > 0 ? Vazios(d.tabuleiro, i, desce ? u'D' : u'R') : 0;
        if (antes > 0 && depois > 0) {
            m_travessias.push_back(
                {i, desce ? u'V' : u'H', antes, depois, d.indice.PrimeirasPosicoes(celula.Letra)});
        }
    }
    return m_travessias;
}
