#!/usr/bin/env bash
# Installs the Debian 12 packages that building, running and testing Vorn
# need. Does nothing (quickly) when everything is already there.
set -euo pipefail

packages=(
  cmake ninja-build pkg-config g++ clang-format
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  qt6-webengine-dev qt6-pdf-dev libqt6svg6 libgl-dev
  libsqlite3-dev libplist-dev libicu-dev
  libgtest-dev libgmock-dev
  xvfb xauth poppler-utils python3 fonts-dejavu-core
  libqpdf-dev qpdf libqrencode-dev
  zbar-tools python3-pikepdf libsaxonhe-java
  desktop-file-utils appstream libxml2-utils dpkg-dev qt6-translations-l10n
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
