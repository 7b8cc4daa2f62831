#!/usr/bin/env bash
# Refreshes the translation catalogs from the sources (keeps existing
# translations, drops keys no longer used).
set -euo pipefail
cd "$(dirname "$0")/.."
/usr/lib/qt6/bin/lupdate -no-obsolete -locations none module framework curves fills annotation solids blocks records platform/kernel platform/db host \
  -ts translations/zqprops_de.ts
