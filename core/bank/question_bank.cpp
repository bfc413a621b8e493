#include "core/bank/question_bank.h"

#include "core/files/codepage.h"
#include <algorithm>
#include <QFile>

namespace {

QString Campo(const QByteArray &bytes, qsizetype inicio, qsizetype tamanho)
{
    qsizetype fim = inicio + tamanho;
    while (inicio < fim && bytes[inicio] == ' ') {
        ++inicio;
    }
    while (fim > inicio && bytes[fim - 1] == ' ') {
        --fim;
    }
    return DeCodePage(bytes.mid(inicio, fim - inicio));
}

} // namespace

void CarregaLista(BancoPerguntas &banco, const QString &arquivo)
{
    QFile ficheiro(arquivo);
    QByteArray bytes;
    if (!ficheiro.exists()) {
        // Opening for random access creates the file; whether that works makes no difference here.
        static_cast<void>(ficheiro.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    } else if (ficheiro.open(QIODevice::ReadOnly)) {
        bytes = ficheiro.read(qint64{kMaxPerguntas} * kBytesRegistro);
    }
    CarregaRegistros(banco, bytes);
}

void CarregaRegistros(BancoPerguntas &banco, const QByteArray &bytes)
{
    banco.BancoPalavra.fill({});
    banco.BancoDica.fill({});
    const auto registros = std::min<qsizetype>(bytes.size() / kBytesRegistro, kMaxPerguntas);
    banco.QtdPerguntas = static_cast<int>(registros);
    for (int k = 1; k <= banco.QtdPerguntas; ++k) {
        const qsizetype inicio = qsizetype{k - 1} * kBytesRegistro;
        banco.BancoPalavra[k] = Campo(bytes, inicio, kBytesPalavra);
        banco.BancoDica[k] = Campo(bytes, inicio + kBytesPalavra, kBytesDica);
    }
}
