#!/usr/bin/env bash
# Installs a build into a scratch folder and builds and runs small programs against it, by CMake and by pkg-config, in C and in
# C++: installed_tree.sh BUILD
set -euo pipefail
export CMAKE_GENERATOR=Ninja  # the one that this project itself needs
tests=$(dirname "$0")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$1" --prefix "$scratch/prefix" >/dev/null
cmake -S "$tests/outside_project" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/build" >/dev/null
"$scratch/build/outside"
"$scratch/build/outside_cpp"

PKG_CONFIG_PATH=$(dirname "$(find "$scratch/prefix" -name lumvm.pc)")
LD_LIBRARY_PATH=$(dirname "$(find "$scratch/prefix" -name 'liblumvmp0.so')")
export PKG_CONFIG_PATH LD_LIBRARY_PATH
for package in lumvm lumvmk0 lumvmp0; do
  [ -e "$PKG_CONFIG_PATH/$package.pc" ] || continue
  read -ra flags < <(pkg-config --define-variable=prefix="$scratch/prefix" --cflags --libs "$package")
  for program in "$tests/outside_project/main.c" "$tests/../../examples/damped_oscillation.c"; do
    cc -std=c99 -pedantic -Wall -Wextra -Werror "$program" "${flags[@]}" -lm -o "$scratch/by_pkg_config"
    if [ $package != lumvmp0 ] && [ -e "$1/liblumvmk0.so" ] && ! grep -qsw avx512vl /proc/cpuinfo; then continue; fi
    "$scratch/by_pkg_config" >"$scratch/output" || { cat "$scratch/output"; echo "$program with $package failed"; exit 1; }
  done
done
echo "programs against the installed tree: ok"
