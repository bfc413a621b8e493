#!/bin/sh
# Abre o Quadrelo que foi instalado para todos. O jogo guarda tudo ao lado do programa; por isso cada jogador
# tem a sua pasta: nela o programa é uma cópia, refeita quando o instalado muda, e o resto são atalhos.
set -eu

# The menu has no terminal: what is wrong goes into a box, where the system has one to offer.
erro() {
  printf 'Quadrelo: %s\n' "$*" >&2
  [ -t 2 ] || for caixa in 'zenity --error --text' 'kdialog --error' 'xmessage'; do
    # shellcheck disable=SC2086
    ! command -v "${caixa%% *}" >/dev/null || { $caixa "$*" 2>/dev/null && break; } || :
  done
  exit 1
}

[ -n "${HOME:-}" ] || erro "a variável HOME não está definida"
programa=$(dirname -- "$(dirname -- "$(readlink -f -- "$0")")")
case ${XDG_DATA_HOME:-} in
  /*) pasta=$XDG_DATA_HOME/quadrelo ;;
  *) pasta=$HOME/.local/share/quadrelo ;;
esac

mkdir -p -- "$pasta/Dados" 2>/dev/null || erro "não foi possível criar a sua pasta de jogos, $pasta"
for arquivo in "$programa"/*; do
  atalho=$pasta/${arquivo##*/}
  case ${arquivo##*/} in
    quadrelo | Dados | linux | instalar.sh) continue ;;
  esac
  # What the player has put there himself stays.
  [ ! -L "$atalho" ] && [ -e "$atalho" ] || ln -sfn -- "$arquivo" "$atalho" 2>/dev/null ||
    erro "não foi possível gravar em $pasta"
done
if ! cmp -s -- "$programa/quadrelo" "$pasta/quadrelo"; then
  # A game that is being played keeps the old copy.
  { cp -- "$programa/quadrelo" "$pasta/quadrelo.$$" && chmod 755 "$pasta/quadrelo.$$" &&
    mv -f -- "$pasta/quadrelo.$$" "$pasta/quadrelo"; } 2>/dev/null ||
    { rm -f -- "$pasta/quadrelo.$$"; erro "não foi possível gravar em $pasta"; }
  "$pasta/quadrelo" --versao >/dev/null 2>&1 || erro "o sistema não deixa executar $pasta/quadrelo"
fi
exec "$pasta/quadrelo" "$@"
