#pragma once

#include <memory>
#include <optional>
#include <QApplication>

/// Makes the application object, from main's arguments; `argc` and `argv` must outlive it.
///
/// With an `escala` every window of this run is so many times as large as it would be, but the main
/// form no larger than the free room of the screen that it opens on. It is drawn at that size, not
/// blown up, and on a high-resolution screen both factors count. A size that the environment asks
/// of Qt gives way to `escala`.
std::unique_ptr<QApplication> CriaAplicacao(int &argc, char **argv, std::optional<double> escala);
