#include "tests/core/fuzz_files.h"

namespace {

constexpr qsizetype kMaximoDeBytes = 1 << 16;

/// One damage at a place drawn by chance.
void Estraga(QByteArray &dados, const Alvo &alvo, Dado &dado)
{
    const auto posicao = static_cast<qsizetype>(Lanca(dado, static_cast<size_t>(dados.size()) + 1));
    const auto tamanho = static_cast<qsizetype>(Lanca(dado, 40));
    switch (Lanca(dado, 7)) {
    case 0:
        dados.insert(posicao, alvo.pedacos[Lanca(dado, alvo.pedacos.size())]);
        break;
    case 1:
        dados.replace(posicao, tamanho, alvo.pedacos[Lanca(dado, alvo.pedacos.size())]);
        break;
    case 2:
        dados.remove(posicao, tamanho);
        break;
    case 3:
        dados.insert(posicao, dados.mid(posicao, tamanho));
        break;
    case 4: // a stretch taken from elsewhere
        dados.insert(posicao, dados.mid(static_cast<qsizetype>(
                                            Lanca(dado, static_cast<size_t>(dados.size()) + 1)),
                                        tamanho));
        break;
    case 5:
        if (posicao < dados.size()) {
            dados[posicao] = static_cast<char>(Lanca(dado, 256));
        }
        break;
    default: // cut off, but seldom: all that stands behind is lost to the reader
        if (Lanca(dado, 8) == 0) {
            dados.truncate(posicao);
        }
        break;
    }
    dados.truncate(kMaximoDeBytes);
}

} // namespace

QString RodadaDeFuzz(const Alvo &alvo, Dado &dado)
{
    QByteArray dados = alvo.sementes[Lanca(dado, alvo.sementes.size())];
    for (auto golpes = Lanca(dado, 6); golpes > 0; --golpes) {
        Estraga(dados, alvo, dado);
    }
    const auto quebra = alvo.prova(dados, dado);
    if (quebra.isEmpty()) {
        return {};
    }
    return QStringLiteral("%1: %2\n%3")
        .arg(QString::fromUtf8(alvo.nome), quebra,
             QString::fromLatin1(dados.toPercentEncoding("[]= \"';")));
}
