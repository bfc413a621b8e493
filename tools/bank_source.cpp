#include "tools/bank_source.h"

#include "core/bank/question_bank.h"
#include "core/files/codepage.h"
#include <QList>

QString LetraRecusada(const QString &palavra)
{
    for (const char32_t letra : palavra.toUcs4()) {
        const QString texto = QString::fromUcs4(&letra, 1);
        if (!QStringView(kAlfabeto).contains(texto)) {
            return texto;
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
