#include "core/builder/word_placing.h"

namespace {

void MarcaCelula(CelulaQuadrado &celula, QChar letra, int n, const PalavraPosta &posta)
{
    celula.Letra = letra;
    if (celula.Itens.isEmpty()) {
        celula.Itens = QString::number(n);
        celula.Sentido = posta.wSentido;
    } else {
        celula.Itens += u',' + QString::number(n);
        celula.Sentido = u'M';
    }
    celula.Fixa = celula.Fixa || posta.resolvida;
}

} // namespace

void Carrega_Palavra(Tabuleiro &tabuleiro, ExibicaoMontagem &exibicao, const PalavraPosta &posta)
{
    if (tabuleiro.QtdItens >= kItens) {
        return;
    }
    const int n = tabuleiro.QtdItens + 1;
    const int passo = PassoDe(posta.wSentido);
    for (int k = 0; passo != 0 && k < posta.Palavra.size(); ++k) {
        const int i = posta.ponto + passo * k;
        MarcaCelula(tabuleiro.Quadrado[i], posta.Palavra[k], n, posta);
        tabuleiro.Ocupada[i] = true;
        exibicao.MostraCelula(i);
        exibicao.DeixaEventos();
        exibicao.MostraSombra(i);
        exibicao.DeixaEventos();
    }
    tabuleiro.QtdItens = n;
    auto &item = tabuleiro.ItemPalavra[n];
    item.Palavra = posta.Palavra;
    item.Sentido = posta.wSentido;
    item.Ponto = posta.ponto;
    item.Dica = posta.Dica;
    exibicao.MostraNumero(n);
    exibicao.MostraAndamento((100 / (double{kItens} / n)) / 100);
}
