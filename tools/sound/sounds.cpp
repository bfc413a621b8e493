#include "tools/sound/sounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <QDataStream>
#include <QIODevice>

namespace {

// Pitches, in hertz.
constexpr double kDo4 = 261.63;
constexpr double kMiBemol4 = 311.13;
constexpr double kFa4 = 349.23;
constexpr double kSol4 = 392.00;
constexpr double kLaBemol4 = 415.30;
constexpr double kDo5 = 523.25;
constexpr double kMi5 = 659.26;
constexpr double kSol5 = 783.99;
constexpr double kDo6 = 1046.50;

/// A partial of the timbre: the bars of a wooden instrument ring a little above the fourth and the
/// tenth multiple of their note, and these fade soonest.
struct Parcial
{
    double multiplo, forca, queda;
};
constexpr std::array<Parcial, 3> kMadeira = {
    {{1.0, 1.0, 1.0}, {3.98, 0.20, 0.35}, {9.3, 0.06, 0.14}}};

constexpr std::array<Nota, 2> kClick = {{{0, 1480, 1, 0.007}, {0, 2217, 0.6, 0.004}}};
constexpr std::array<Nota, 1> kSelect = {{{0, kSol5, 1, 0.032}}};
constexpr std::array<Nota, 3> kAcerto1 = {
    {{0, kDo5, 0.8, 0.11}, {0.09, kMi5, 0.85, 0.12}, {0.18, kSol5, 1, 0.17}}};
constexpr std::array<Nota, 4> kAcerto2 = {{{0, kSol5, 0.8, 0.10},
                                           {0.11, kDo5, 0.45, 0.18},
                                           {0.11, kMi5, 0.45, 0.18},
                                           {0.11, kDo6, 1, 0.18}}};
constexpr std::array<Nota, 2> kErro1 = {{{0, kMiBemol4, 0.9, 0.13}, {0.17, kDo4, 1, 0.20}}};
constexpr std::array<Nota, 3> kErro2 = {
    {{0, kLaBemol4, 0.85, 0.10}, {0.13, kSol4, 0.9, 0.11}, {0.26, kFa4, 1, 0.19}}};

constexpr std::array<Som, 6> kSons = {{{u"click.wav", 0.060, 0.0012, kClick},
                                       {u"select.wav", 0.180, 0.004, kSelect},
                                       {u"acerto1.wav", 0.900, 0.003, kAcerto1},
                                       {u"acerto2.wav", 0.900, 0.003, kAcerto2},
                                       {u"erro1.wav", 1.000, 0.004, kErro1},
                                       {u"erro2.wav", 1.100, 0.004, kErro2}}};

/// Mean power of every sound, as an amplitude: -21 decibels below full scale.
constexpr double kMediaQuadratica = 0.0891;
/// Share of the peak from which a sample counts as heard: -40 decibels.
constexpr double kAudivel = 0.01;
/// Share of the whole over which every sound fades at its end.
constexpr double kSaida = 0.2;

/// Smooth way from 0 to 1 while `parte` goes from 0 to 1; flat beyond.
double Subida(double parte)
{
    return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(parte, 0.0, 1.0));
}

void SomaNota(std::vector<double> &amostras, const Som &som, const Nota &nota)
{
    const auto primeira = static_cast<size_t>(nota.inicio * kAmostrasPorSegundo);
    for (size_t k = primeira; k < amostras.size(); ++k) {
        const double t = static_cast<double>(k - primeira) / kAmostrasPorSegundo;
        double valor = 0;
        for (const Parcial &parcial : kMadeira) {
            valor += parcial.forca * std::exp(-t / (nota.queda * parcial.queda)) *
                     std::sin(2 * std::numbers::pi * nota.frequencia * parcial.multiplo * t);
        }
        amostras[k] += valor * nota.forca * Subida(t / som.ataque);
    }
}

/// Root of the mean square from the first to the last sample that can be heard.
double MediaQuadratica(const std::vector<double> &amostras)
{
    double pico = 0;
    for (const double amostra : amostras) {
        pico = std::max(pico, std::abs(amostra));
    }
    const auto ouve = [pico](double amostra) { return std::abs(amostra) >= pico * kAudivel; };
    const auto de = std::find_if(amostras.begin(), amostras.end(), ouve);
    const auto ate = std::find_if(amostras.rbegin(), amostras.rend(), ouve).base();
    double soma = 0;
    for (auto k = de; k != ate; ++k) {
        soma += *k * *k;
    }
    return std::sqrt(soma / static_cast<double>(ate - de));
}

} // namespace

std::span<const Som> Sons()
{
    return kSons;
}

std::vector<double> Sintetiza(const Som &som)
{
    const auto total = static_cast<size_t>(std::lround(som.duracao * kAmostrasPorSegundo));
    std::vector<double> amostras(total, 0.0);
    for (const Nota &nota : som.notas) {
        SomaNota(amostras, som, nota);
    }
    const double ultima = static_cast<double>(total - 1);
    for (size_t k = 0; k < total; ++k) {
        amostras[k] *= Subida((ultima - static_cast<double>(k)) / (kSaida * ultima));
    }
    const double ganho = kMediaQuadratica / MediaQuadratica(amostras);
    for (double &amostra : amostras) {
        amostra *= ganho;
    }
    return amostras;
}

QByteArray ArquivoWav(std::span<const double> amostras)
{
    const auto silencio = static_cast<size_t>(kSilencioFinal * kAmostrasPorSegundo);
    const auto tamanho = static_cast<quint32>((amostras.size() + silencio) * 2);
    QByteArray bytes;
    QDataStream saida(&bytes, QIODevice::WriteOnly);
    saida.setByteOrder(QDataStream::LittleEndian);
    saida.writeRawData("RIFF", 4);
    saida << quint32{36 + tamanho};
    saida.writeRawData("WAVEfmt ", 8);
    saida << quint32{16} << quint16{1} << quint16{1} << quint32{kAmostrasPorSegundo}
          << quint32{kAmostrasPorSegundo * 2} << quint16{2} << quint16{16};
    saida.writeRawData("data", 4);
    saida << tamanho;
    for (const double amostra : amostras) {
        saida << static_cast<qint16>(std::lround(std::clamp(amostra, -1.0, 1.0) * 32767));
    }
    return bytes.append(static_cast<qsizetype>(silencio * 2), '\0');
}
