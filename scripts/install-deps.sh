#!/usr/bin/env bash
# Installs the Debian packages that the scripts need; does nothing when they are all there.
# Usage: scripts/install-deps.sh [demo|wayland|test|release]      (default: test, which includes demo)
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

demo_packages=(g++ cmake ninja-build ccache qtbase5-dev libqt5gui5 binutils-mingw-w64-x86-64 fonts-dejavu-core)
wayland_packages=("${demo_packages[@]}" qtwayland5)
test_packages=("${demo_packages[@]}"
    clang lld llvm libclang-rt-14-dev clang-format clang-tidy
    xvfb openbox x11-utils poppler-utils libbenchmark-dev doxygen
    pkg-config dpkg-dev)
release_packages=("${demo_packages[@]}" dpkg-dev doxygen abigail-tools)

missing_packages()
{
    local package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed$' || printf '%s\n' "$package"
    done
}

case ${1:-test} in
    demo) wanted=("${demo_packages[@]}") ;;
    wayland) wanted=("${wayland_packages[@]}") ;;
    test) wanted=("${test_packages[@]}") ;;
    release) wanted=("${release_packages[@]}") ;;
    *) fail "unknown set of packages \"$1\": use demo, wayland, test or release" ;;
esac

command -v apt-get >/dev/null || fail "this is no Debian system; install the counterparts of: ${wanted[*]}"
mapfile -t missing < <(missing_packages "${wanted[@]}")
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=(env)
if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null || fail "not root and no sudo; as root run: apt-get install ${missing[*]}"
    as_root=(sudo env)
fi

say "installing ${missing[*]}"
log=$(mktemp -t kx-install-deps.XXXXXX)
"${as_root[@]}" apt-get -q update >"$log" 2>&1 || fail "apt-get update failed: see $log"
"${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" \
    >>"$log" 2>&1 </dev/null || fail "cannot install ${missing[*]}: see $log"
rm -f "$log"
