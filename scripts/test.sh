#!/usr/bin/env bash
# Builds the project and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
cd "${BUILD_DIR:-build}"
ctest -j2 --output-on-failure --timeout 300
