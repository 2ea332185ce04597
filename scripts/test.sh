#!/usr/bin/env bash
# Proves the whole project: format, three builds with their tests, static analysis and the demonstration.
# Usage: scripts/test.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
[[ $# -eq 0 ]] || fail "takes no arguments"

cd "$project_dir"
logs=$project_dir/build/logs
total=0

our_files()
{
    find benchmarks examples include platform source tests -type f "$@" -print0
}

check_format()
{
    our_files '(' -name '*.h' -o -name '*.cpp' ')' | xargs -0 clang-format --dry-run --Werror
}

build_and_test()
{
    local preset=$1 summary
    say "$preset: building"
    logged "$logs/$preset-configure.log" "$preset configuration" cmake --preset "$preset"
    logged "$logs/$preset-build.log" "$preset build" cmake --build --preset "$preset"
    say "$preset: testing"
    logged "$logs/$preset-test.log" "$preset tests" ctest --preset "$preset" -j2
    summary=$(grep 'tests passed' "$logs/$preset-test.log") || fail "$preset: no tests were run"
    say "$preset: $summary"
    total=$((total + ${summary##* }))
}

# Uses the compile commands of the clang build. Generated sources are not ours to judge, and those from before a port
# are not compiled.
check_sources()
{
    find examples platform source -name '*.cpp' -not -path 'examples/converter/windows/*' -print0 |
        xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$project_dir/build/clang"
}

say "checking the tools"
scripts/install-deps.sh test

say "format"
logged "$logs/format.log" "format" check_format

for preset in dev clang asan; do
    build_and_test "$preset"
done

say "static analysis"
logged "$logs/clang-tidy.log" "static analysis" check_sources

say "demonstration"
logged "$logs/demo.log" "demonstration" scripts/demo.sh --tour build/demo

say "everything passed"
printf '100%% tests passed, 0 tests failed out of %d\n' "$total"
