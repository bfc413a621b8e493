#!/bin/sh
# Põe o Quadrelo no menu do sistema, ou o tira de lá:
#   ./instalar.sh               para este usuário: cria o atalho, os ícones e a ficha do programa
#   ./instalar.sh --para-todos  para todos os usuários (como root): o jogo vai para /opt/quadrelo
#   --remover                   com ou sem --para-todos: tira tudo isso; os jogos de cada um ficam
# Para um usuário só, o jogo continua nesta pasta; depois de mudá-la de lugar, rode o script outra vez.
set -eu

ID=com.example.quadrelo
TAMANHOS="16 22 24 32 48 64 128 256"

erro() {
  printf 'instalar.sh: %s\n' "$*" >&2
  exit 1
}

remover=
todos=
for opcao; do
  case $opcao in
    --remover) remover=sim ;;
    --para-todos) todos=sim ;;
    *) erro "uso: ./instalar.sh [--para-todos] [--remover]" ;;
  esac
done

pasta=$(dirname -- "$(readlink -f -- "$0")")
if [ "$todos" ]; then
  # Under DESTDIR, for those who make packages, anybody may.
  [ -n "${DESTDIR:-}" ] || [ "$(id -u)" -eq 0 ] || erro "--para-todos é para o administrador: use sudo"
  programa=/opt/quadrelo
  destino=${DESTDIR:-}/usr/local/share
  executavel=$programa/linux/abrir.sh
else
  [ -n "${HOME:-}" ] || erro "a variável HOME não está definida"
  programa=$pasta
  # An empty or a relative value counts as none, as every program of the desktop takes it.
  case ${XDG_DATA_HOME:-} in
    /*) destino=$XDG_DATA_HOME ;;
    *) destino=$HOME/.local/share ;;
  esac
  executavel=$pasta/quadrelo
fi
opt=${DESTDIR:-}/opt/quadrelo
atalho=$destino/applications/$ID.desktop
ficha=$destino/metainfo/$ID.metainfo.xml
icones=$destino/icons/hicolor

# A text as the value of a key of a desktop entry.
valor() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }

# A path as the program of the key Exec, quoted.
comando() { valor "\"$(printf '%s' "$1" | sed 's/["`$\\]/\\&/g')\""; }

# The directories made, the innermost first: they go again if the rest fails.
criadas=
cria_pasta() {
  [ ! -d "$1" ] || return 0
  cria_pasta "$(dirname -- "$1")"
  mkdir -m 755 -- "$1" 2>/dev/null || erro "não foi possível criar a pasta $1"
  criadas="$1
$criadas"
}

# copia ORIGEM DESTINO: with the directories on the way, readable whatever the player's umask.
copia() {
  cria_pasta "$(dirname -- "$2")"
  { cp -- "$1" "$2" && chmod 644 "$2"; } 2>/dev/null || erro "não foi possível gravar $2"
}

escreve_atalho() {
  copia "$pasta/linux/$ID.desktop" "$atalho"
  while IFS= read -r linha; do
    case $linha in
      TryExec=*)
        printf 'TryExec=%s\n' "$(valor "$executavel")"
        [ "$todos" ] || printf 'Path=%s\n' "$(valor "$pasta")"
        ;;
      Exec=*) printf 'Exec=%s%s\n' "$(comando "$executavel")" "${linha#Exec=quadrelo}" ;;
      *) printf '%s\n' "$linha" ;;
    esac
  done <"$pasta/linux/$ID.desktop" >"$atalho" || erro "não foi possível gravar $atalho"
}

# Menus keep lists of what there is; where one exists, it is told.
avisa() {
  [ ! -d "$icones" ] || touch "$icones" 2>/dev/null || :
  [ ! -e "$destino/applications/mimeinfo.cache" ] || ! command -v update-desktop-database >/dev/null ||
    update-desktop-database -q "$destino/applications" 2>/dev/null || :
}

apaga() {
  set -- "$atalho" "$ficha" "$icones/scalable/apps/$ID.svg"
  for lado in $TAMANHOS; do
    set -- "$@" "$icones/${lado}x$lado/apps/$ID.png"
  done
  [ -z "$todos" ] || set -- "$@" "$opt" "$opt.novo"
  rm -rf -- "$@" 2>/dev/null
}

# Half an installation is worse than none.
mexeu=
desfaz() {
  [ "$mexeu" ] || return 0
  apaga || :
  printf '%s' "$criadas" | while IFS= read -r criada; do rmdir -- "$criada" 2>/dev/null || :; done
}

# Whether the game can start here.
confere() {
  [ -x "$pasta/quadrelo" ] || erro "o jogo não está em $pasta"
  [ "$todos" ] || [ -w "$pasta" ] ||
    erro "o jogo grava na própria pasta, e aqui você não pode gravar; copie-a para um lugar seu: $pasta"
  ! command -v ldd >/dev/null || faltam=$(LC_ALL=C ldd "$pasta/quadrelo" 2>&1 | grep 'not found') || faltam=
  case ${faltam:-} in
    '') ;;
    *version*) erro "este sistema é mais antigo do que o jogo precisa:
$faltam" ;;
    *) erro "faltam no sistema bibliotecas de que o jogo precisa:
$(printf '%s\n' "$faltam" | sed 's/^[[:space:]]*\([^ ]*\).*/  \1/')
No Debian e no Ubuntu elas vêm com:
  sudo apt install libqt6widgets6 libqt6network6 libqt6multimedia6" ;;
  esac
  # An entry cannot break a line, and desktops look for a program with "%" under another name.
  case $programa in
    *%* | *'
'*) erro "tire do nome da pasta do jogo o sinal % ou a quebra de linha: $pasta" ;;
  esac
}

# Everything but the games of whoever unpacked it.
copia_programa() {
  [ "$pasta" != "$opt" ] || return 0
  cria_pasta "$(dirname -- "$opt")"
  { rm -rf -- "$opt.novo" && mkdir -- "$opt.novo" && cp -RP -- "$pasta"/* "$opt.novo" &&
    rm -rf -- "$opt.novo/Dados" && chmod -R u=rwX,go=rX "$opt.novo" &&
    chmod 755 "$opt.novo/linux/abrir.sh"; } 2>/dev/null ||
    { rm -rf -- "$opt.novo"; erro "não foi possível copiar o jogo para $opt"; }
  mexeu=sim
  { rm -rf -- "$opt" && mv -- "$opt.novo" "$opt"; } 2>/dev/null || erro "não foi possível trocar $opt"
}

instala() {
  confere
  trap desfaz EXIT
  trap 'exit 1' HUP INT TERM
  [ -z "$todos" ] || copia_programa
  mexeu=sim
  escreve_atalho
  for lado in $TAMANHOS; do
    copia "$pasta/linux/Icone$lado.png" "$icones/${lado}x$lado/apps/$ID.png"
  done
  copia "$pasta/linux/quadrelo.svg" "$icones/scalable/apps/$ID.svg"
  copia "$pasta/linux/$ID.metainfo.xml" "$ficha"
  mexeu=
  avisa
  echo "O Quadrelo está no menu de programas${todos:+ de todos os usuários}."
}

remove() {
  apaga || erro "não foi possível tirar tudo de $destino${todos:+ e de $opt}: não há permissão para gravar lá"
  avisa
  if [ "$todos" ]; then
    echo "O Quadrelo saiu do menu de programas e de $opt. Os jogos de cada usuário ficaram."
  else
    echo "O Quadrelo saiu do menu de programas. A pasta do jogo ficou como estava."
  fi
}

if [ "$remover" ]; then remove; else instala; fi
