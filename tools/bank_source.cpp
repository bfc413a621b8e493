#include "tools/bank_source.h"

#include "core/bank/question_bank.h"
#include "core/files/codepage.h"
#include <QList>

QString LetraRecusada(const QString &palavra)
{
    for (const char32_t letra : palavra.toUcs4()) {
        const auto texto = QChar::fromUcs4(letra);
        if (!QStringView(kAlfabeto).contains(texto)) {
            return QStringView(texto).toString();
        }
    }
    return {};
}

QByteArray CompilaBanco(const std::vector<EntradaFonte> &entradas)
{
    QByteArray bytes;
    for (const auto &entrada : entradas) {
        bytes += ParaCodePage(entrada.palavra).leftJustified(kBytesPalavra, ' ');
        bytes += ParaCodePage(entrada.dica).leftJustified(kBytesDica, ' ');
        bytes += ' ';
    }
    return bytes;
}
