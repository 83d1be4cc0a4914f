#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# own-kernel.sh SOURCE FOLDER PREFIX OPTION...: builds the host with a kernel of its own
# in FOLDER, with these options of CMake's, has the contract tests look at its kernel and
# installs it. It gets what it needs of our sources, and with that nothing of our kernel,
# its host and its tests: they cannot be used by mistake.
set -euo pipefail
source=$1 folder=$2 prefix=$3
shift 3

# With their times, so that the next build need not compile them again.
rm -rf "$folder/module" "$folder/acme" "$prefix"
mkdir -p "$folder/module/tests/kernel"
cp -pR "$source/"{CMakeLists.txt,cmake,VyFileDialogs,translations} "$folder/module"
cp -pR "$source/tests/kernel/"{contract,PreviewFiles.*} "$folder/module/tests/kernel"
cp -pR "$source/examples/own-kernel" "$folder/acme"

cmake -S "$folder/acme" -B "$folder/build" -DVY_SOURCE_DIR="$folder/module" "$@"
cmake --build "$folder/build" --parallel "$(getconf _NPROCESSORS_ONLN)"
ctest --test-dir "$folder/build" --output-on-failure --no-tests=error
cmake --install "$folder/build" --prefix "$prefix"
