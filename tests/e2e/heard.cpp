#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr size_t kPorMilissegundo = 44;
constexpr size_t kCabecalhoWav = 44;
/// A sample below it counts as silence, and so much silence ends a sound.
constexpr int kLimiar = 60;
constexpr size_t kSilencio = 100 * kPorMilissegundo;
/// Samples by which a recorded sound may seem to begin early or late.
constexpr int kFolga = 4;

using Amostras = std::vector<int16_t>;

struct Som
{
    std::string nome;
    Amostras amostras;
};

Amostras Le(const char *caminho, size_t cabecalho)
{
    std::ifstream arquivo(caminho, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(arquivo), {});
    Amostras amostras;
    for (size_t k = cabecalho; k + 1 < bytes.size(); k += 2) {
        const auto baixo = static_cast<uint8_t>(bytes[k]);
        const auto alto = static_cast<uint8_t>(bytes[k + 1]);
        amostras.push_back(static_cast<int16_t>(alto << 8 | baixo));
    }
    return amostras;
}

bool Ouve(int16_t amostra)
{
    return std::abs(amostra) >= kLimiar;
}

/// The next sound at or behind `de`, without the silence round it; empty at the end.
Amostras Proximo(const Amostras &tudo, size_t &de)
{
    const auto inicio =
        std::find_if(tudo.begin() + static_cast<std::ptrdiff_t>(de), tudo.end(), Ouve);
    size_t fim = static_cast<size_t>(inicio - tudo.begin());
    for (de = fim; de < tudo.size() && de - fim <= kSilencio; ++de) {
        fim = Ouve(tudo[de]) ? de : fim;
    }
    return inicio == tudo.end()
               ? Amostras()
               : Amostras(inicio, tudo.begin() + static_cast<std::ptrdiff_t>(fim) + 1);
}

/// Likeness of `a`, moved by `passo` samples, and `b`: 1 for the same sound at any loudness.
double Semelhanca(const Amostras &a, const Amostras &b, int passo)
{
    double ab = 0;
    double aa = 0;
    double bb = 0;
    const auto em = [](const Amostras &x, int k) {
        return k >= 0 && k < static_cast<int>(x.size()) ? double{1} * x[static_cast<size_t>(k)] : 0;
    };
    for (int k = -kFolga; k < static_cast<int>(std::max(a.size(), b.size())) + kFolga; ++k) {
        const double x = em(a, k + passo);
        const double y = em(b, k);
        ab += x * y;
        aa += x * x;
        bb += y * y;
    }
    return aa * bb == 0 ? 0 : ab / std::sqrt(aa * bb);
}

double Semelhanca(const Amostras &a, const Amostras &b)
{
    double melhor = 0;
    for (int passo = -kFolga; passo <= kFolga; ++passo) {
        melhor = std::max(melhor, Semelhanca(a, b, passo));
    }
    return melhor;
}

void Diz(const Amostras &ouvido, const std::vector<Som> &sons)
{
    const Som *melhor = nullptr;
    double semelhanca = -1;
    for (const Som &som : sons) {
        if (const double s = Semelhanca(ouvido, som.amostras); s > semelhanca) {
            semelhanca = s;
            melhor = &som;
        }
    }
    std::printf("%s %zu %zu %.4f\n", melhor->nome.c_str(), ouvido.size() / kPorMilissegundo,
                melhor->amostras.size() / kPorMilissegundo, semelhanca);
}

} // namespace

/// heard RECORDING WAV...: what sounds in RECORDING (16 bits, one channel, 44,100 samples a second,
/// no header), a line for each sound: the WAV file that it is most like, the milliseconds heard,
/// those that the file has without the silence round it, and the likeness, at most 1.
int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fputs("usage: heard RECORDING WAV...\n", stderr);
        return 2;
    }
    std::vector<Som> sons;
    for (int k = 2; k < argc; ++k) {
        size_t de = 0;
        sons.push_back({std::filesystem::path(argv[k]).stem().string(),
                        Proximo(Le(argv[k], kCabecalhoWav), de)});
    }
    const Amostras tudo = Le(argv[1], 0);
    for (size_t de = 0; de < tudo.size();) {
        if (const Amostras ouvido = Proximo(tudo, de); !ouvido.empty()) {
            Diz(ouvido, sons);
        }
    }
    return 0;
}
