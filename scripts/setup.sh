# Sourced by ./demo and ./check: installs what a bare Debian 12 lacks, and builds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages_to_build=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-l10n-tools fonts-liberation)
packages_to_check=(ccache libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev poppler-utils mupdf-tools
                   ghostscript librsvg2-bin locales xvfb xauth xdotool clang-format python3 valgrind)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
  dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'ok installed'
}

# install_packages PACKAGE...: those that are missing. An index that cannot be read may be that of something unrelated.
install_packages() {
  local missing=()
  for package in "$@"; do is_installed "$package" || missing+=("$package"); done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing: ${missing[*]}"
  as_root apt-get update -qq || echo "Not every package index could be read; going on with the others." >&2
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null || {
    echo "These packages are needed and could not be installed: ${missing[*]}" >&2
    return 1
  }
}

# configure PRESET [cmake options]
configure() {
  local log="build-$1.log" launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  cmake --preset "$@" "${launcher[@]}" >"$log" 2>&1 || { cat "$log"; return 1; }
  rm -f "$log"
}

# build PRESET [targets]: with ninja's progress for who is watching.
build() {
  local preset=$1 quiet=()
  shift
  [ -t 1 ] || quiet=(-- --quiet)
  cmake --build --preset "$preset" ${1:+--target "$@"} "${quiet[@]}"
}
