#pragma once

#include "core/machine/ambiente.h"
#include "core/machine/program_state.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <vector>

/// The machine of a network test: a clock that only the test moves, events that really run, message
/// boxes that are answered from a list, and folders that go with the test.
class MaquinaDeRede
{
public:
    MaquinaDeRede();

    /// Names of all files in the folders for temporary files and for downloads.
    [[nodiscard]] QStringList Arquivos() const;
    [[nodiscard]] QString PastaTemporaria() const;
    [[nodiscard]] QString PastaDownloads() const;

    double agora = 40'000;
    /// Seconds by which each turn of a wait moves the clock.
    double passo = 0;
    /// Runs in each turn of a wait, behind the events.
    std::function<void()> aCadaVolta;
    /// How often a timer of the program's other windows has fired.
    int tiques = 0;
    /// Answer to every question.
    Resposta resposta = Resposta::Sim;
    std::vector<PedidoMensagem> mensagens;
    QStringList paginas;
    /// A wait hung and was ended by force.
    bool preso = false;
    Ambiente ambiente;

private:
    void DaVolta();

    QTemporaryDir m_pasta;
    QTimer m_relogio;
    QElapsedTimer m_desdeOInicio;
};
