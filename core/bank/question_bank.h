#pragma once

#include "core/board/numbered_table.h"
#include <QByteArray>
#include <QString>

inline constexpr int kMaxPerguntas = 3000;

/// Layout of one record of the bank's file, in bytes.
inline constexpr int kBytesPalavra = 15;
inline constexpr int kBytesDica = 60;
inline constexpr int kBytesRegistro = kBytesPalavra + kBytesDica + 1;

/// The question bank in memory: entry k, 1 to QtdPerguntas, is record k of the file. Entry 0 stays
/// empty.
struct BancoPerguntas
{
    TabelaDe<QString, kMaxPerguntas> BancoPalavra;
    TabelaDe<QString, kMaxPerguntas> BancoDica;
    int QtdPerguntas = 0;
};

/// Reads the whole bank from the file `arquivo`. A file that does not exist is created empty; one
/// that cannot be read gives an empty bank, without a message. Records above kMaxPerguntas are left
/// unread, a part-record at the end does not count.
void CarregaLista(BancoPerguntas &banco, const QString &arquivo);

/// The reading itself, from the file's bytes. Spaces (0x20) round a field are cut, nothing else is.
void CarregaRegistros(BancoPerguntas &banco, const QByteArray &bytes);
