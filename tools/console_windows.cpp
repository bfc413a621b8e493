#include "tools/console.h"

#include <windows.h>

#include <conio.h>
#include <fcntl.h>
#include <io.h>

Console::Console() : m_codigoAntes(GetConsoleOutputCP())
{
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

Console::~Console()
{
    // 0 where there is no console.
    if (m_codigoAntes != 0) {
        SetConsoleOutputCP(m_codigoAntes);
    }
}

void Console::EsperaTecla()
{
    DWORD modo = 0;
    if (GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &modo) != 0) {
        Diz(stderr, QStringLiteral("\nAperte uma tecla para fechar."));
        _getch();
    }
}
