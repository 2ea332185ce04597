#!/usr/bin/env bash
# Usage: subproject.sh WORK COMPILER
# Configures the program with the library as a part of it, which installs and packs nothing then.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
work=$1 compiler=$2

rm -rf "$work"
cmake -G Ninja -S "$(dirname "${BASH_SOURCE[0]}")/program" -B "$work" -DCMAKE_CXX_COMPILER="$compiler" \
    -DKX_SOURCE="$project_dir"
cmake --install "$work" --prefix "$work/installed"
[[ ! -e $work/installed ]] || fail "the library is installed"
[[ ! -e $work/CPackConfig.cmake ]] || fail "the library is packed"
