#pragma once

#include "core/machine/chance.h"
#include <functional>
#include <memory>
#include <QString>

/// What a message box offers, asks for and gets. Esc answers Cancelar or Nao.
enum class Botoes { Ok, OkCancelar, SimNao };
enum class Icone { Nenhum, Pergunta };
enum class Resposta { Ok, Cancelar, Sim, Nao };

struct PedidoMensagem
{
    QString texto;
    Botoes botoes = Botoes::Ok;
    Icone icone = Icone::Nenhum;
};

/// Everything that the machine gives, as one seam: the program plugs in the real things, a test its
/// own.
struct Ambiente
{
    /// Seconds since the local midnight that began the day on which the process started, with
    /// fractions. Never goes back, does not wrap at midnight, counts time spent in suspend.
    std::function<double()> Agora;
    std::unique_ptr<Acaso> acaso;
    /// Plays a sound file by its full path and returns at once; a new sound cuts off the one still
    /// playing.
    std::function<void(const QString &arquivo)> tocaArquivo;
    /// Shows a message box under the application's title and waits for the answer.
    std::function<Resposta(const PedidoMensagem &pedido)> mensagem;
    /// Opens a web page in the player's browser; a failure is passed over.
    std::function<void(const QString &endereco)> abrePagina;
    /// Lets pending events run.
    std::function<void()> deixaEventos;
    /// Waits `ms` milliseconds without letting events run.
    std::function<void(int ms)> dorme;
    /// Ends the process at once: no question, no save. Does not return in the program; it does in
    /// tests.
    std::function<void()> terminaProcesso;
};
