#include "tools/puzzle_run.h"

#include "core/builder/build_attempts.h"
#include <QElapsedTimer>

bool MontaJogo(Corrida &corrida, const IndiceBanco &indice)
{
    QElapsedTimer relogio;
    relogio.start();
    TentativasMontagem tentativas;
    const DadosMontagem dados{corrida.tabuleiro, corrida.banco, indice,
                              corrida.memoria,   corrida.acaso, corrida.semJanela};
    for (;;) {
        ZeraTabuleiro(corrida.tabuleiro);
        if (CarregaPalavras(dados) == FimMontagem::Completa) {
            break;
        }
        ++corrida.falhas;
        if (tentativas.Falhou(corrida.memoria) == TentativasMontagem::Decisao::Desistir) {
            return false;
        }
    }
    corrida.microssegundos.push_back(static_cast<double>(relogio.nsecsElapsed()) / 1000.0);
    return true;
}
