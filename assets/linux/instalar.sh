#!/bin/sh
# Põe o Quadrelo no menu do sistema, para este usuário, ou o tira de lá:
#   ./instalar.sh            cria o atalho, os ícones e a ficha do programa
#   ./instalar.sh --remover  tira tudo isso; a pasta do jogo fica como está
# O jogo continua nesta pasta. Depois de mudar a pasta de lugar, rode o script outra vez.
set -eu

ID=example.quadrelo.Quadrelo
TAMANHOS="16 22 24 32 48 64 128 256"

erro() {
  printf 'instalar.sh: %s\n' "$*" >&2
  exit 1
}

[ -n "${HOME:-}" ] || erro "a variável HOME não está definida"
pasta=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd -P) || erro "não foi possível achar a pasta do jogo"
# An empty or a relative value counts as none, as every program of the desktop takes it.
case ${XDG_DATA_HOME:-} in
  /*) destino=$XDG_DATA_HOME ;;
  *) destino=$HOME/.local/share ;;
esac
atalho=$destino/applications/$ID.desktop
ficha=$destino/metainfo/$ID.metainfo.xml
icones=$destino/icons/hicolor

# A text as the value of a key of a desktop entry.
valor() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }

# A path as the program of the key Exec, quoted.
comando() { valor "\"$(printf '%s' "$1" | sed 's/["`$\\]/\\&/g')\""; }

# copia ORIGEM DESTINO: with the directories on the way, readable whatever the player's umask.
copia() {
  mkdir -p "$(dirname -- "$2")"
  cp -- "$1" "$2"
  chmod 644 "$2"
}

escreve_atalho() {
  mkdir -p "$(dirname -- "$atalho")"
  while IFS= read -r linha; do
    case $linha in
      TryExec=*) printf 'TryExec=%s\n' "$(valor "$pasta/quadrelo")" ;;
      Exec=*) printf 'Exec=%s\nPath=%s\n' "$(comando "$pasta/quadrelo")" "$(valor "$pasta")" ;;
      *) printf '%s\n' "$linha" ;;
    esac
  done <"$pasta/linux/$ID.desktop" >"$atalho"
  chmod 644 "$atalho"
}

# Menus keep lists of what there is; where one exists, it is told.
avisa() {
  [ ! -d "$icones" ] || touch "$icones"
  [ ! -e "$destino/applications/mimeinfo.cache" ] || ! command -v update-desktop-database >/dev/null ||
    update-desktop-database -q "$destino/applications" || :
}

instala() {
  [ -x "$pasta/quadrelo" ] || erro "o jogo não está em $pasta"
  # An entry cannot break a line, and desktops look for a program with "%" under another name.
  case $pasta in
    *%* | *'
'*) erro "tire do nome da pasta do jogo o sinal % ou a quebra de linha: $pasta" ;;
  esac
  escreve_atalho
  for lado in $TAMANHOS; do
    copia "$pasta/linux/Icone$lado.png" "$icones/${lado}x$lado/apps/$ID.png"
  done
  copia "$pasta/linux/quadrelo.svg" "$icones/scalable/apps/$ID.svg"
  copia "$pasta/linux/$ID.metainfo.xml" "$ficha"
  avisa
  echo "O Quadrelo está no menu de programas."
}

remove() {
  rm -f -- "$atalho" "$ficha" "$icones/scalable/apps/$ID.svg"
  for lado in $TAMANHOS; do
    rm -f -- "$icones/${lado}x$lado/apps/$ID.png"
  done
  avisa
  echo "O Quadrelo saiu do menu de programas. A pasta do jogo ficou como estava."
}

case $#:${1:-} in
  0:) instala ;;
  1:--remover) remove ;;
  *) erro "uso: ./instalar.sh [--remover]" ;;
esac
