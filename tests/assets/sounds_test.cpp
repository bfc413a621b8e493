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

struct Caso
{
    QStringView nome;
    double maximo; // seconds, without the silence behind it
};
constexpr std::array<Caso, 6> kCasos = {{{u"click.wav", 0.12},
                                         {u"select.wav", 0.2},
                                         {u"acerto1.wav", 1.2},
                                         {u"acerto2.wav", 1.2},
                                         {u"erro1.wav", 1.2},
                                         {u"erro2.wav", 1.2}}};

} // namespace

TEST(Sounds, AreSixShortFilesOfOneFormat)
{
    for (const Caso &caso : kCasos) {
        const QByteArray wav = Le(caso.nome);
        const std::string nome = caso.nome.toString().toStdString();
        ASSERT_GT(wav.size(), kCabecalho) << nome;
        const auto curto = [&wav](qsizetype k) {
            return qFromLittleEndian<quint16>(wav.constData() + k);
        };
        const auto longo = [&wav](qsizetype k) {
            return qFromLittleEndian<quint32>(wav.constData() + k);
        };
        EXPECT_EQ(wav.first(4) + wav.sliced(8, 8), QByteArray("RIFFWAVEfmt ")) << nome;
        EXPECT_EQ(longo(4), wav.size() - 8) << nome;
        EXPECT_TRUE(curto(20) == 1 && curto(22) == 1 && longo(24) == 44100 && curto(34) == 16)
            << nome;
        EXPECT_TRUE(longo(28) == 88200 && curto(32) == 2 && longo(40) == wav.size() - kCabecalho)
            << nome;
        EXPECT_LE(static_cast<double>(Amostras(wav).size()) / 44100, caso.maximo + kSilencioFinal)
            << nome;
    }
}

TEST(Sounds, AreEquallyLoudAndBeginAndEndInSilence)
{
    const double medida = PotenciaOuvida(Amostras(Le(kCasos[0].nome)));
    for (const Caso &caso : kCasos) {
        std::vector<double> amostras = Amostras(Le(caso.nome));
        const std::string nome = caso.nome.toString().toStdString();
        EXPECT_LT(Decibels(Pico(amostras)), -3) << nome;
        EXPECT_NEAR(PotenciaOuvida(amostras), medida, 1) << nome;
        EXPECT_EQ(amostras.front(), 0) << nome;
        const auto fim = amostras.end() - std::lround(kSilencioFinal * 44100);
        EXPECT_EQ(std::count(fim, amostras.end(), 0.0), amostras.end() - fim) << nome;
        amostras.erase(fim, amostras.end());
        EXPECT_EQ(amostras.back(), 0) << nome;
        // No jump at either end: the very first and last samples rise and fall gently.
        for (size_t k = 0; k < 8; ++k) {
            EXPECT_LT(std::abs(amostras[k]), 0.05) << nome;
            EXPECT_LT(std::abs(amostras[amostras.size() - 1 - k]), 0.01) << nome;
        }
    }
}

TEST(Sounds, ComeOutTheSameWhenMadeAnew)
{
    ASSERT_EQ(Sons().size(), kCasos.size());
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
