#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// A second, slow and plain implementation of reading and writing INI text, to hold the real one
/// against. Each function goes through all lines for each single question.

inline QByteArray AparaLento(QByteArray texto, const QByteArray &letras = " \t")
{
    while (!texto.isEmpty() && letras.contains(texto.front())) {
        texto.remove(0, 1);
    }
    while (!texto.isEmpty() && letras.contains(texto.back())) {
        texto.chop(1);
    }
    return texto;
}

/// The lines of `texto`, each with its end.
inline QByteArrayList LinhasLentas(const QByteArray &texto)
{
    QByteArrayList linhas = {QByteArray()};
    for (qsizetype k = 0; k < texto.size(); ++k) {
        linhas.last() += texto[k];
        const bool meio = texto.mid(k, 2) == "\r\n";
        if (!meio && (texto[k] == '\r' || texto[k] == '\n')) linhas.append(QByteArray());
    }
    return linhas;
}

inline QByteArray SemNulLento(const QByteArray &texto)
{
    return texto.split('\0').first();
}

/// Where the line is a header: its name behind a "[". Where it is a key: its name behind a "=".
/// Else empty.
inline QByteArray NomeLento(const QByteArray &inteira)
{
    const QByteArray linha = AparaLento(AparaLento(inteira, "\r\n"));
    if (linha.isEmpty() || linha.startsWith(';')) return {};
    const bool cabecalho = linha.startsWith('[') && linha.contains(']');
    const auto nome = cabecalho ? linha.mid(1).split(']').first() : linha.split('=').first();
    return (cabecalho ? '[' : '=') + SemNulLento(AparaLento(nome));
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
    for (qsizetype k = 0; k < linhas.size() && !achou; ++k) {
        const auto lido = NomeLento(linhas[k]).toLower();
        if (lido.startsWith('[') && ultima >= 0) return ultima;
        if (lido == cabecalho || (lido.startsWith('=') && ultima >= 0)) ultima = k;
        achou = ultima >= 0 && lido == nome;
    }
    return ultima;
}

inline QByteArray ValorLento(const QByteArray &texto, const QByteArray &secao,
                             const QByteArray &chave)
{
    const auto linhas = LinhasLentas(texto);
    bool achou = false;
    const auto k = ProcuraLento(linhas, secao, chave, achou);
    if (!achou || !linhas[k].contains('=')) return {};
    const auto linha = AparaLento(linhas[k], "\r\n");
    const auto valor = SemNulLento(AparaLento(linha.mid(linha.indexOf('=') + 1)));
    for (const char *aspa : {"\"", "'"}) {
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
    const auto semAntes = [](const QByteArray &nome) {
        return nome.mid(nome.indexOf(AparaLento(nome)));
    };
    texto += texto.isEmpty() || texto.endsWith('\r') || texto.endsWith('\n') ? "" : "\r\n";
    auto linhas = LinhasLentas(texto);
    bool achou = false;
    auto k = ProcuraLento(linhas, secao, chave, achou);
    if (k < 0) {
        linhas.append('[' + semAntes(secao) + "]\r\n");
        k = linhas.size() - 1;
    }
    const auto grafia = achou ? NomeLento(linhas[k]).mid(1) : semAntes(chave);
    if (achou) linhas.removeAt(k--);
    linhas.insert(k + 1, grafia + '=' + SemNulLento(valor) + "\r\n");
    return linhas.join();
}
