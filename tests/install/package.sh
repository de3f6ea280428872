#!/usr/bin/env bash
# Makes the Debian packages of a build tree, looks into them, installs them into a root folder of
# their own, works with what is there, and removes them again. The machine's own packages are left
# alone, and no rights are needed.
# package.sh BUILD_DIR WORK_DIR CPACK CMAKE GENERATOR C_COMPILER CXX_COMPILER SAMPLES_DIR VERSION
#            LIBRARY_DIR HAS_HOST HAS_OBJC
# LIBRARY_DIR is relative to the prefix; the last two are 0 or 1.
set -euo pipefail

strBuild=$1
strWork=$2
strCPack=$3
strCMake=$4
strGenerator=$5
strCCompiler=$6
strCxxCompiler=$7
strSamples=$8
strVersion=$9
strLibDir=usr/${10}
bHost=${11}
bObjC=${12}
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
strRepository=$(cd "$strSource/../.." && pwd)
strDebian=$strVersion-1
export LC_ALL=C

rm -rf "$strWork"
mkdir -p "$strWork/packages"
"$strCPack" -G DEB --config "$strBuild/CPackConfig.cmake" -B "$strWork/packages"
cd "$strWork/packages"

deb()
{
    echo "$strWork/packages/$1_${strDebian}_$(dpkg --print-architecture).deb"
}

field()
{
    dpkg-deb --field "$(deb "$1")" "$2"
}

# Name and, for a link, target of all but the folders.
files_of()
{
    dpkg-deb --fsys-tarfile "$(deb "$1")" | tar --list --verbose |
        sed -n 's/^[^d].* [0-9][0-9]:[0-9][0-9] \.\///p' | sort
}

# What every package has beside the files that standard input names.
with_documents()
{
    { cat && printf "usr/share/doc/$1/%s\n" changelog.Debian.gz changelog.gz copyright; } | sort
}

# expect_depends PACKAGE PATTERN...: the package needs what fits the patterns, in this order.
expect_depends()
{
    local strPackage=$1 strPattern strDepends
    shift
    strPattern=$(printf ', %s' "$@")
    strDepends=$(field "$strPackage" Depends)
    grep -qEx -- "${strPattern#, }" <<<"$strDepends" || fail "$strPackage depends on $strDepends"
}

listPackages=(libkzekamok2 libkzekamok-dev)
if [ "$bHost" = 1 ]; then
    listPackages+=(kzekamok)
fi
if [ "$bObjC" = 1 ]; then
    listPackages+=(libkzekamokobjc2 libkzekamokobjc-dev)
fi

strExpected=$(for strPackage in "${listPackages[@]}"; do deb "$strPackage"; done | sort)
expect_equal "$(ls "$PWD"/*.deb)" "$strExpected" "packages"
for strPackage in "${listPackages[@]}"; do
    expect_equal "$(field "$strPackage" Version)" "$strDebian" "version of $strPackage"
    [ -n "$(field "$strPackage" Maintainer)" ] || fail "$strPackage has no maintainer"
    # The synopsis, and more below it.
    strText=$(field "$strPackage" Description)
    grep -qEx 'check .{20,70}' <<<"${strText%%$'\n'*}" || fail "$strPackage's synopsis"
    [ "$(wc -l <<<"$strText")" -gt 3 ] || fail "$strPackage's description"
    # Nobody but root may change anything, and no script runs at an installation.
    if dpkg-deb --contents "$(deb "$strPackage")" |
        grep -vE '^[^ ]{5}[^w]..[^w]. root/root |^l'; then
        fail "$strPackage: owners and permissions"
    fi
    if dpkg-deb --ctrl-tarfile "$(deb "$strPackage")" | tar --list |
        grep -vEx '\./(control|md5sums|shlibs|triggers)?'; then
        fail "$strPackage: control files"
    fi
done

listCommon=('libc6 \([^,]*\)' 'libgcc-s1 \([^,]*\)' 'libstdc\+\+6 \([^,]*\)'
    'libxerces-c3\.2([^,]*)?')
expect_depends libkzekamok2 "${listCommon[@]}"
expect_depends libkzekamok-dev "libkzekamok2 \\(= $strDebian\\)"

expect_equal "$(files_of libkzekamok2)" "$({
    echo "$strLibDir/libKZEkaMok.so.2 -> libKZEkaMok.so.$strVersion"
    echo "$strLibDir/libKZEkaMok.so.$strVersion"
    cd "$strRepository/resources" && find KZEkaMok.bundle -type f -printf 'usr/share/KZEkaMok/%p\n'
} | with_documents libkzekamok2)" "files of libkzekamok2"
expect_equal "$(files_of libkzekamok-dev)" "$({
    cd "$strRepository/include" && find KZEkaMok -name '*.h' -printf 'usr/include/%p\n'
    echo "$strLibDir/libKZEkaMok.so -> libKZEkaMok.so.2"
    echo "$strLibDir/pkgconfig/KZEkaMok.pc"
    printf "$strLibDir/cmake/KZEkaMok/%s.cmake\n" \
        KZEkaMokConfig KZEkaMokConfigVersion KZEkaMokTargets-release KZEkaMokTargets
} | with_documents libkzekamok-dev)" "files of libkzekamok-dev"
if [ "$bHost" = 1 ]; then
    expect_depends kzekamok "libkzekamok2 \\(= $strDebian\\)" "${listCommon[@]}"
    expect_equal "$(files_of kzekamok)" "$(
        printf 'usr/%s\n' bin/kzekamok share/man/man1/kzekamok.1.gz \
            share/bash-completion/completions/kzekamok share/zsh/vendor-completions/_kzekamok |
            with_documents kzekamok
    )" "files of kzekamok"
    dpkg-deb --fsys-tarfile "$(deb kzekamok)" | tar -xO ./usr/share/man/man1/kzekamok.1.gz |
        gzip -dc | cmp - "$strRepository/host/kzekamok.1" || fail "manual page"
fi
if [ "$bObjC" = 1 ]; then
    expect_depends libkzekamokobjc2 "libkzekamok2 \\(= $strDebian\\)" \
        '.*libgnustep-base.*' '.*libobjc4 .*'
    expect_depends libkzekamokobjc-dev "libkzekamokobjc2 \\(= $strDebian\\)" \
        "libkzekamok-dev \\(= $strDebian\\)" libgnustep-base-dev
    expect_equal "$(files_of libkzekamokobjc2)" "$({
        echo "$strLibDir/libKZEkaMokObjC.so.2 -> libKZEkaMokObjC.so.$strVersion"
        echo "$strLibDir/libKZEkaMokObjC.so.$strVersion"
    } | with_documents libkzekamokobjc2)" "files of libkzekamokobjc2"
    expect_equal "$(files_of libkzekamokobjc-dev)" "$({
        cd "$strRepository/objc/include" && find KZEkaMok -name '*.h' -printf 'usr/include/%p\n'
        echo "$strLibDir/libKZEkaMokObjC.so -> libKZEkaMokObjC.so.2"
        echo "$strLibDir/pkgconfig/KZEkaMokObjC.pc"
        printf "$strLibDir/cmake/KZEkaMok/KZEkaMokObjCTargets%s.cmake\n" -release ''
    } | with_documents libkzekamokobjc-dev)" "files of libkzekamokobjc-dev"
fi
strActual=$(dpkg-deb --ctrl-tarfile "$(deb libkzekamok2)" | tar -xO ./shlibs ./triggers | sort)
expect_equal "$strActual" \
    "activate-noawait ldconfig"$'\n'"libKZEkaMok 2 libkzekamok2 (>= $strDebian)" \
    "shlibs and triggers of libkzekamok2"

# A database of its own; the needed packages are the machine's. Some machines leave out manual pages
# and documents; here they count.
strRoot=$strWork/root
mkdir -p "$strRoot/var/lib/dpkg/info" "$strRoot/var/lib/dpkg/updates" "$strWork/home"
: >"$strRoot/var/lib/dpkg/status"
root_dpkg()
{
    dpkg --root="$strRoot" --log="$strWork/dpkg.log" --path-include='/*' \
        --force-not-root --force-bad-path --force-depends --force-unsafe-io "$@"
}
# All below the root but what dpkg keeps for itself.
left_in_root()
{
    cd "$strRoot"
    find . -mindepth 1 -not -path ./var -not -path ./var/lib -not -path './var/lib/dpkg*'
}

listFiles=()
for strPackage in "${listPackages[@]}"; do
    listFiles+=("$(deb "$strPackage")")
done
root_dpkg --install "${listFiles[@]}"
states()
{
    dpkg-query --admindir="$strRoot/var/lib/dpkg" --show \
        --showformat '${db:Status-Abbrev}${Package}\n' 2>&1
}
expect_equal "$(states)" "$(printf 'ii %s\n' "${listPackages[@]}" | sort)" "state of the packages"
expect_equal "$(root_dpkg --verify "${listPackages[@]}")" "" "files that aren't as they were packed"

strPrefix=$strRoot/usr
strLibrary=$strRoot/$strLibDir
export HOME=$strWork/home
if readelf --sections --wide "$strLibrary/libKZEkaMok.so.2" | grep -E ' \.(symtab|debug_)'; then
    fail "the packed library isn't stripped"
fi
consume_by_cmake "$strPrefix"
consume_by_pkg_config "$strPrefix" "$strLibrary" "$strVersion"

if [ "$bHost" = 1 ]; then
    strHost=$strPrefix/bin/kzekamok
    strLibraries=$(ldd "$strHost")
    case $strLibraries in
        *"libKZEkaMok.so.2 => $strPrefix/bin/../${strLibDir#usr/}/libKZEkaMok.so.2 "*) ;;
        *) fail "the program takes another library: $strLibraries" ;;
    esac
    # check_status EXPECTED ARGUMENT...
    check_status()
    {
        local nExpected=$1 nStatus=0
        shift
        "$strHost" "$@" || nStatus=$?
        [ "$nStatus" -eq "$nExpected" ] || fail "kzekamok $*: status $nStatus"
    }
    check_status 0 --version
    # Samples of all families.
    check_status 0 check "$strSamples"/*_pass.csv
    check_status 1 check --limit 1 "$strSamples/PGE5020_fail.csv"
    check_status 0 convert "$strSamples/PGE5080_pass.csv" --profile "$strSamples/filer.toml" \
        -o "$strWork/out.mok"
    grep -q '<PGE5080 ' "$strWork/out.mok" || fail "the document isn't one of PGE5080"
    # The resource folder is the packed one, found from where the library lies.
    mv "$strPrefix/share/KZEkaMok" "$strWork/away"
    check_status 3 check "$strSamples/PGE5020_pass.csv"
    mv "$strWork/away" "$strPrefix/share/KZEkaMok"
fi

root_dpkg --purge "${listPackages[@]}"
expect_equal "$(left_in_root)" "" "what is left behind a removal"
strActual=$(states || true)
[[ $strActual != *kzekamok* ]] || fail "a removed package isn't gone: $strActual"
