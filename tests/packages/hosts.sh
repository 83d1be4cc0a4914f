#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# hosts.sh PREFIX FOLDER SOURCES COMPILER: hosts that have nothing but what was installed in
# PREFIX. The one of the README, copied from there, and the one of the examples are compiled,
# run, and asked for drawings as a person would.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/lib.sh"
prefix=$program sources=$3 compiler=$4
cp "$sources"/examples/drawings/*.dxf "$plans"
cp "$sources"/examples/templates/*.dwt "$plans"

# code LANGUAGE FILE: writes the README's program in that language.
code() { python3 "$sources/tests/documents/code_blocks.py" extract "$1" README.md "$2"; }

# build NAME: with CMake's package
build() {
    cmake -S "$out/$1" -B "$out/$1/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS='-Wall -Wextra -Werror' >"$out/$1.log" &&
        cmake --build "$out/$1/build" >>"$out/$1.log" || fail "$1 cannot be built: $(cat "$out/$1.log")"
}

# run PROGRAM TITLE: starts it in the folder of drawings and waits for its window.
run() {
    (cd "$plans" && exec "$1") >"$out/answer" 2>"$out/errors" &
    dialog=$!
    wait_for_window "$2" || fail "no window of ${1##*/}: $(cat "$out/errors")"
}

mkdir -p "$out/readme-host"
code cpp "$out/readme-host/main.cpp"
code cmake "$out/readme-host/CMakeLists.txt"
build readme-host
run "$out/readme-host/build/host" 'Open Drawing'
write gear.dxf
screenshot "$out/readme-host.png"
press Return
wait_for_window host
press alt+F4
finish
expect 'the exit status' "$status" 0

cp -R "$sources/examples/minimal-host" "$out"
build minimal-host
host=$out/minimal-host/build/minimal-host
run "$host" minimal-host
xdotool key ctrl+o
wait_for_window 'Open Drawing'
write floor-plan.dxf
press Return
wait_for_window minimal-host
xdotool key ctrl+n
wait_for_window 'New Drawing'
write template-plan.dwt
press Return
wait_for_window minimal-host
xdotool key ctrl+s
wait_for_window 'Save Drawing'
write new
screenshot "$out/minimal-host.png"
press Return
wait_for_window minimal-host
xdotool key ctrl+o
wait_for_window 'Open Drawing'
press Escape
wait_for_window minimal-host
screenshot "$out/minimal-host-answers.png"
press alt+F4
finish
expect 'the answers' "$answer" "mode 256, type 0, $plans/floor-plan.dxf
mode 1, type 0, $plans/template-plan.dwt
mode 65536, type 0, $plans/new.dwg
status -5002"

# With pkg-config, and with the stand-alone kernel alone.
export PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name VyFileDialogs.pc)")
[[ $(pkg-config --modversion VyFileDialogs) == "$(pkg-config --modversion VyHostKernel)" ]] ||
    fail 'the two libraries have two versions'
# shellcheck disable=SC2046
"$compiler" -std=c++17 -fPIC "$sources/examples/minimal-host/main.cpp" -o "$out/with-pkg-config" \
    $(pkg-config --cflags --libs VyFileDialogs) || fail 'no program with pkg-config'
mkdir -p "$out/kernel-host"
cat >"$out/kernel-host/CMakeLists.txt" <<'EOF'
cmake_minimum_required(VERSION 3.16)
project(KernelHost LANGUAGES CXX)
find_package(VyFileDialogs 1.0 REQUIRED COMPONENTS HostKernel)
if(TARGET VyFileDialogs::VyFileDialogs)
    message(FATAL_ERROR "the dialogs come with the kernel")
endif()
find_package(VyFileDialogs 1.0 QUIET COMPONENTS Sounds)
if(VyFileDialogs_FOUND)
    message(FATAL_ERROR "a component is found that there is not")
endif()
find_package(VyFileDialogs 2.0 QUIET)
if(VyFileDialogs_FOUND)
    message(FATAL_ERROR "version 1 is found as version 2")
endif()
add_executable(host main.cpp)
target_link_libraries(host PRIVATE VyFileDialogs::HostKernel)
EOF
cat >"$out/kernel-host/main.cpp" <<'EOF'
#include <VyString.h>
int main() { return QString(CVyString(L"plan")) == QLatin1String("plan") ? 0 : 1; }
EOF
build kernel-host
"$out/kernel-host/build/host" || fail 'the kernel alone does not work'
echo 'ok: pkg-config, and the kernel alone'
