#pragma once

#include <QByteArray>
#include <QStringView>
#include <span>
#include <vector>

/// The six sounds of the game, worked out from a few struck notes of one wooden timbre and one key.

/// Samples a second of every sound.
inline constexpr int kAmostrasPorSegundo = 44100;

/// One struck note.
struct Nota
{
    /// Seconds from the start of the sound.
    double inicio;
    /// Hertz.
    double frequencia;
    /// Share of the loudest note.
    double forca;
    /// Seconds in which the note falls to 1/e.
    double queda;
};

/// One sound of the game.
struct Som
{
    /// File name with its ending.
    QStringView nome;
    /// Seconds from the first sample to the last.
    double duracao;
    /// Seconds in which a note rises; short ones sound dry.
    double ataque;
    std::span<const Nota> notas;
};

/// All sounds.
std::span<const Som> Sons();

/// The samples of `som`, from -1 to 1. All sounds have the same mean power over the part that can
/// be heard; the first and the last sample are 0.
std::vector<double> Sintetiza(const Som &som);

/// Seconds of silence behind every sound in its file: a sound server drops up to so much of a
/// stream that ends, and what it drops is not missed then.
inline constexpr double kSilencioFinal = 0.3;

/// `amostras` and the silence behind them as a WAV file: PCM, 16 bits, one channel.
QByteArray ArquivoWav(std::span<const double> amostras);
