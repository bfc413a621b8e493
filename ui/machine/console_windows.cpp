#include "ui/machine/console.h"

#include <QString>

#include <windows.h>

void DizAoJogador(const QString &texto, bool erro)
{
    // A program of windows has no terminal, also when it is started from one, but its output can go
    // to a file or to another program.
    const HANDLE saida = GetStdHandle(erro ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    const DWORD tipo = GetFileType(saida);
    if (tipo == FILE_TYPE_DISK || tipo == FILE_TYPE_PIPE) {
        const QByteArray bytes = texto.toUtf8() + "\r\n";
        DWORD escritos = 0;
        WriteFile(saida, bytes.constData(), static_cast<DWORD>(bytes.size()), &escritos, nullptr);
        return;
    }
    MessageBoxW(nullptr, texto.toStdWString().c_str(), L"Quadrelo",
                erro ? MB_OK | MB_ICONWARNING : MB_OK);
}
