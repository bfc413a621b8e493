#!/usr/bin/env bash
# Makes the package, unpacks it where a player might, puts the game into the menu and takes it out again, and
# starts it once.
#   package.sh MAKE-LINUX-PACKAGE BUILD-DIRECTORY VERSION
set -eu
pack=$1 build=$2 version=$3
work=$(mktemp -d)
game=
cleanup() {
  [ -z "$game" ] || kill "$game" 2>/dev/null || :
  wait 2>/dev/null || :
  rm -rf "$work"
}
trap cleanup EXIT
die() {
  echo "FAILED: $*" >&2
  exit 1
}

id=com.example.quadrelo
export SOURCE_DATE_EPOCH=1000000000
"$pack" "$build" "$work/pack" >"$work/log" 2>&1 || die "no package: $(tail -n 5 "$work/log")"
archive=$work/pack/Quadrelo-$version-linux.tar.gz
[ -s "$archive" ] || die "the package has another name: $(ls "$work/pack")"
sleep 1
(umask 077 && "$pack" "$build" "$work/again" >/dev/null)
cmp "$archive" "$work/again/$(basename "$archive")" || die "packed again it is another package"

# What is in it: these files, no others, and nothing of the developer's own games.
home=$work/"Casa da Conceição"
folder=$home/"Jogos & os \"meus\" \$5 \\o"/Quadrelo
mkdir -p "$(dirname "$folder")"
tar -xzf "$archive" -C "$(dirname "$folder")"
(cd "$folder" && find . -type f | sort) >"$work/found"
{
  printf './%s\n' quadrelo Perguntas.tes LEIA-ME.md PROFESSORES.md Dados/LEIA-ME.txt instalar.sh \
    docs/tabuleiro.png docs/balao.png ferramentas/{compila_banco,monta,corpo-humano.csv} \
    {acerto1,acerto2,click,erro1,erro2,select}.wav translations/qtbase_pt_BR.qm \
    linux/{abrir.sh,$id.desktop,$id.metainfo.xml,quadrelo.svg} linux/Icone{16,22,24,32,48,64,128,256}.png
} | sort >"$work/wanted"
diff "$work/wanted" "$work/found" || die "the package holds other files than it should"
# The folder of the build holds all of it but what a desktop needs.
grep -v -e /linux/ -e instalar.sh "$work/found" | while read -r file; do
  cmp -s "$folder/$file" "$build/Quadrelo/$file" || [ -x "$build/Quadrelo/$file" ] || echo "$file"
done >"$work/missing"
[ ! -s "$work/missing" ] || die "the build's folder lacks $(cat "$work/missing")"
for program in quadrelo ferramentas/compila_banco ferramentas/monta; do
  readelf -S "$folder/$program" | grep -q '\.symtab' && die "$program is not stripped"
  readelf -d "$folder/$program" | grep -qE 'RPATH|RUNPATH' && die "$program looks for its libraries by a path"
done
for picture in $(grep -oh 'docs/[^)<]*\.png' "$folder/LEIA-ME.md" "$folder/linux/$id.metainfo.xml"); do
  [ -s "$folder/$picture" ] || die "$picture is shown, but not there"
done

# A list becomes a bank beside it, and the bank a sheet.
cp "$folder/ferramentas/corpo-humano.csv" "$work/lista.csv"
"$folder/ferramentas/compila_banco" "$work/lista.csv" >"$work/log" 2>&1 || die "$(cat "$work/log")"
"$folder/ferramentas/monta" "$work/Perguntas.tes" >"$work/log" 2>&1 || die "$(cat "$work/log")"
grep -q '</html>' "$work"/Folha-*.html || die "no sheet was made"

# Into the menu.
unset XDG_DATA_HOME
HOME=$home "$folder/instalar.sh" >/dev/null || die "instalar.sh fails"
share=$home/.local/share
entry=$share/applications/$id.desktop
if command -v desktop-file-validate >/dev/null; then desktop-file-validate "$entry"; fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --strict --no-net "$share/metainfo/$id.metainfo.xml" >"$work/log" || die "$(cat "$work/log")"
fi
for size in 16 22 24 32 48 64 128 256; do
  png=$share/icons/hicolor/${size}x$size/apps/$id.png
  [ "$(od -An -j16 -N8 -tu1 "$png" | awk '{ print $3*256+$4 "x" $7*256+$8 }')" = "${size}x$size" ] ||
    die "$png has another size"
done
[ -s "$share/icons/hicolor/scalable/apps/$id.svg" ] || die "no drawn icon"

# The entry's command, read as a desktop reads it: the string's escapes go first, then those of the quotes.
commands=$(sed -n 's/^Exec=//p' "$entry" | sed 's/\\\\/\\/g' |
  sed 's/^"//; s/"\( --escala [0-9.]*\)\?$/\1/; s/\\\(["`$\\]\)/\1/g')
command=$folder/quadrelo
[ "$commands" = "$(printf '%s\n' "$command" "$command --escala "{1.5,2})" ] || die "the entry starts $commands"

# A name that no entry can hold is refused, and nothing is left half done.
mv "$folder" "$work/100%"
if HOME=$work/other "$work/100%/instalar.sh" 2>/dev/null; then die "a path with % is taken"; fi
[ ! -e "$work/other" ] || die "a refusal leaves something behind"
mv "$work/100%" "$folder"

# What is missing is named, and a half installation is undone.
mkdir "$work/bin"
printf '#!/bin/sh\necho "libQt6Gui.so.6 => not found"\n' >"$work/bin/ldd"
chmod +x "$work/bin/ldd"
HOME=$work/other PATH=$work/bin:$PATH "$folder/instalar.sh" 2>"$work/said" && die "a game that cannot start is installed"
grep -q '^  libQt6Gui.so.6$' "$work/said" || die "it says: $(cat "$work/said")"
mkdir -p "$work/other/.local/share"
touch "$work/other/.local/share/icons"
HOME=$work/other "$folder/instalar.sh" 2>"$work/said" && die "it installs without icons"
[ "$(find "$work/other" -type f)" = "$work/other/.local/share/icons" ] || die "left: $(find "$work/other")"
[ "$(cat "$work/said")" = "instalar.sh: não foi possível criar a pasta $work/other/.local/share/icons" ] ||
  die "it says: $(cat "$work/said")"

# For all: each player has a folder of his own, with the newest program.
root=$work/root
ln -s "$folder/instalar.sh" "$work/link"
DESTDIR=$root "$work/link" --para-todos >/dev/null || die "instalar.sh --para-todos fails"
grep -qx 'Exec="/opt/quadrelo/linux/abrir.sh" --escala 2' "$root/usr/local/share/applications/$id.desktop" ||
  die "the entry for all starts something else"
for player in ana zé; do
  HOME=$work/$player "$root/opt/quadrelo/linux/abrir.sh" --versao >/dev/null || die "$player cannot play"
  own=$work/$player/.local/share/quadrelo
  echo "$player" >"$own/Dados/save.ini"
  cmp "$own/Perguntas.tes" "$folder/Perguntas.tes"
  [[ ! -L $own/quadrelo && -L $own/click.wav ]] || die "$player's folder is no good: $(ls -l "$own")"
done
echo >>"$root/opt/quadrelo/quadrelo"
HOME=$work/ana "$root/opt/quadrelo/linux/abrir.sh" --versao >/dev/null
cmp "$root/opt/quadrelo/quadrelo" "$work/ana/.local/share/quadrelo/quadrelo"
DESTDIR=$root "$root/opt/quadrelo/instalar.sh" --para-todos --remover >/dev/null || die "it cannot be removed for all"
[ -z "$(find "$root" -type f)" ] || die "left: $(find "$root" -type f)"
[ "$(cat "$work"/{ana,zé}/.local/share/quadrelo/Dados/save.ini | tr '\n' ' ')" = "ana zé " ] || die "games are gone"

# Once started, it stays up. What this platform cannot show, it says; that is no complaint of the game's.
mkdir -m 700 "$work/run"
HOME=$home XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "$command" 2>"$work/stderr" &
game=$!
sleep 2
kill -0 "$game" 2>/dev/null || die "the game is gone: $(head -n 3 "$work/stderr")"
if grep -v '^This plugin does not support' "$work/stderr"; then die "the game complains"; fi
kill "$game"
wait "$game" 2>/dev/null || :
game=

# And out again: nothing stays behind, and the player's games do.
echo kept >"$folder/Dados/save.ini"
HOME=$home "$folder/instalar.sh" --remover >/dev/null || die "instalar.sh --remover fails"
[ -z "$(find "$share" -name "*$id*")" ] || die "left behind: $(find "$share" -name "*$id*")"
[ "$(cat "$folder/Dados/save.ini")" = kept ] || die "removing touched the player's games"
HOME=$home "$folder/instalar.sh" --remover >/dev/null || die "removing twice fails"
echo "package.sh: passed"
