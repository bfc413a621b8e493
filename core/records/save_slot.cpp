#include "core/records/save_slot.h"

#include "core/files/ini_file.h"
#include <algorithm>
#include <optional>
#include <QLocale>

namespace {

constexpr int kMaximoDaPalavra = 15;

QString Secao(int n)
{
    return QStringLiteral("jogo%1").arg(n);
}

QString Chave(const char16_t *nome, int i)
{
    return QString::fromUtf16(nome) + QString::number(i);
}

/// What the words laid so far have made of a cell.
struct CelulaDoSlot
{
    QChar letra;
    bool deitada = false;
    bool emPe = false;
};

using GradeDoSlot = TabelaDe<CelulaDoSlot, kCelulas>;

std::optional<bool> LeBooleano(const QString &texto)
{
    const auto nome = texto.toLower();
    if (nome == u"true" || nome == u"-1" || nome == u"1") {
        return true;
    }
    if (nome == u"false" || nome == u"0") {
        return false;
    }
    return {};
}

std::optional<double> LeTempo(QString texto)
{
    bool legivel = false;
    const double tempo = texto.replace(u',', u'.').toDouble(&legivel);
    // Written this way round, so that what is no number fails too.
    return legivel && tempo >= 0 && tempo <= kMaximoDoTempo ? std::optional(tempo) : std::nullopt;
}

bool FicaNoTabuleiro(const RegistroItem &item)
{
    if (item.Ponto < 1 || item.Ponto > kCelulas) {
        return false;
    }
    const auto tamanho = item.Palavra.size();
    return item.Sentido == u'H' ? ColunaDe(item.Ponto) + tamanho <= kColunas
                                : LinhaDe(item.Ponto) + tamanho <= kLinhas;
}

/// Reads one item; what stays unread when it fails does not matter.
std::optional<FalhaDoSlot> LeItem(const LoteIni &lote, const QString &secao, int i,
                                  RegistroItem &item)
{
    item.Palavra = lote.Le(secao, Chave(u"Palavra", i));
    item.Dica = lote.Le(secao, Chave(u"Dica", i));
    const auto controle = [](QChar letra) { return letra.category() == QChar::Other_Control; };
    if (item.Palavra.isEmpty() || item.Palavra.size() > kMaximoDaPalavra ||
        std::any_of(item.Palavra.cbegin(), item.Palavra.cend(), controle)) {
        return FalhaDoSlot::Palavra;
    }
    const auto sentido = lote.Le(secao, Chave(u"Sentido", i));
    if (sentido != u"H" && sentido != u"V") {
        return FalhaDoSlot::Lugar;
    }
    item.Sentido = sentido.front();
    item.Ponto = lote.Le(secao, Chave(u"Ponto", i)).toInt();
    if (!FicaNoTabuleiro(item)) {
        return FalhaDoSlot::Lugar;
    }
    const auto resolvido = LeBooleano(lote.Le(secao, Chave(u"ItemResolvido", i)));
    item.ItemResolvido = resolvido.value_or(false);
    return resolvido ? std::nullopt : std::optional(FalhaDoSlot::Resolvido);
}

/// Lays an item that fits the board over those before it.
std::optional<FalhaDoSlot> DeitaItem(const RegistroItem &item, GradeDoSlot &grade)
{
    for (int k = 0; k < item.Palavra.size(); ++k) {
        auto &celula = grade[CelulaDaLetra(item, k)];
        bool &mesmoSentido = item.Sentido == u'H' ? celula.deitada : celula.emPe;
        if (mesmoSentido) {
            return FalhaDoSlot::Sobreposicao;
        }
        if ((celula.deitada || celula.emPe) && celula.letra != item.Palavra[k]) {
            return FalhaDoSlot::Cruzamento;
        }
        mesmoSentido = true;
        celula.letra = item.Palavra[k];
    }
    return {};
}

void EscreveItem(LoteIni &lote, const QString &secao, int i, const RegistroItem &item)
{
    lote.Escreve(secao, Chave(u"Palavra", i), item.Palavra);
    lote.Escreve(secao, Chave(u"Dica", i), item.Dica);
    lote.Escreve(secao, Chave(u"Ponto", i), QString::number(item.Ponto));
    lote.Escreve(secao, Chave(u"Sentido", i), item.Sentido);
    lote.Escreve(secao, Chave(u"ItemResolvido", i),
                 item.ItemResolvido ? QStringLiteral("True") : QStringLiteral("False"));
}

} // namespace

bool SalvaSlot(const QString &arquivo, int n, const QString &nome, const Tabuleiro &tabuleiro,
               double tempoSegundos, const QString &separadorDecimal)
{
    Q_ASSERT(n >= 1 && n <= kSlots && tabuleiro.QtdItens == kItens);
    Q_ASSERT(tempoSegundos >= 0 && tempoSegundos <= kMaximoDoTempo);
    auto tempo = QString::number(tempoSegundos, 'f', QLocale::FloatingPointShortest);
    if (separadorDecimal == u",") {
        tempo.replace(u'.', u',');
    }
    return MudaIni(arquivo, [&](LoteIni &lote) {
        const auto secao = Secao(n);
        lote.Escreve(secao, QStringLiteral("Nome"), nome);
        for (int i = 1; i <= kItens; ++i) {
            EscreveItem(lote, secao, i, tabuleiro.ItemPalavra[i]);
        }
        lote.Escreve(secao, QStringLiteral("Tempo"), tempo);
    });
}

std::variant<JogoSalvo, FalhaDoSlot> LeSlot(const QString &arquivo, int n)
{
    Q_ASSERT(n >= 1 && n <= kSlots);
    const LoteIni lote(arquivo);
    JogoSalvo jogo;
    GradeDoSlot grade;
    for (int i = 1; i <= kItens; ++i) {
        auto &item = jogo.itens[i];
        auto falha = LeItem(lote, Secao(n), i, item);
        if (!falha) {
            falha = DeitaItem(item, grade);
        }
        if (falha) {
            return *falha;
        }
    }
    const auto tempo = LeTempo(lote.Le(Secao(n), QStringLiteral("Tempo")));
    if (!tempo) {
        return FalhaDoSlot::Tempo;
    }
    jogo.tempo = *tempo;
    return jogo;
}

NomesSalvos NomesDosSlots(const QString &arquivo)
{
    const LoteIni lote(arquivo);
    NomesSalvos nomes;
    nomes.lidos = lote.Legivel();
    for (int n = 1; n <= kSlots; ++n) {
        nomes.nome[n] = lote.Le(Secao(n), QStringLiteral("Nome"));
    }
    return nomes;
}
