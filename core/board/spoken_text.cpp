#include "core/board/spoken_text.h"

#include <algorithm>
#include <QStringList>
#include <vector>

namespace {

/// A place in a word: letter `k` (from 0) of item `item`.
struct LugarNoItem
{
    int item = 0;
    int k = 0;
};

const RegistroItem &Item(const Tabuleiro &tabuleiro, int n)
{
    return tabuleiro.ItemPalavra[n];
}

/// The items through a cell, by their geometry: the cell's own list is emptied by giving up.
std::vector<LugarNoItem> Lugares(const Tabuleiro &tabuleiro, int i, int selecionado)
{
    std::vector<LugarNoItem> lugares;
    for (int n = 1; n <= tabuleiro.QtdItens; ++n) {
        const RegistroItem &item = Item(tabuleiro, n);
        for (int k = 0; k < item.Palavra.size(); ++k) {
            if (CelulaDaLetra(item, k) == i) {
                lugares.push_back({n, k});
            }
        }
    }
    std::stable_partition(lugares.begin(), lugares.end(), [selecionado](const LugarNoItem &lugar) {
        return lugar.item == selecionado;
    });
    return lugares;
}

QString NumeroESentido(const Tabuleiro &tabuleiro, int n)
{
    const bool deitada = Item(tabuleiro, n).Sentido == u'H';
    return QString::number(n) +
           (deitada ? QStringLiteral(" horizontal") : QStringLiteral(" vertical"));
}

/// "1 horizontal, letra 2 de 5; 3 vertical, letra 1 de 7".
QString Lugar(const Tabuleiro &tabuleiro, int i, int selecionado)
{
    QStringList partes;
    for (const LugarNoItem &lugar : Lugares(tabuleiro, i, selecionado)) {
        partes << QStringLiteral("%1, letra %2 de %3")
                      .arg(NumeroESentido(tabuleiro, lugar.item))
                      .arg(lugar.k + 1)
                      .arg(Item(tabuleiro, lugar.item).Palavra.size());
    }
    return partes.join(QStringLiteral("; "));
}

QString Conta(int quantos, const QString &um, const QString &varios)
{
    return QStringLiteral("%1 %2").arg(quantos).arg(quantos == 1 ? um : varios);
}

} // namespace

QString FalaDica(const QString &dica)
{
    QString fala;
    for (qsizetype k = 0; k < dica.size(); ++k) {
        if (dica[k] != u'_') {
            fala += dica[k];
        } else if (k == 0 || dica[k - 1] != u'_') {
            fala += QStringLiteral("lacuna");
        }
    }
    return fala;
}

QString FalaCelula(const Tabuleiro &tabuleiro, int i, int selecionado, const QString &texto,
                   LetraFalada letra)
{
    const QString lugar = Lugar(tabuleiro, i, selecionado);
    if (lugar.isEmpty()) {
        return {};
    }
    if (texto.isEmpty()) {
        return lugar + QStringLiteral(": vazia");
    }
    const QString estado = letra == LetraFalada::Confirmada ? QStringLiteral(", confirmada")
                           : letra == LetraFalada::Revelada ? QStringLiteral(", revelada")
                                                            : QString();
    return lugar + QStringLiteral(": ") + texto + estado;
}

QString FalaDicas(const Tabuleiro &tabuleiro, int i, int selecionado)
{
    const auto lugares = Lugares(tabuleiro, i, selecionado);
    if (lugares.size() == 1) {
        return FalaDica(Item(tabuleiro, lugares.front().item).Dica);
    }
    QStringList partes;
    for (const LugarNoItem &lugar : lugares) {
        partes << NumeroESentido(tabuleiro, lugar.item) + QStringLiteral(": ") +
                      FalaDica(Item(tabuleiro, lugar.item).Dica);
    }
    return partes.join(QStringLiteral("; "));
}

QString FalaItem(const Tabuleiro &tabuleiro, int n, int selecionado, ItemFalado estado)
{
    if (n > tabuleiro.QtdItens) {
        return QString::number(n);
    }
    const RegistroItem &item = Item(tabuleiro, n);
    QStringList partes{
        NumeroESentido(tabuleiro, n),
        Conta(static_cast<int>(item.Palavra.size()), QStringLiteral("letra"),
              QStringLiteral("letras")),
        estado == ItemFalado::Aberto      ? QStringLiteral("não resolvida")
        : estado == ItemFalado::Resolvido ? QStringLiteral("resolvida")
                                          : QStringLiteral("revelada"),
    };
    if (n == selecionado && estado == ItemFalado::Aberto) {
        partes << QStringLiteral("selecionada");
    }
    return partes.join(QStringLiteral(", ")) + QStringLiteral(": ") + FalaDica(item.Dica);
}

QString FalaTempo(const QString &relogio)
{
    const QStringList numeros = relogio.split(u':');
    if (numeros.size() != 3) {
        return relogio;
    }
    const int horas = numeros[0].toInt();
    const int minutos = numeros[1].toInt();
    QString texto;
    if (horas > 0) {
        texto =
            Conta(horas, QStringLiteral("hora"), QStringLiteral("horas")) + QStringLiteral(", ");
    }
    if (horas > 0 || minutos > 0) {
        texto += Conta(minutos, QStringLiteral("minuto"), QStringLiteral("minutos")) +
                 QStringLiteral(" e ");
    }
    return texto + Conta(numeros[2].toInt(), QStringLiteral("segundo"), QStringLiteral("segundos"));
}

QString FalaBalao(const QString &legenda, bool deitada, bool emPe)
{
    const QStringList dicas = FalaDica(legenda).split(u'\r');
    if (dicas.size() == 2) {
        return QStringLiteral("Horizontal: %1; vertical: %2").arg(dicas[0], dicas[1]);
    }
    return (deitada ? QStringLiteral("Horizontal: ")
            : emPe  ? QStringLiteral("Vertical: ")
                    : QString()) +
           dicas.join(u' ');
}

QString FalaJulgamento(const QString &palavra, bool certa, int resolvidos)
{
    return certa ? QStringLiteral("Palavra certa: %1. %2.").arg(palavra, FalaResolvidos(resolvidos))
                 : QStringLiteral("Palavra errada. As letras não confirmadas foram apagadas.");
}

QString FalaLetraDada(const Tabuleiro &tabuleiro, int c, int selecionado)
{
    return QStringLiteral("Letra dada: %1. %2.")
        .arg(tabuleiro.Quadrado[c].Letra)
        .arg(Lugar(tabuleiro, c, selecionado));
}

QString FalaResolvidos(int resolvidos)
{
    return QStringLiteral("Resolvidas: %1 de %2").arg(resolvidos).arg(kItens);
}
