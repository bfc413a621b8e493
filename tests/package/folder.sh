#!/usr/bin/env bash
# Lays the folder that brings Qt along, and looks whether it needs nothing but a desktop's base; then starts it
# where the system has no fonts.
#   folder.sh SOURCES BUILD-DIRECTORY
. "$1/tests/e2e/lib.sh"
set -eu
trap 'set +e; cleanup' EXIT
folder=$WORK/"Jogos e mais"/Quadrelo
mkdir "$WORK/Jogos e mais"
"$1/tools/make-linux-folder" --built "$2" --folder "$WORK/Jogos e mais" || die "no folder"
cd "$folder"

# Whatever a file asks for lies in lib, where its run path leads, or is the desktop's.
base='^(ld-linux-x86-64|libc|libm|libpthread|libresolv|libgcc_s|libstdc\+\+|libX11|libX11-xcb|libxcb|libEGL|libGLX'
base+='|libOpenGL|libfontconfig|libfreetype|libz|libglib-2\.0|libdbus-1|libsystemd|libuuid|libwayland-client)\.so\.'
find . -type f \( -name '*.so*' -o -perm -u+x ! -name '*.sh' \) >"$WORK/files"
[ "$(wc -l <"$WORK/files")" -gt 50 ] || die "hardly a file in it"
while read -r file; do
  readelf -d "$file" >"$WORK/dynamic"
  path=$(sed -nE 's/.*R(UN)?PATH.*\[(.*)\]/\2/p' "$WORK/dynamic")
  [ "$(realpath -m "${path/#\$ORIGIN/$(dirname "$file")}")" = "$folder/lib" ] || die "$file looks in \"$path\""
  sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' "$WORK/dynamic" | while read -r name; do
    [ -f "lib/$name" ] || grep -qE "$base" <<<"$name" || die "$file needs $name"
  done
  [ ! -e "lib/${file##*/}" ] || ! grep -qE "$base" <<<"${file##*/}" || die "$file should be the system's"
  [[ $file != *.so* ]] || grep -qxF "    ${file#./}" licencas/LEIA-ME.txt || die "no notice for $file"
done <"$WORK/files"
for plugin in platforms/libq{xcb,wayland-generic} platforminputcontexts/libcomposeplatforminputcontextplugin \
  tls/libqopensslbackend; do
  [ -f "plugins/$plugin.so" ] || die "no $plugin"
done
for licence in LGPL-3 GPL-3 GPL-2 Apache-2.0; do [ -s "licencas/licenca-$licence.txt" ] || die "no $licence"; done

# Without the system's fonts the caption of a button is in those of the folder, not in boxes. Fontconfig's own
# settings stay, so that the letters are drawn alike.
start_screen
caption() {
  start_game "$folder"
  shot
  convert "$WORK/shot.png" -crop "100x26+$((X + 530))+$((Y + 336))" +repage -depth 8 "rgb:$WORK/$1"
  menu 5
  wait "$GAME" || die "the game ends badly"
  rm -rf "$WORK/Quadrelo"
}
for place in "$WORK/empty" "$folder/fonts"; do
  echo "<fontconfig><dir>$place</dir><cachedir>$WORK/cache</cachedir><include>/etc/fonts/conf.d</include></fontconfig>" \
    >"$WORK/fonts.conf"
  export FONTCONFIG_FILE=$WORK/fonts.conf
  caption "$(basename "$place")"
done
cmp -s "$WORK/empty" "$WORK/fonts" || die "the folder's fonts are not used where there are no others"
rm "$folder"/fonts/*
echo "<fontconfig><dir>$WORK/empty</dir></fontconfig>" >"$WORK/fonts.conf"
caption none
! cmp -s "$WORK/empty" "$WORK/none" || die "the comparison sees no difference"
echo "folder.sh: passed"
