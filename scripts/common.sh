# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Shared by the commands of this folder; to be sourced, not run.
set -eu
cd "$(dirname "$0")/.."

say() { printf '\n== %s\n' "$*"; }

# install_packages [LIST…]: installs what is missing of the lists in scripts, packages.txt where none is named, through
# sudo where the user is not root.
install_packages() {
  [ $# -gt 0 ] || set -- packages.txt
  command -v dpkg-query > /dev/null || { say "No Debian system: install the like of scripts/packages.txt first"; return; }
  local package missing=""
  while read -r package; do
    dpkg-query -W -f '${Status}\n' "$package" 2> /dev/null | grep -q 'ok installed' || missing="$missing $package"
  done < <(cd scripts && grep -hv '^#' "$@")
  [ -n "$missing" ] || return 0
  say "Installing$missing"
  local root=""
  [ "$(id -u)" = 0 ] || root="sudo"
  $root apt-get update -q
  # shellcheck disable=SC2086 # a list of words
  $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
}

# configure PRESET [CMAKE-OPTION…]: configures build/PRESET.
configure() {
  local preset="$1"
  shift
  if command -v ccache > /dev/null; then set -- -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"; fi
  cmake --preset "$preset" "$@"
}

# build PRESET [CMAKE-OPTION…]: configures and builds build/PRESET.
build() {
  say "Building the $1 preset"
  configure "$@"
  cmake --build --preset "$1"
}
