# Sourced by ./play, ./check and .ci/run: what a bare Debian 12 lacks, and how it is installed.

BUILD_NEEDS="g++ cmake ninja-build qt6-base-dev qt6-base-private-dev qt6-base-dev-tools qt6-multimedia-dev qt6-l10n-tools
  qt6-translations-l10n libgl-dev libgtest-dev libbenchmark-dev fonts-liberation fonts-dejavu-core"
TEST_NEEDS="xvfb openbox sway qt6-wayland xdotool imagemagick x11-utils xauth hunspell hunspell-pt-br openssl
  at-spi2-core dbus desktop-file-utils appstream pulseaudio pulseaudio-utils patchelf"
# For the folder that brings Qt along.
FOLDER_NEEDS="qt6-wayland patchelf binutils xz-utils"

fail() {
  echo "$(basename "$0"): $*" >&2
  exit 1
}

# need PACKAGE...: installs those of the packages that are missing, saying so.
need() {
  local missing=() p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  command -v apt-get >/dev/null || fail "these Debian packages are needed: ${missing[*]}"
  local as=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "not root and no sudo: please install ${missing[*]}"
    as=(sudo)
  fi
  echo "Installing with apt-get: ${missing[*]}"
  "${as[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq ||
    fail "apt-get update failed"
  "${as[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null || fail "apt-get install failed"
}

# build PRESET [TARGET...]: configures and builds a preset, with ccache where there is one.
build() {
  local preset=$1
  shift
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake --preset "$preset" "${launcher[@]}" >"build/$preset.configure.log" 2>&1 ||
    { cat "build/$preset.configure.log" >&2; fail "configuring '$preset' failed"; }
  cmake --build --preset "$preset" ${1:+--target "$@"} || fail "building '$preset' failed"
}
