#!/usr/bin/env bash
# Compares the binary interfaces of both libraries with those of an earlier version. Fails when functions or objects
# are gone, so that programs linked with that version do not run; other changes are for you to judge.
# Usage: scripts/abi-report.sh TAG|COMMIT
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
[[ $# -eq 1 ]] || fail "usage: abi-report.sh TAG|COMMIT"

cd "$project_dir"
commit=$(git rev-parse --quiet --verify "$1^{commit}") || fail "there is no version \"$1\""
"$project_dir/scripts/install-deps.sh" release
work=$project_dir/build/abi
before=$work/${commit:0:12}

unpack()
{
    rm -rf "$before/source"
    mkdir -p "$before/source"
    git archive "$commit" | tar -x -C "$before/source"
}

build_libraries()
{
    local name=$1 source=$2 build=$3
    say "building $name"
    logged "$work/logs/configure.log" "configuring $name" cmake -G Ninja -S "$source" -B "$build" \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=g++ -DKX_BUILD_TESTS=OFF -DKX_BUILD_EXAMPLES=OFF
    logged "$work/logs/build.log" "building $name" cmake --build "$build" --target KxMFCWrapper
}

# Types that are not in the public headers may change.
compare()
{
    local library=lib$1.so status=0
    abidiff --headers-dir1 "$before/source/include" --headers-dir1 "$before/source/platform/include" \
        --headers-dir2 "$project_dir/include" --headers-dir2 "$project_dir/platform/include" \
        --suppressions "$project_dir/scripts/abi-report.supp" \
        "$before/build/lib/$library" "$work/now/lib/$library" >"$work/$1.txt" || status=$?
    # One bit each for an error, wrong usage, any change, and a change that breaks programs.
    ((status & 3)) && fail "abidiff failed: see $work/$1.txt"
    cat "$work/$1.txt"
    [[ -s $work/$1.txt ]] || say "$library has not changed"
    ((status & 8)) && broken+=("$library")
    return 0
}

unpack
build_libraries "$1" "$before/source" "$before/build"
build_libraries "this version" "$project_dir" "$work/now"
broken=()
for library in KxMFCWrapper KxPlatform; do
    say "comparing lib$library.so"
    compare "$library"
done
[[ ${#broken[@]} -eq 0 ]] || fail "programs linked with $1 do not run with: ${broken[*]}"
say "nothing is gone since $1; the reports are in $work"
