#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# packages.sh BUILD FOLDER ROOT: makes the Debian packages of what was built, in FOLDER; each
# is one that lintian accepts, they can be installed, and each file is in one of them. Unpacks
# them into ROOT, which has nothing else.
set -euo pipefail
build=$1 folder=$2 root=$3
for tool in dpkg-shlibdeps lintian; do
    command -v "$tool" >/dev/null || {
        echo "skipped: $tool is not installed"
        exit 77
    }
done
failed=0
fail() {
    echo "FAILED: $*"
    failed=1
}

rm -rf "$folder" "$root"
(cd "$build" && cpack -G DEB -B "$folder") >"$folder.log" 2>&1 || {
    cat "$folder.log"
    exit 1
}
packages=("$folder"/*.deb)
names=$(for package in "${packages[@]}"; do dpkg-deb --field "$package" Package; done)
[[ $names == $'libvyfiledialogs-dev\nlibvyfiledialogs1-gnustep\nlibvyfiledialogs1\nvyfiledialog' ]] ||
    fail "the packages are $names"

# They are not Debian's own, where each first upload closes a wish; and CPack calls ldconfig
# beside triggering it.
lintian --allow-root --fail-on error,warning \
    --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig "${packages[@]}" ||
    fail 'lintian does not accept them'
apt-get --simulate install "${packages[@]}" >"$folder.log" 2>&1 || {
    cat "$folder.log"
    fail 'what they depend on cannot be had'
}
for package in "${packages[@]}"; do
    [[ $package != *libvyfiledialogs1_* ]] || ! dpkg-deb --field "$package" Depends | grep -i gnustep ||
        fail 'the libraries need GNUstep'
done

mkdir -p "$root"/var/lib/dpkg/{info,updates}
touch "$root/var/lib/dpkg/status"
dpkg --root="$root" --force-not-root --unpack "${packages[@]}" >/dev/null
DESTDIR=$folder/all cmake --install "$build" --prefix /usr >/dev/null
missing=$(cd "$folder/all" && find . -type f | while read -r file; do
    [[ -e $root/$file || -e $root/$file.gz ]] || echo "$file"
done)
[[ -z $missing ]] || fail "in no package: $missing"
exit "$failed"
