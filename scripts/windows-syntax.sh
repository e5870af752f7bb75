#!/usr/bin/env bash
# Reads every source of the program with a compiler for Windows (MinGW), against the Qt headers of
# this machine: what exists on one system alone does not get through. It links and runs nothing.
# windows-syntax.sh [FILE...]; all of src without arguments, which takes half an hour.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/setup.sh
. scripts/setup.sh
setup g++-mingw-w64-x86-64-posix

headers=$(qmake6 -query QT_INSTALL_HEADERS)
compiler=(x86_64-w64-mingw32-g++-posix -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow
  -Wnon-virtual-dtor -Werror -DQT_NO_CAST_TO_ASCII -DQT_NO_KEYWORDS -Isrc -isystem "$headers")
for module in Core Gui Widgets SerialPort PrintSupport Svg; do
  compiler+=(-isystem "$headers/Qt$module")
done
# What CMake tells single files.
for text in INSTALLED_DEFAULTS TITLE DESCRIPTION COPYRIGHT; do
  compiler+=("-DQUENTOR_$text=\"text\"")
done
for number in MAJOR MINOR REVISION; do compiler+=("-DQUENTOR_VERSION_$number=1"); done

if [ $# -eq 0 ]; then
  mapfile -t sources < <(git ls-files 'src/*.cpp')
else
  sources=("$@")
fi
failed=0
for source in "${sources[@]}"; do
  "${compiler[@]}" "$source" || { printf 'not for Windows: %s\n' "$source"; failed=1; }
done
[ $failed -eq 0 ] && printf '%d files can be compiled for Windows.\n' ${#sources[@]}
exit $failed
