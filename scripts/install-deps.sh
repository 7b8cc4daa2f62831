#!/usr/bin/env bash
# Installs the Debian packages the project builds and tests with (only the
# missing ones; apt-get needs root). --fuzz: also clang, for the fuzz targets.
set -euo pipefail
packages=(g++ cmake ninja-build qt6-base-dev qt6-l10n-tools qt6-tools-dev
          libgtest-dev libgmock-dev libbenchmark-dev python3-ezdxf libedit-dev
          fonts-dejavu-core)
[ "${1:-}" = "--fuzz" ] && packages+=(clang libclang-rt-14-dev)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${missing[@]}"
fi
