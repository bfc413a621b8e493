#pragma once

class QString;

/// Says `texto` to the player who started the program with arguments: on the terminal, as an error
/// or not, or in a box where no terminal is. Needs no application object.
void DizAoJogador(const QString &texto, bool erro);
