#!/usr/bin/env bash
# Makes the Debian packages of a build, unpacks them into a scratch root, and builds and runs a program against what they hold:
# packages.sh BUILD
set -euo pipefail
build=$(realpath "$1")
tests=$(realpath "$(dirname "$0")")
for tool in cpack dpkg-deb pkg-config; do
  command -v "$tool" >/dev/null || { echo "skipped: there is no $tool"; exit 0; }
done
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

(cd "$build" && cpack -G DEB -B "$scratch/packages" >"$scratch/log" 2>&1) || { cat "$scratch/log"; exit 1; }
for package in "$scratch"/packages/*.deb; do
  dpkg-deb -x "$package" "$scratch/root"
  dpkg-deb -f "$package" Package Version Depends
done
pkg_config_path=$(dirname "$(find "$scratch/root" -name lumvm.pc)")
library_path=$(dirname "$(find "$scratch/root" -name 'liblumvm.so.*' | head -1)")
read -ra flags < <(PKG_CONFIG_PATH=$pkg_config_path PKG_CONFIG_ALLOW_SYSTEM_CFLAGS=1 pkg-config --cflags --libs lumvm)
cc -std=c99 "$tests/outside_project/main.c" "${flags[@]}" -o "$scratch/program"
LD_LIBRARY_PATH=$library_path "$scratch/program"
if [ -x "$scratch/root/usr/bin/lumvm" ]; then LD_LIBRARY_PATH=$library_path "$scratch/root/usr/bin/lumvm" list >/dev/null; fi
if command -v lintian >/dev/null; then
  errors=$(lintian --fail-on none "$scratch"/packages/*.deb 2>/dev/null | grep '^E:' || true)
  if [ -n "$errors" ]; then
    echo "$errors"
    exit 1
  fi
  echo "lintian: no errors"
fi
echo "packages: ok"
