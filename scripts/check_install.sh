#!/usr/bin/env bash
# Installs the release build into a fresh folder, checks its documents, and builds and runs outside projects against it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
docs=$prefix/installed/share/doc/MirolenViewWM
build_outside() {
  cmake -S "$1" -B "$2" -G Ninja -DCMAKE_PREFIX_PATH="$prefix/installed" "${@:3}" >/dev/null
  cmake --build "$2" -- --quiet
}

cmake --install build/release --prefix "$prefix/installed" >/dev/null
python3 scripts/check_docs.py "$docs"
build_outside tests/consumer "$prefix/build" -DMIROLEN_DOCS="$docs"
build_outside "$docs/examples/host" "$prefix/host"
"$prefix/build/heart_consumer"
QT_QPA_PLATFORM=offscreen "$prefix/build/qt_consumer"
QT_QPA_PLATFORM=offscreen "$prefix/build/window_consumer"
