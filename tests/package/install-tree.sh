#!/usr/bin/env bash
# Usage: install-tree.sh BUILD TREE
# Installs the build and moves the tree, which has exactly the headers of the project and leads back to no folder of it.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
build=$1 tree=$2

rm -rf "$tree" "$tree.before"
cmake --install "$build" --prefix "$tree.before" >/dev/null
mv "$tree.before" "$tree"

headers_in()
{
    local folder
    for folder in "$@"; do
        (cd "$folder" && find . -type f)
    done | sort
}
diff <(headers_in "$project_dir/include" "$project_dir/platform/include") <(headers_in "$tree/include/KxMFCWrapper") ||
    fail "the installed headers are not those of the project"

if grep -rlF --include='*.cmake' --include='*.pc' -e "$project_dir" -e "$build" -e "$tree" "$tree"; then
    fail "these files cannot be moved"
fi
