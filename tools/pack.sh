# shellcheck shell=bash
# Sourced by what makes packages: the same files give the same bytes, whoever packs them, wherever and whenever.

# The moment that everything in a package bears, in seconds since 1970: SOURCE_DATE_EPOCH, else the commit's.
pack_time() {
  echo "${SOURCE_DATE_EPOCH:-$(git -C "$(dirname "${BASH_SOURCE[0]}")" log -1 --format=%ct 2>/dev/null || echo 315532800)}"
}

# pack_tar FOLDER ARCHIVE: the folder, under its name, as .tar.gz or .tar.xz.
pack_tar() {
  local by='gzip -9n'
  [[ $2 != *.xz ]] || by='xz -9e -T1'
  tar -C "$(dirname "$1")" --sort=name --mtime="@$(pack_time)" --owner=0 --group=0 --numeric-owner \
    --mode=u=rwX,go=rX -cf - "$(basename "$1")" | $by >"$2"
}

# pack_zip FOLDER ARCHIVE: the folder, under its name. Its files take the package's time.
pack_zip() {
  rm -f "$2"
  chmod -R u=rwX,go=rX "$1"
  find "$1" -exec touch -d "@$(pack_time)" {} +
  (cd "$(dirname "$1")" && find "$(basename "$1")" | LC_ALL=C sort | TZ=UTC zip -q -9 -X -@ "$2")
}
