#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// A second, slow and plain implementation of reading and writing INI text, to hold the real one
/// against. Each function goes through all lines for each single question.

/// The lines of `texto`, each with its end.
inline QByteArrayList LinhasLentas(QByteArray texto)
{
    QByteArrayList linhas = {QByteArray()};
    for (qsizetype k = 0; k < texto.size(); ++k) {
        linhas.last() += texto[k];
        const bool meio = texto[k] == '\r' && k + 1 < texto.size() && texto[k + 1] == '\n';
        if (!meio && (texto[k] == '\r' || texto[k] == '\n')) {
            linhas.append(QByteArray());
        }
    }
    return linhas;
}

inline QByteArray AparaLento(QByteArray texto)
{
    while (texto.startsWith(' ') || texto.startsWith('\t')) {
        texto.remove(0, 1);
    }
    while (texto.endsWith(' ') || texto.endsWith('\t')) {
        texto.chop(1);
    }
    return texto;
}

inline QByteArray SemNulLento(const QByteArray &texto)
{
    return texto.split('\0').first();
}

/// Where the line is a header: its name in small letters behind a "[". Where it is a key: its name
/// in small letters behind a "=". Else empty.
inline QByteArray NomeLento(QByteArray linha)
{
    linha.replace('\r', "").replace('\n', "");
    linha = AparaLento(linha);
    if (linha.isEmpty() || linha.startsWith(';')) {
        return {};
    }
    if (linha.startsWith('[') && linha.contains(']')) {
        return '[' + SemNulLento(AparaLento(linha.mid(1).split(']').first())).toLower();
    }
    return '=' + SemNulLento(AparaLento(linha.split('=').first())).toLower();
}

/// Index of the key's line, or of the last line of the section's header and keys with `achou`
/// false, or -1 where there is no such section.
inline qsizetype ProcuraLento(const QByteArrayList &linhas, const QByteArray &secao,
                              const QByteArray &chave, bool &achou)
{
    const QByteArray cabecalho = '[' + AparaLento(SemNulLento(secao)).toLower();
    const QByteArray nome = '=' + AparaLento(SemNulLento(chave)).toLower();
    qsizetype ultima = -1;
    achou = false;
    for (qsizetype k = 0; k < linhas.size(); ++k) {
        const auto lido = NomeLento(linhas[k]);
        if (lido.startsWith('[') && ultima >= 0) {
            return ultima;
        }
        if (lido == cabecalho || (lido.startsWith('=') && ultima >= 0)) {
            ultima = k;
        }
        if (ultima >= 0 && lido == nome) {
            achou = true;
            return k;
        }
    }
    return ultima;
}

inline QByteArray ValorLento(const QByteArray &texto, const QByteArray &secao,
                             const QByteArray &chave)
{
    const auto linhas = LinhasLentas(texto);
    bool achou = false;
    const auto k = ProcuraLento(linhas, secao, chave, achou);
    if (!achou || !linhas[k].contains('=')) {
        return {};
    }
    auto valor = linhas[k].mid(linhas[k].indexOf('=') + 1);
    valor.replace('\r', "").replace('\n', "");
    valor = SemNulLento(AparaLento(valor));
    for (const char aspa : {'"', '\''}) {
        if (valor.size() > 1 && valor.startsWith(aspa) && valor.endsWith(aspa)) {
            return valor.mid(1, valor.size() - 2).left(254);
        }
    }
    return valor.left(254);
}

/// `texto` after a write.
inline QByteArray GravadoLento(QByteArray texto, const QByteArray &secao, const QByteArray &chave,
                               const QByteArray &valor)
{
    if (!texto.isEmpty() && !texto.endsWith('\r') && !texto.endsWith('\n')) {
        texto += "\r\n";
    }
    auto linhas = LinhasLentas(texto);
    bool achou = false;
    auto k = ProcuraLento(linhas, secao, chave, achou);
    if (k < 0) {
        linhas.append('[' + secao.mid(secao.indexOf(AparaLento(secao))) + "]\r\n");
        k = linhas.size() - 1;
    }
    if (achou) {
        const auto grafia = linhas[k].mid(linhas[k].toLower().indexOf(NomeLento(linhas[k]).mid(1)),
                                          NomeLento(linhas[k]).size() - 1);
        linhas[k] = grafia + '=' + SemNulLento(valor) + "\r\n";
    } else {
        linhas.insert(k + 1, chave.mid(chave.indexOf(AparaLento(chave))) + '=' +
                                 SemNulLento(valor) + "\r\n");
    }
    return linhas.join();
}
