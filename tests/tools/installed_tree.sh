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
LD_LIBRARY_PATH=$(dirname "$(find "$scratch/prefix" -name 'liblumvm.so')")
export PKG_CONFIG_PATH LD_LIBRARY_PATH
# The tree may lie anywhere: nothing but its own files tells where it is.
for package in lumvm lumvmk0 lumvma2 lumvmp0; do
  [ -e "$PKG_CONFIG_PATH/$package.pc" ] || continue
  read -ra flags < <(pkg-config --cflags --libs "$package")
  for program in "$tests/outside_project/main.c" "$tests/../../examples/damped_oscillation.c"; do
    cc -std=c99 -pedantic -Wall -Wextra -Werror "$program" "${flags[@]}" -lm -o "$scratch/by_pkg_config"
    # On a processor that a library is not for, the loader refuses it.
    if "$scratch/by_pkg_config" >"$scratch/output" 2>&1; then continue; fi
    if grep -q "ISA level" "$scratch/output"; then continue; fi
    cat "$scratch/output"
    echo "$program with $package failed"
    exit 1
  done
done
cc -std=c99 -static "$tests/outside_project/main.c" -I"$scratch/prefix/include" "$LD_LIBRARY_PATH/liblumvm.a" -lm -o "$scratch/by_archive"
"$scratch/by_archive" >/dev/null

# The installed tool finds the installed library, also when the tree has moved, and comes with its pages.
unset LD_LIBRARY_PATH
mv "$scratch/prefix" "$scratch/moved"
[ "$("$scratch/moved/bin/lumvm" apply exp 0)" = 1 ]
"$scratch/moved/bin/lumvm" --version | grep -q "$scratch/moved"
for page in man/man1/lumvm.1.gz bash-completion/completions/lumvm zsh/site-functions/_lumvm; do
  [ -s "$scratch/moved/share/$page" ]
done
echo "programs against the installed tree: ok"
