#include "tools/paper/formats.h"

#include <algorithm>

namespace {

/// Units of the drawing for one cell.
constexpr int kCasa = 20;
/// What the grid may take of an A4 page, so that 26 long clues go below it, and the largest cell,
/// in millimetres.
constexpr double kLarguraMm = 184;
constexpr double kAlturaMm = 158;
constexpr double kMaiorCasaMm = 9;

constexpr const char *kEstilo = R"(@page{size:A4;margin:12mm}
*{box-sizing:border-box}
body{margin:0 auto;max-width:186mm;font:9.5pt/1.25 "Liberation Sans",Arial,sans-serif;color:#000}
section{break-after:page;padding-top:1mm}
section:last-of-type{break-after:auto}
h1{font-size:15pt;margin:0 0 2mm;overflow-wrap:anywhere}
h2{font-size:10pt;margin:0 0 1mm;break-after:avoid}
.nome{display:flex;gap:6mm;margin:0 0 4mm;font-size:11pt}
.nome span{flex:1;border-bottom:.3mm solid}
.nome span+span{flex:0 0 45mm}
svg{display:block;margin:0 auto 4mm;font-family:"Liberation Sans",Arial,sans-serif}
.dicas{columns:3;column-gap:5mm}
ol{list-style:none;margin:0 0 2mm;padding:0}
li{padding-left:6mm;text-indent:-6mm;break-inside:avoid;overflow-wrap:anywhere}
li b{display:inline-block;width:6mm;text-indent:0}
.origem{font-size:6.5pt;margin:2mm 0 0}
@media screen{section{margin:8mm 0}})";

QString Tamanho(const Folha &folha)
{
    const double casa =
        std::min({kMaiorCasaMm, kLarguraMm / folha.colunas, kAlturaMm / folha.linhas});
    return QStringLiteral("width=\"%1mm\" height=\"%2mm\" viewBox=\"-1 -1 %3 %4\"")
        .arg(casa * folha.colunas, 0, 'f', 1)
        .arg(casa * folha.linhas, 0, 'f', 1)
        .arg(folha.colunas * kCasa + 2)
        .arg(folha.linhas * kCasa + 2);
}

/// One part of the drawing: text that grows cell by cell.
struct Desenho
{
    QString casas;
    QString barras;
    QString numeros;
    QString letras;
};

QString Texto(int x, int y, const QString &texto)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\">%3</text>").arg(x).arg(y).arg(texto);
}

void DesenhaCasa(Desenho &desenho, const Folha &folha, int l, int c)
{
    const CasaFolha casa = folha.Casa(l, c);
    const int x = c * kCasa;
    const int y = l * kCasa;
    desenho.casas += QStringLiteral("M%1 %2h%3v%3h-%3z").arg(x).arg(y).arg(kCasa);
    if (!casa.seguePraDireita && folha.Casa(l, c + 1).Existe()) {
        desenho.barras += QStringLiteral("M%1 %2v%3").arg(x + kCasa).arg(y).arg(kCasa);
    }
    if (!casa.seguePraBaixo && folha.Casa(l + 1, c).Existe()) {
        desenho.barras += QStringLiteral("M%1 %2h%3").arg(x).arg(y + kCasa).arg(kCasa);
    }
    desenho.letras += Texto(x + kCasa / 2, y + kCasa - 3, EscapaHtml(QString(casa.letra)));
    if (casa.horizontal != 0 || casa.vertical != 0) {
        const bool duas = casa.horizontal != 0 && casa.vertical != 0;
        const int primeiro = duas ? std::min(casa.horizontal, casa.vertical) : 0;
        const int ultimo = std::max(casa.horizontal, casa.vertical);
        desenho.numeros += Texto(x + 1, y + 6,
                                 duas ? QStringLiteral("%1/%2").arg(primeiro).arg(ultimo)
                                      : QString::number(ultimo));
    }
}

QString Figura(const Folha &folha, bool solucao)
{
    Desenho desenho;
    for (int l = 0; l < folha.linhas; ++l) {
        for (int c = 0; c < folha.colunas; ++c) {
            if (folha.Casa(l, c).Existe()) {
                DesenhaCasa(desenho, folha, l, c);
            }
        }
    }
    const QString letras =
        QStringLiteral("<g font-size=\"12\" text-anchor=\"middle\">%1</g>").arg(desenho.letras);
    return QStringLiteral("<svg %1 role=\"img\" aria-label=\"%2\"><path d=\"%3\" fill=\"none\" "
                          "stroke=\"#000\" stroke-width=\".8\"/><path d=\"%4\" fill=\"none\" "
                          "stroke=\"#000\" stroke-width=\"2.2\"/><g font-size=\"6.2\">%5</g>%6"
                          "</svg>\n")
        .arg(Tamanho(folha), solucao ? QStringLiteral("Solução") : QStringLiteral("Quadro"),
             desenho.casas, desenho.barras, desenho.numeros, solucao ? letras : QString());
}

QString Dicas(const QString &nome, const std::vector<PalavraFolha> &palavras)
{
    QString texto = QStringLiteral("<h2>%1</h2><ol>\n").arg(nome);
    for (const PalavraFolha &p : palavras) {
        texto += QStringLiteral("<li><b>%1</b>%2</li>\n")
                     .arg(QString::number(p.numero), EscapaHtml(p.dica));
    }
    return texto + QStringLiteral("</ol>\n");
}

QByteArray Pagina(const QString &titulo, const QString &corpo, const OrigemFolha &origem)
{
    return (QStringLiteral("<section>\n<h1>") + EscapaHtml(titulo) + QStringLiteral("</h1>\n") +
            corpo + QStringLiteral("<p class=\"origem\">") + EscapaHtml(FalaOrigem(origem)) +
            QStringLiteral("</p>\n</section>\n"))
        .toUtf8();
}

} // namespace

QString EscapaHtml(const QString &texto)
{
    QString seguro = texto;
    for (QChar &letra : seguro) {
        letra = letra.category() == QChar::Other_Control ? QChar(u' ') : letra;
    }
    return seguro.toHtmlEscaped();
}

QByteArray HtmlInicio(const QString &titulo)
{
    return (QStringLiteral("<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n"
                           "<meta charset=\"utf-8\">\n<title>") +
            EscapaHtml(titulo) + QStringLiteral("</title>\n<style>\n") +
            QString::fromUtf8(kEstilo) + QStringLiteral("\n</style>\n</head>\n<body>\n"))
        .toUtf8();
}

QByteArray HtmlFolha(const Folha &folha, const OrigemFolha &origem)
{
    const QString dicas = Dicas(QStringLiteral("Horizontais"), folha.horizontais) +
                          Dicas(QStringLiteral("Verticais"), folha.verticais);
    return Pagina(origem.titulo,
                  QStringLiteral("<p class=\"nome\"><span>Nome:</span><span>Data:</span></p>\n") +
                      Figura(folha, false) + QStringLiteral("<div class=\"dicas\">\n") + dicas +
                      QStringLiteral("</div>\n"),
                  origem);
}

QByteArray HtmlSolucao(const Folha &folha, const OrigemFolha &origem)
{
    return Pagina(QStringLiteral("Solução: ") + origem.titulo, Figura(folha, true), origem);
}

QByteArray HtmlFim()
{
    return "</body>\n</html>\n";
}
