# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What our scripts share: saying what they do, and Debian's packages.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

say() { printf '== %s\n' "$*"; }

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

is_installed() { dpkg-query -W -f '${Status}' "$1" 2>/dev/null | grep -q 'ok installed'; }

# need_packages NAME...: installs those that are missing. Root, or sudo, is
# asked for only then.
need_packages() {
    command -v dpkg-query >/dev/null || die "this script installs Debian packages; install these by hand: $*"
    local missing=() name as_root=()
    for name in "$@"; do
        is_installed "$name" || missing+=("$name")
    done
    ((${#missing[@]})) || return 0
    say "installing packages: ${missing[*]}"
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "packages are missing and this is neither root nor is there sudo: ${missing[*]}"
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(cmake ninja-build g++ clang qtbase5-dev qttools5-dev qttools5-dev-tools
    libqt5x11extras5-dev zlib1g-dev libx11-dev libgnustep-gui-dev gnustep-back0.29-cairo
    gnustep-make gnustep-base-runtime gnustep-gui-runtime)
display_packages=(xvfb openbox xdotool imagemagick x11-utils fonts-dejavu-core)
package_packages=(dpkg-dev)
test_packages=("${package_packages[@]}" libclang-rt-dev lld llvm cppcheck clang-tidy clazy gcovr
    mandoc doxygen python3 binutils lintian pkg-config libqt5svg5 fonts-vlgothic valgrind
    qttranslations5-l10n qt5-xdgdesktopportal-platformtheme)
benchmark_packages=(python3 binutils gnuplot-nox kdialog zenity yad)
gallery_packages=(qttranslations5-l10n qt5ct fonts-wqy-zenhei optipng)
