#!/usr/bin/env bash
# Installs a build tree into a folder of its own and builds a consumer against it, by find_package
# and by pkg-config.
# check.sh BUILD_DIR WORK_DIR CMAKE GENERATOR CXX_COMPILER PASSING_SAMPLE
set -euo pipefail

strBuild=$1
strWork=$2
strCMake=$3
strGenerator=$4
strCompiler=$5
strSample=$6
strSource=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
strPrefix=$strWork/moved
fail()
{
    echo "$1" >&2
    exit 1
}

rm -rf "$strWork"
mkdir -p "$strWork"
"$strCMake" --install "$strBuild" --prefix "$strWork/prefix"
# An installed tree may be moved.
mv "$strWork/prefix" "$strPrefix"

# A missing file, then one that passes only with the installed definition files.
check_output()
{
    local strExpected strActual
    strExpected=$'E_FAIL|9999-00001-HE70013E\nS_OK|'
    strActual=$("$@" "$strWork/missing.csv" "$strSample")
    [ "$strActual" = "$strExpected" ] || fail "$1 printed: $strActual"
}

unset KZEKAMOK_BUNDLE
# Users of the package have no Xerces-C++ to build with.
"$strCMake" -S "$strSource" -B "$strWork/by-cmake" -G "$strGenerator" \
    -DCMAKE_PREFIX_PATH="$strPrefix" \
    -DCMAKE_CXX_COMPILER="$strCompiler" \
    -DCMAKE_DISABLE_FIND_PACKAGE_XercesC=ON
"$strCMake" --build "$strWork/by-cmake"
check_output "$strWork/by-cmake/consumer"

strPackageFile=$(find "$strPrefix" -name KZEkaMok.pc)
strLibrary=$(dirname "$(dirname "$strPackageFile")")
export PKG_CONFIG_PATH=$strLibrary/pkgconfig
[ "$(pkg-config --modversion KZEkaMok)" = 2.0.0 ] || fail "pkg-config tells another version"
# The flags are words, so they stay unquoted.
"$strCompiler" -std=c++11 "$strSource/main.cpp" -o "$strWork/by-pkg-config" \
    $(pkg-config --cflags --libs KZEkaMok) "-Wl,-rpath,$strLibrary"
check_output "$strWork/by-pkg-config"

# Nothing but the public headers, and no path of the build.
strHeaders=$(cd "$strPrefix/include" && find . -type f | LC_ALL=C sort | tr '\n' ' ')
strPublic=$({
    cd "$strSource/../../include" && find . -type f -name '*.h'
    # The Objective-C classes come if they were built.
    if [ -e "$strLibrary/libKZEkaMokObjC.so" ]; then
        cd "$strSource/../../objc/include" && find . -type f -name '*.h'
    fi
} | LC_ALL=C sort | tr '\n' ' ')
[ "$strHeaders" = "$strPublic" ] || fail "installed headers: $strHeaders"
for strPath in "$(cd "$strSource/../.." && pwd)" "$strBuild"; do
    if grep -rlF -- "$strPath" "$strPrefix"; then
        fail "these files hold the path $strPath"
    fi
done

strHost=$strPrefix/bin/kzekamok
if [ -e "$strHost" ]; then
    "$strHost" check "$strSample"
fi
