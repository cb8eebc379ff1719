#!/usr/bin/env bash
# Compares the binary interface of a library that has debugging information with its description: abi.sh LIBRARY DESCRIPTION.
# Added functions are allowed; LUM_WRITE_ABI=1 writes the description anew.
set -euo pipefail

if ! command -v abidiff >/dev/null; then
  echo "skipped: abidiff is not installed (package abigail-tools)"
  exit 0
fi
if [ "${LUM_WRITE_ABI:-}" = 1 ]; then
  # abidiff knows the file by its first line.
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs "$1" |
    sed -e "s/ architecture='[^']*'//" -e '1a <!-- Written by LUM_WRITE_ABI=1 tests/surface/abi.sh LIBRARY DESCRIPTION -->' >"$2"
  exit 0
fi
abidiff --no-added-syms --no-architecture --no-show-locs "$2" "$1"
echo "the exported functions and types are those of the description"
