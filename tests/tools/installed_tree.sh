#!/usr/bin/env bash
# Installs a build into a scratch folder and builds and runs a small project against it: installed_tree.sh BUILD
set -euo pipefail
project=$(dirname "$0")/outside_project
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$1" --prefix "$scratch/prefix" >/dev/null
cmake -S "$project" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/build" >/dev/null
"$scratch/build/outside"

if [ -e "$1/liblumvmk0.so" ]; then
  pc=$(dirname "$(find "$scratch/prefix" -name lumvm.pc)")
  flags=$(PKG_CONFIG_PATH=$pc pkg-config --define-variable=prefix="$scratch/prefix" --cflags --libs lumvm)
  cc "$project/main.c" $flags -o "$scratch/by_pkg_config"
fi
