# Sourced by ./demo and ./check: installs what a bare Debian 12 lacks, and builds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-l10n-tools libgl1-mesa-dev libgtest-dev
          libgmock-dev libbenchmark-dev nlohmann-json3-dev fonts-liberation poppler-utils locales xvfb xauth
          clang-format python3 valgrind)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
  local missing=()
  for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
  fi
  # A locale with a decimal comma, for the tests.
  locale -a | grep -qi '^de_DE.utf' || as_root localedef -i de_DE -f UTF-8 de_DE.UTF-8
}

# build PRESET [cmake options of the configure step]
build() {
  local preset=$1
  shift
  cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" >"build-$preset.log" 2>&1 ||
    { cat "build-$preset.log"; return 1; }
  rm -f "build-$preset.log"
  cmake --build --preset "$preset" -- --quiet
}
