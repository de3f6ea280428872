#!/usr/bin/env bash
# Installs a build tree into a folder of its own, builds the example there as its readme tells, and
# runs it.
# check_example.sh BUILD_DIR WORK_DIR CMAKE OBJC_COMPILER
set -euo pipefail

strBuild=$1
strWork=$2
strCMake=$3
strCompiler=$4
strRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
fail()
{
    echo "$1" >&2
    exit 1
}

rm -rf "$strWork"
mkdir -p "$strWork"
"$strCMake" --install "$strBuild" --prefix "$strWork/prefix" >"$strWork/install.txt"
# An installed tree may be moved.
mv "$strWork/prefix" "$strWork/moved"
strPackageFile=$(find "$strWork/moved" -name KZEkaMokObjC.pc)
export PKG_CONFIG_PATH=${strPackageFile%/*}
[ "$(pkg-config --modversion KZEkaMokObjC)" = 2.0.0 ] || fail "pkg-config tells another version"

cd "$strWork"
for strExample in objc/convert first/check; do
    # The flags are words, so they stay unquoted.
    "$strCompiler" -std=gnu11 $(gnustep-config --objc-flags) "$strRoot/examples/$strExample.m" \
        -o "${strExample#*/}" $(pkg-config --cflags --libs KZEkaMokObjC) \
        "-Wl,-rpath,$(dirname "$PKG_CONFIG_PATH")"
done

unset KZEKAMOK_BUNDLE
strActual=$(./convert "$strRoot/samples/PGE5020_pass.csv")
[ "$strActual" = "PGE5020: 52 records, a document of 74780 bytes" ] || fail "passed: $strActual"
if strActual=$(./convert "$strRoot/samples/PGE5020_fail.csv"); then
    fail "a refused file passed"
fi
strExpected=$(tr , '\n' <"$strRoot/samples/PGE5020_fail.detail")
[ "$strActual" = "$strExpected" ] || fail "refused: $strActual"

# The shortest program tells the same on one line.
[ "$(./check "$strRoot/samples/PGE5020_pass.csv")" = "S_OK " ] || fail "the shortest: passed"
[ "$(./check "$strRoot/samples/PGE5020_fail.csv")" = \
    "E_FAIL $(cat "$strRoot/samples/PGE5020_fail.detail")" ] || fail "the shortest: refused"
