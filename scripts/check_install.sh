#!/usr/bin/env bash
# Installs the release build into a fresh folder and builds and runs an outside project against it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install build/release --prefix "$prefix/installed" >/dev/null
cmake -S tests/consumer -B "$prefix/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix/installed" >/dev/null
cmake --build "$prefix/build" -- --quiet
"$prefix/build/heart_consumer"
QT_QPA_PLATFORM=offscreen "$prefix/build/qt_consumer"
