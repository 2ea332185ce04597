#!/usr/bin/env bash
# Usage: debian-packages.sh pack BUILD PACKAGES | install PACKAGES ROOT | purge ROOT
# Makes the packages, and installs and purges them in a root of their own, without touching the system.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
action=$1

# The settings of the system may leave out documents, and its log is not for these packages.
dpkg_in()
{
    local root=$1
    shift
    dpkg --root="$root" --log="$root.log" --force-not-root --force-bad-path --path-include='*' "$@"
}

pack()
{
    local build=$1 packages=$2
    rm -rf "$packages"
    cpack --config "$build/CPackConfig.cmake" -B "$packages"
}

dependencies_of()
{
    local deb
    for deb in "$@"; do
        dpkg-deb --field "$deb" Depends
    done | tr ',|' '\n' | sed 's/(.*//; s/ //g; /^$/d; /^libkxmfcwrapper/d' | sort -u
}

# Of what the packages depend on, what is installed here counts as installed there.
take_over_dependencies()
{
    local root=$1 package stanza
    shift
    # shellcheck disable=SC2016  # dpkg-query fills it in
    stanza='Package: ${Package}\nStatus: ${Status}\nArchitecture: ${Architecture}\nVersion: ${Version}\n'
    stanza+='Maintainer: nobody\nDescription: nothing\n\n'
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || continue
        dpkg-query -W -f "$stanza" "$package" >>"$root/var/lib/dpkg/status"
        touch "$root/var/lib/dpkg/info/$package.list"
    done
}

check_library()
{
    local root=$1 libraries library sections
    if grep '\.so$' "$root"/var/lib/dpkg/info/libkxmfcwrapper[0-9]*.list; then
        fail "these belong to the development package"
    fi
    mapfile -t libraries < <(find "$root/usr/lib" -name 'libKx*.so')
    [[ ${#libraries[@]} -eq 2 ]] || fail "there are ${#libraries[@]} libraries"
    for library in "${libraries[@]}"; do
        sections=$(readelf -SW "$library")
        [[ $sections != *.debug_info* ]] || fail "$library is not stripped"
    done
    grep -qx 'activate-noawait ldconfig' "$root"/var/lib/dpkg/info/libkxmfcwrapper[0-9]*.triggers ||
        fail "the library is not made known to the loader"
    grep -q '^libKxMFCWrapper [0-9]* libkxmfcwrapper' "$root"/var/lib/dpkg/info/libkxmfcwrapper[0-9]*.shlibs ||
        fail "packages of programs cannot find the library's"
}

# check_field ROOT PACKAGE FIELD PATTERN
check_field()
{
    local value
    value=$(dpkg-query --admindir="$1/var/lib/dpkg" -W -f "\${$3}" "$2")
    # shellcheck disable=SC2053  # a pattern
    [[ $value == $4 ]] || fail "$2 has $3: $value"
}

check_fields()
{
    local root=$1 library version
    library=$(basename -s .shlibs "$root"/var/lib/dpkg/info/libkxmfcwrapper*.shlibs)
    version=$(dpkg-query --admindir="$root/var/lib/dpkg" -W -f '${Version}' "$library")
    check_field "$root" "$library" Description 'MFC class interface on Qt widgets*'
    check_field "$root" libkxmfcwrapper-dev Depends "$library (= $version), qtbase5-dev*"
    check_field "$root" libkxmfcwrapper-dev Recommends binutils-mingw-w64-x86-64
    check_field "$root" libkxmfcwrapper-doc Architecture all
}

check_documents()
{
    local root=$1 list documents
    for list in "$root"/var/lib/dpkg/info/libkxmfcwrapper*.list; do
        documents=$root/usr/share/doc/$(basename "$list" .list)
        [[ -s $documents/copyright && -s $documents/changelog.gz ]] || fail "no copyright or changelog in $documents"
    done
    documents=$root/usr/share/doc/libkxmfcwrapper-doc
    [[ -s $documents/README.md && -s $documents/docs/porting.md ]] || fail "no documents in $documents"
}

install()
{
    local packages=$1 root=$2 needed
    rm -rf "$root"
    mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
    touch "$root/var/lib/dpkg/status"
    mapfile -t needed < <(dependencies_of "$packages"/*.deb)
    [[ " ${needed[*]} " == *" libqt5widgets5 "*" qtbase5-dev "* ]] || fail "dependencies: ${needed[*]}"
    take_over_dependencies "$root" "${needed[@]}"
    dpkg_in "$root" --install "$packages"/*.deb
    check_library "$root"
    check_fields "$root"
    check_documents "$root"
}

purge()
{
    local root=$1 packages left
    mapfile -t packages < <(basename -s .list "$root"/var/lib/dpkg/info/libkxmfcwrapper*.list)
    [[ ${#packages[@]} -eq 3 ]] || fail "there are ${#packages[@]} packages"
    dpkg_in "$root" --purge "${packages[@]}"
    left=$(find "$root" -mindepth 1 -not -path "$root/var*")
    [[ -z $left ]] || fail "left behind: $left"
}

shift
"$action" "$@"
