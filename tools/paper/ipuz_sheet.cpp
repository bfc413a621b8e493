#include "tools/paper/formats.h"

#include "tools/bank_source.h"
#include <algorithm>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString &Bloco()
{
    static const QString bloco = QStringLiteral("#");
    return bloco;
}

/// The label of a cell: a number, "3/7" where two words begin, 0 where none does.
QJsonValue Rotulo(const CasaFolha &casa)
{
    if (casa.horizontal != 0 && casa.vertical != 0) {
        return QStringLiteral("%1/%2")
            .arg(std::min(casa.horizontal, casa.vertical))
            .arg(std::max(casa.horizontal, casa.vertical));
    }
    return casa.horizontal + casa.vertical;
}

/// The sides of a cell, of right and bottom, that part it from a neighbour it has no word with.
QString Barras(const Folha &folha, int l, int c)
{
    const CasaFolha casa = folha.Casa(l, c);
    return (!casa.seguePraDireita && folha.Casa(l, c + 1).Existe() ? QStringLiteral("R")
                                                                   : QString()) +
           (!casa.seguePraBaixo && folha.Casa(l + 1, c).Existe() ? QStringLiteral("B") : QString());
}

QJsonValue CasaDoQuadro(const Folha &folha, int l, int c)
{
    const QJsonValue rotulo = Rotulo(folha.Casa(l, c));
    const QString barras = Barras(folha, l, c);
    return barras.isEmpty()
               ? rotulo
               : QJsonValue(QJsonObject{
                     {QStringLiteral("cell"), rotulo},
                     {QStringLiteral("style"), QJsonObject{{QStringLiteral("barred"), barras}}}});
}

QJsonArray Dicas(const std::vector<PalavraFolha> &palavras)
{
    QJsonArray dicas;
    for (const PalavraFolha &p : palavras) {
        dicas.append(QJsonArray{p.numero, p.dica});
    }
    return dicas;
}

} // namespace

QByteArray IpuzDaFolha(const Folha &folha, const OrigemFolha &origem)
{
    QJsonArray quadro;
    QJsonArray solucao;
    for (int l = 0; l < folha.linhas; ++l) {
        QJsonArray linha;
        QJsonArray letras;
        for (int c = 0; c < folha.colunas; ++c) {
            const CasaFolha casa = folha.Casa(l, c);
            linha.append(casa.Existe() ? CasaDoQuadro(folha, l, c) : Bloco());
            letras.append(casa.Existe() ? QString(casa.letra) : Bloco());
        }
        quadro.append(linha);
        solucao.append(letras);
    }
    const QJsonObject jogo{
        {QStringLiteral("version"), QStringLiteral("http://ipuz.org/v2")},
        {QStringLiteral("kind"), QJsonArray{QStringLiteral("http://ipuz.org/crossword#1")}},
        {QStringLiteral("title"), origem.titulo},
        {QStringLiteral("origin"), FalaOrigem(origem)},
        {QStringLiteral("charset"), QString::fromUtf16(kAlfabeto)},
        {QStringLiteral("dimensions"), QJsonObject{{QStringLiteral("width"), folha.colunas},
                                                   {QStringLiteral("height"), folha.linhas}}},
        {QStringLiteral("block"), Bloco()},
        {QStringLiteral("empty"), 0},
        {QStringLiteral("puzzle"), quadro},
        {QStringLiteral("solution"), solucao},
        {QStringLiteral("clues"), QJsonObject{{QStringLiteral("Across"), Dicas(folha.horizontais)},
                                              {QStringLiteral("Down"), Dicas(folha.verticais)}}}};
    return QJsonDocument(jogo).toJson(QJsonDocument::Compact) + '\n';
}
