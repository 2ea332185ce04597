#!/usr/bin/env bash
# Usage: build-program.sh cmake|pkg-config PREFIX WORK COMPILER VERSION
# Builds the program in the folder "program" with what is installed in PREFIX, and checks what it says. VERSION is the
# version that it asks for. Resources need CMake.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
how=$1 prefix=$2 work=$3 compiler=$4 version=$5
program=$(dirname "${BASH_SOURCE[0]}")/program

with_cmake()
{
    # The headers need C++17, which the target asks for.
    cmake -G Ninja -S "$program" -B "$work" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_CXX_STANDARD=14 -DCMAKE_PREFIX_PATH="$prefix" -DKX_VERSION="$version"
    cmake --build "$work"
}

with_pkg_config()
{
    local flags libs
    PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name kxmfcwrapper.pc)")
    export PKG_CONFIG_PATH
    mkdir -p "$work"
    read -ra flags < <(pkg-config --cflags kxmfcwrapper)
    "$compiler" -std=c++17 "${flags[@]}" -fsyntax-only "$program/WithoutPortedHeaders.cpp"
    read -ra flags < <(pkg-config --cflags "kxportedheaders >= $version")
    read -ra libs < <(pkg-config --libs kxportedheaders)
    # The program calls nothing of the second library, so the first one has to find it.
    "$compiler" -std=c++17 -O2 "${flags[@]}" "$program/main.cpp" -o "$work/station" -Wl,--as-needed "${libs[@]}" \
        "-Wl,-rpath,$(pkg-config --variable=libdir kxmfcwrapper)"
}

rm -rf "$work"
if [[ $how == cmake ]]; then
    with_cmake
    name=Station
else
    with_pkg_config
    name='No resources'
fi

said=$(QT_QPA_PLATFORM=offscreen LANG=C timeout 60 "$work/station")
[[ $said == "$name North, port 80801, result 1, null is not there" ]] || fail "the program said \"$said\""
