#!/usr/bin/env bash
# Installs what a fresh Debian machine lacks to build and test the project. Packages that
# are already there are not touched, so a second run costs nothing.
# --fuzz: also what the fuzz build needs (clang with its libFuzzer and sanitizer runtimes).
set -euo pipefail

# qt6-tools-dev: the Linguist CMake functions (qt_add_translations); doxygen: the API reference;
# qt6-svg-dev and a font: the pictures of pvproducts draw, which also run without a display.
packages=(cmake ninja-build g++ qt6-base-dev qt6-l10n-tools qt6-tools-dev qt6-svg-dev fonts-dejavu-core doxygen)
if [ "${1:-}" = "--fuzz" ]; then
    packages+=(clang libclang-rt-14-dev)
fi
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
