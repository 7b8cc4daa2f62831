#!/usr/bin/env bash
# Configures and builds into BUILD_DIR (default build/); extra arguments go
# to CMake, e.g. -DZQ_SANITIZE=ON.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${BUILD_DIR:-build}
cmake -S . -B "$build_dir" -G Ninja "$@" >/dev/null
ninja -C "$build_dir" -j2
