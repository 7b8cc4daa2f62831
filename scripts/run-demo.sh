#!/usr/bin/env bash
# Installs what the project needs, builds it, and lists the properties of
# every object of the sample drawing.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
build/bin/zqprops samples/demo.dxf --list
