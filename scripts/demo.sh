#!/usr/bin/env bash
# Builds the library and the examples, and runs one of them or all.
# Usage: scripts/demo.sh [stockroom|converter|gallery|settings|sketch] [--window | --tour DIR]
#   stockroom, converter, gallery, settings, sketch
#                the example to run; without a name stockroom in a window, or the tours of all
#   --window     opens the window, or fails when there is no display
#   --tour DIR   the examples drive themselves and leave their screenshots in DIR/<example>
#   neither      --window when there is a display, else --tour build/demo
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

examples=(stockroom converter gallery settings sketch)
case ${1:-} in
    stockroom | converter | gallery | settings | sketch)
        examples=("$1")
        shift
        ;;
esac

tour_dir=
case ${1:-} in
    '') has_display || tour_dir=$project_dir/build/demo ;;
    --window) has_display || fail "no display: DISPLAY and WAYLAND_DISPLAY are empty" ;;
    --tour)
        [[ -n ${2:-} ]] || fail "--tour needs a folder"
        tour_dir=$(realpath -m "$2")
        shift
        ;;
    *) fail "unknown argument \"$1\": use stockroom, converter, gallery, settings or sketch, then --window or --tour DIR" ;;
esac
[[ $# -le 1 ]] || fail "unexpected argument \"$2\""
[[ -n $tour_dir ]] || examples=("${examples[0]}")

packages=demo
[[ -n ${DISPLAY:-} || -z ${WAYLAND_DISPLAY:-} ]] || packages=wayland
"$project_dir/scripts/install-deps.sh" "$packages"

build_dir=$project_dir/build/release
logs=$project_dir/build/logs
say "building"
cd "$project_dir"
logged "$logs/demo-configure.log" "configuring" cmake --preset release -DKX_BUILD_TESTS=OFF
logged "$logs/demo-build.log" "building" cmake --build "$build_dir" --target "${examples[@]}"

if [[ -z $tour_dir ]]; then
    say "opening the window of ${examples[0]}"
    exec "$build_dir/bin/${examples[0]}"
fi

for example in "${examples[@]}"; do
    say "$example drives itself"
    logged "$logs/demo-$example.log" "the tour of $example" \
        "$build_dir/bin/$example" --tour "$tour_dir/$example"
done
say "every step held; the screenshots are in $tour_dir"
