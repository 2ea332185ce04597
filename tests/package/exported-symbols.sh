#!/usr/bin/env bash
# Usage: exported-symbols.sh compare|write LIBRARY LIST
# Compares what the library exports with the list, or writes the list.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
action=$1 library=$2 list=$3

# Left out are inline functions of the standard library and of Qt, which depend on the compiler and the build type,
# and what linkers add.
exported_symbols()
{
    nm -D --defined-only "$1" |
        awk '$2 ~ /[VWu]/ && $3 ~ /^_ZN?K?(S|[0-9]+Q)/ { next }
             $3 ~ /^(__bss_start|_edata|_end)$/ { next }
             { print $3 }' |
        c++filt | LC_ALL=C sort -u
}

if [[ $action == write ]]; then
    exported_symbols "$library" >"$list"
    exit
fi
diff -U 0 --label "$(basename "$list")" --label "$(basename "$library")" "$list" <(exported_symbols "$library") ||
    fail "when this is meant, build the target update_symbols, and see \"Releasing\" in CONTRIBUTING.md"
