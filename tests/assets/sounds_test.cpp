#include "tools/sound/sounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <QFile>
#include <QtEndian>

namespace {

constexpr qsizetype kCabecalho = 44;

QByteArray Le(QStringView nome)
{
    QFile arquivo(QStringLiteral(QUADRELO_ASSETS "/sons/%1").arg(nome));
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
}

std::vector<double> Amostras(const QByteArray &wav)
{
    std::vector<double> amostras;
    for (qsizetype k = kCabecalho; k + 1 < wav.size(); k += 2) {
        amostras.push_back(qFromLittleEndian<qint16>(wav.constData() + k) / 32768.0);
    }
    return amostras;
}

double Decibels(double amplitude)
{
    return 20 * std::log10(amplitude);
}

double Pico(const std::vector<double> &amostras)
{
    const auto [menor, maior] = std::minmax_element(amostras.begin(), amostras.end());
    return std::max(-*menor, *maior);
}

/// Mean power in decibels of the part from the first to the last sample within 40 dB of the peak.
double PotenciaOuvida(const std::vector<double> &amostras)
{
    const double limite = Pico(amostras) / 100;
    size_t primeira = amostras.size();
    size_t ultima = 0;
    for (size_t k = 0; k < amostras.size(); ++k) {
        if (std::abs(amostras[k]) >= limite) {
            primeira = std::min(primeira, k);
            ultima = k;
        }
    }
    double soma = 0;
    for (size_t k = primeira; k <= ultima; ++k) {
        soma += amostras[k] * amostras[k];
    }
    return Decibels(std::sqrt(soma / static_cast<double>(ultima + 1 - primeira)));
}

/// Names, and longest times in seconds without the silence behind them.
constexpr std::pair<QStringView, double> kCasos[] = {{u"click.wav", 0.12},  {u"select.wav", 0.2},
                                                     {u"acerto1.wav", 1.2}, {u"acerto2.wav", 1.2},
                                                     {u"erro1.wav", 1.2},   {u"erro2.wav", 1.2}};

} // namespace

TEST(Sounds, AreShortFilesOfOneFormatEquallyLoudBetweenSilences)
{
    const double medida = PotenciaOuvida(Amostras(Le(kCasos[0].first)));
    for (const auto &[arquivo, maximo] : kCasos) {
        SCOPED_TRACE(arquivo.toString().toStdString());
        const QByteArray wav = Le(arquivo);
        const auto tamanho = [&wav](qsizetype cabecalho) {
            const auto n = qToLittleEndian(static_cast<quint32>(wav.size() - cabecalho));
            return QByteArray(reinterpret_cast<const char *>(&n), 4);
        };
        // One channel of 16 bits, 44,100 times a second.
        ASSERT_EQ(
            wav.first(kCabecalho),
            "RIFF" + tamanho(8) +
                QByteArray("WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\x88\x58\1\0\2\0\x10\0data", 32) +
                tamanho(kCabecalho));
        std::vector<double> amostras = Amostras(wav);
        EXPECT_LE(static_cast<double>(amostras.size()) / 44100, maximo + kSilencioFinal);
        EXPECT_LT(Decibels(Pico(amostras)), -3);
        EXPECT_NEAR(PotenciaOuvida(amostras), medida, 1);
        const auto fim = amostras.end() - std::lround(kSilencioFinal * 44100);
        EXPECT_EQ(std::count(fim, amostras.end(), 0.0), amostras.end() - fim);
        amostras.erase(fim, amostras.end());
        EXPECT_EQ(amostras.front(), 0);
        EXPECT_EQ(amostras.back(), 0);
        // No jump at either end: the very first and last samples rise and fall gently.
        for (size_t k = 0; k < 8; ++k) {
            EXPECT_LT(std::abs(amostras[k]), 0.05);
            EXPECT_LT(std::abs(amostras[amostras.size() - 1 - k]), 0.01);
        }
    }
}

TEST(Sounds, ComeOutTheSameWhenMadeAnew)
{
    ASSERT_EQ(Sons().size(), std::size(kCasos));
    for (const Som &som : Sons()) {
        const std::vector<double> novas = Amostras(ArquivoWav(Sintetiza(som)));
        const std::vector<double> guardadas = Amostras(Le(som.nome));
        ASSERT_EQ(novas.size(), guardadas.size());
        for (size_t k = 0; k < novas.size(); ++k) {
            // Mathematics libraries may differ in the last place.
            ASSERT_NEAR(novas[k], guardadas[k], 1.5 / 32768)
                << som.nome.toString().toStdString() << " " << k;
        }
    }
}
