#!/usr/bin/env bash
# Installs the Debian packages Tavrin needs, and only those that are missing.
set -euo pipefail

packages=(
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-translations-l10n
  libicu-dev libexiv2-dev libtag1-dev libplist-dev
  cmake ninja-build pkg-config g++
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth
  desktop-file-utils appstream shared-mime-info libxml2-utils
  gcovr
  man-db groff-base zsh fish
)

missing=()
for package in "${packages[@]}"; do
  dpkg -s "$package" >/dev/null 2>&1 || missing+=("$package")
done

[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get -o DPkg::Lock::Timeout=300 update -qq < /dev/null
"${sudo_cmd[@]}" apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "${missing[@]}" < /dev/null
