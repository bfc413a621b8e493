#include "core/bank/used_words.h"

#include "core/files/ini_file.h"
#include <algorithm>

namespace {

const QString kSecao = QStringLiteral("Indice");

QString Chave(int k)
{
    return QStringLiteral("Palavra%1").arg(k);
}

QString PalavraDoItem(const Tabuleiro &tabuleiro, int n)
{
    return tabuleiro.ItemPalavra[n].Palavra;
}

void Reconta(MemoriaUsadas &memoria)
{
    memoria.QtdUsadas =
        static_cast<int>(std::count_if(memoria.PalavrasUsadas.begin(), memoria.PalavrasUsadas.end(),
                                       [](const QString &palavra) { return !palavra.isEmpty(); }));
}

} // namespace

void LeUsadas(MemoriaUsadas &memoria, const QString &arquivo)
{
    const LoteIni lote(arquivo);
    for (int k = 0; k <= kUsadas; ++k) {
        memoria.PalavrasUsadas[k] = lote.Le(kSecao, Chave(k));
    }
    Reconta(memoria);
}

void GravaUsadas(MemoriaUsadas &memoria, const QString &arquivo, const Tabuleiro &tabuleiro)
{
    Q_ASSERT(tabuleiro.QtdItens >= 0 && tabuleiro.QtdItens <= kItens);
    MudaIni(arquivo, [&tabuleiro](LoteIni &lote) {
        // Downwards, so that each word is read before its place is taken.
        for (int k = kUsadas; k > tabuleiro.QtdItens; --k) {
            lote.Escreve(kSecao, Chave(k), lote.Le(kSecao, Chave(k - kItens)));
        }
        for (int k = 1; k <= tabuleiro.QtdItens; ++k) {
            lote.Escreve(kSecao, Chave(k), PalavraDoItem(tabuleiro, k));
        }
    });
    LeUsadas(memoria, arquivo);
}

void EmpurraUsadas(MemoriaUsadas &memoria, const Tabuleiro &tabuleiro)
{
    Q_ASSERT(tabuleiro.QtdItens >= 0 && tabuleiro.QtdItens <= kItens);
    auto &palavras = memoria.PalavrasUsadas;
    for (int k = kUsadas; k > tabuleiro.QtdItens; --k) {
        palavras[k] = k >= kItens ? palavras[k - kItens] : QString();
    }
    for (int k = 1; k <= tabuleiro.QtdItens; ++k) {
        palavras[k] = PalavraDoItem(tabuleiro, k);
    }
    Reconta(memoria);
}
