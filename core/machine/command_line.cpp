#include "core/machine/command_line.h"

#include "quadrelo_version.h"

#include <algorithm>

namespace {

constexpr char16_t kAjuda[] =
    u"Quadrelo, palavras cruzadas\n"
    u"Uso: quadrelo [opção]\n"
    u"\n"
    u"  --escala NÚMERO  o tamanho do jogo, de 0,5 a 4; 1,5 é uma vez e meia o normal.\n"
    u"                   O jogo nunca fica maior que a tela, e menor que o normal só fica\n"
    u"                   numa tela de alta resolução.\n"
    u"  --versao         diz a versão do jogo\n"
    u"  --ajuda          diz isto";

QString Versao()
{
    return QStringLiteral("Quadrelo %1.%2.%3")
        .arg(kVersaoMaior)
        .arg(kVersaoMenor)
        .arg(kVersaoRevisao);
}

/// Digits, and at most one comma or point between them.
std::optional<double> LeEscala(QString texto)
{
    texto.replace(u',', u'.');
    const auto serve = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; };
    if (!std::all_of(texto.cbegin(), texto.cend(), serve) || texto.startsWith(u'.') ||
        texto.endsWith(u'.')) {
        return {};
    }
    bool numero = false;
    const double escala = texto.toDouble(&numero);
    return numero && escala >= kMenorEscala && escala <= kMaiorEscala ? std::optional(escala)
                                                                      : std::nullopt;
}

void Recusa(LinhaDeComando &linha, const QString &motivo)
{
    linha.texto = QStringLiteral("quadrelo: ") + motivo;
    linha.erro = true;
}

void PoeEscala(LinhaDeComando &linha, const QString &valor)
{
    linha.escala = LeEscala(valor);
    if (!linha.escala) {
        Recusa(linha, QStringLiteral("--escala pede um número de 0,5 a 4, como em --escala 1,5; "
                                     "\"%1\" não serve.")
                          .arg(valor));
    }
}

} // namespace

LinhaDeComando LeLinhaDeComando(const QStringList &argumentos)
{
    LinhaDeComando linha;
    const QString escalaCom = QStringLiteral("--escala=");
    for (qsizetype k = 0; k < argumentos.size() && linha.texto.isEmpty(); ++k) {
        const QString &argumento = argumentos[k];
        if (argumento == u"--escala") {
            PoeEscala(linha, argumentos.value(++k));
        } else if (argumento.startsWith(escalaCom)) {
            PoeEscala(linha, argumento.sliced(escalaCom.size()));
        } else if (argumento == u"--versao" || argumento == u"--version") {
            linha.texto = Versao();
        } else if (argumento == u"--ajuda" || argumento == u"--help" || argumento == u"-h") {
            linha.texto = QStringView(kAjuda).toString();
        } else if (argumento.startsWith(u"--")) {
            Recusa(linha,
                   QStringLiteral("não conheço a opção %1; veja quadrelo --ajuda.").arg(argumento));
        }
    }
    return linha;
}
