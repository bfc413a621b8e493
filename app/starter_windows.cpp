// quadrelo.exe of the packed folder for Windows: starts the game, which needs the libraries beside
// it, and says what is wrong where they are not. It needs nothing but the system itself.
#include <windows.h>

#include <string>

namespace {

constexpr wchar_t kJogo[] = L"quadrelo-jogo.exe";
constexpr const wchar_t *kPrecisa[] = {kJogo, L"Qt6Core.dll", L"Qt6Widgets.dll",
                                       L"platforms\\qwindows.dll", L"Perguntas.tes"};
constexpr size_t kMaiorCaminho = 32768;

/// The folder of this program, with its last backslash.
std::wstring Pasta()
{
    std::wstring nome(kMaiorCaminho, L'\0');
    nome.resize(GetModuleFileNameW(nullptr, nome.data(), kMaiorCaminho));
    return nome.substr(0, nome.rfind(L'\\') + 1);
}

/// What the player has added behind the program's name, with the blank before it.
std::wstring Argumentos()
{
    const wchar_t *linha = GetCommandLineW();
    bool entreAspas = false;
    for (; *linha != L'\0' && (entreAspas || *linha > L' '); ++linha) {
        entreAspas = entreAspas != (*linha == L'"');
    }
    return linha;
}

int Recusa(const std::wstring &motivo)
{
    MessageBoxW(nullptr, motivo.c_str(), L"Quadrelo", MB_OK | MB_ICONWARNING);
    return 1;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    const std::wstring pasta = Pasta();
    for (const wchar_t *nome : kPrecisa) {
        if (GetFileAttributesW((pasta + nome).c_str()) == INVALID_FILE_ATTRIBUTES) {
            return Recusa(
                std::wstring(L"O Quadrelo não encontra o arquivo \"") + nome +
                L"\", de que precisa.\n\nDescompacte o arquivo .zip inteiro (botão direito, "
                L"\"Extrair tudo\") e abra o quadrelo que está na pasta descompactada.");
        }
    }
    std::wstring linha = L"\"" + pasta + kJogo + L"\"" + Argumentos();
    STARTUPINFOW inicio = {};
    inicio.cb = sizeof inicio;
    PROCESS_INFORMATION jogo = {};
    if (CreateProcessW((pasta + kJogo).c_str(), linha.data(), nullptr, nullptr, FALSE, 0, nullptr,
                       nullptr, &inicio, &jogo) == 0) {
        return Recusa(L"O Windows não deixou o Quadrelo começar.");
    }
    // The game may come to the front, and whoever waits for this program waits for the game.
    AllowSetForegroundWindow(jogo.dwProcessId);
    WaitForSingleObject(jogo.hProcess, INFINITE);
    DWORD fim = 1;
    GetExitCodeProcess(jogo.hProcess, &fim);
    return static_cast<int>(fim);
}
