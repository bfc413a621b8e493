#include "tools/bank_figures.h"

#include "tools/house_rules.h"
#include "tools/puzzle_run.h"

#include <algorithm>
#include <QHash>
#include <QRegularExpression>

namespace {

constexpr int kFaixas = 8;
constexpr int kPalavrasDaCurta = 3;

bool Elidida(const QString &dica)
{
    static const QRegularExpression padrao(
        QStringLiteral("^(O|A|Os|As|Um|Uma) (de|do|da|dos|das|no|na|nos|nas|em|que|para|com) "));
    return padrao.match(dica).hasMatch();
}

/// Names and nothing else, with a comma or "ou" between them.
bool Lista(const QString &dica)
{
    static const QRegularExpression padrao(
        QStringLiteral("^\\p{Lu}[\\w-]*(, \\p{Lu}[\\w-]*)* ou \\p{Lu}[\\w-]*$"),
        QRegularExpression::UseUnicodePropertiesOption);
    return padrao.match(dica).hasMatch();
}

/// Whether some clue on the board holds another of its answers.
bool Conta(const Tabuleiro &tabuleiro)
{
    QStringList respostas;
    for (int n = 1; n <= kItens; ++n) {
        respostas << SemAcentos(tabuleiro.ItemPalavra[n].Palavra);
    }
    for (int n = 1; n <= kItens; ++n) {
        for (const QString &termo : PalavrasDaDica(tabuleiro.ItemPalavra[n].Dica)) {
            if (termo.size() >= kMenorCitada && respostas.contains(termo)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

FigurasDoBanco ContaFiguras(const std::vector<EntradaFonte> &entradas, int jogos)
{
    FigurasDoBanco f;
    f.entradas = static_cast<int>(entradas.size());
    f.porTamanho.resize(kFaixas);
    qsizetype caracteres = 0;
    for (const EntradaFonte &entrada : entradas) {
        const auto faixa = std::clamp<qsizetype>(entrada.palavra.size() - 3, 0, kFaixas - 1);
        ++f.porTamanho[static_cast<size_t>(faixa)];
        const auto palavras = entrada.dica.count(u' ') + 1;
        f.dicasDeUmaPalavra += palavras == 1 ? 1 : 0;
        f.curtas += palavras <= kPalavrasDaCurta ? 1 : 0;
        f.elididas += Elidida(entrada.dica) ? 1 : 0;
        f.listas += Lista(entrada.dica) ? 1 : 0;
        caracteres += entrada.dica.size();
    }
    f.mediaDaDica = static_cast<double>(caracteres) / std::max(1, f.entradas);

    const auto corrida = std::make_unique<Corrida>(1);
    CarregaRegistros(corrida->banco, CompilaBanco(entradas));
    const IndiceBanco indice(corrida->banco);
    while (indice.Serve() && f.jogos < jogos && MontaJogo(*corrida, indice)) {
        ++f.jogos;
        f.jogosQueContam += Conta(corrida->tabuleiro) ? 1 : 0;
        EmpurraUsadas(corrida->memoria, corrida->tabuleiro);
    }
    return f;
}
