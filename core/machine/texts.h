#pragma once

#include <QString>

/// What the message boxes say. A carriage return begins a new line. What a form's controls say
/// stands in the form's table, what is said of the board in core/board/spoken_text.
namespace texto {

QString SocorroPergunta();
/// The same for those who hear the command: what "Socorro" does.
QString SocorroDescricao();
QString JogoResolvido();
QString NadaASalvar();
QString SemJogo();
QString Parabens();

QString BancoIlegivel();
QString BancoPequeno();

QString PrecoDaCarga();
QString SlotDanificado();
QString SlotVazio();
QString Sobregravar(const QString &nome);
/// Name of a saved game that the player gave none; `n` is its slot.
QString SemNome(int n);

QString SemConexao();
QString VersaoEmDia(const QString &titulo);
QString PerguntaAtualizar(const QString &local, const QString &remota);
QString AtualizacaoGravada(const QString &arquivo);
QString AtualizacaoFalhou();

} // namespace texto
