#!/usr/bin/env bash
# Builds the library and runs the settings example.
# Usage: scripts/demo.sh [--window | --tour DIR]
#   no argument   opens the window when there is a display; without one the example drives itself
#                 and leaves its screenshots in build/demo
#   --window      opens the window, or fails when there is no display
#   --tour DIR    the example drives itself and writes its screenshots to DIR
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

tour_dir=
case ${1:-} in
    '') has_display || tour_dir=$project_dir/build/demo ;;
    --window) has_display || fail "no display: DISPLAY and WAYLAND_DISPLAY are empty" ;;
    --tour)
        [[ -n ${2:-} ]] || fail "--tour needs a folder"
        tour_dir=$(realpath -m "$2")
        ;;
    *) fail "unknown argument \"$1\": use --window or --tour DIR" ;;
esac

packages=demo
[[ -n ${DISPLAY:-} || -z ${WAYLAND_DISPLAY:-} ]] || packages=wayland
"$project_dir/scripts/install-deps.sh" "$packages"

build_dir=$project_dir/build/release
say "building"
cd "$project_dir"
logged "$project_dir/build/logs/demo-configure.log" "configuring" \
    cmake --preset release -DKX_BUILD_TESTS=OFF
logged "$project_dir/build/logs/demo-build.log" "building" cmake --build "$build_dir" --target settings

settings=$build_dir/bin/settings
if [[ -z $tour_dir ]]; then
    say "opening the settings window; its values are kept for the next run"
    exec "$settings"
fi

say "the example drives itself"
"$settings" --tour "$tour_dir"
say "the screenshots are in $tour_dir"
