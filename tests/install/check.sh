#!/usr/bin/env bash
# Installs a build tree into a folder of its own and builds consumers in C++ and C against it, by
# find_package and by pkg-config.
# check.sh BUILD_DIR WORK_DIR CMAKE GENERATOR C_COMPILER CXX_COMPILER SAMPLES_DIR VERSION
set -euo pipefail

strBuild=$1
strWork=$2
strCMake=$3
strGenerator=$4
strCCompiler=$5
strCxxCompiler=$6
strSamples=$7
strVersion=$8
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
strRoot=$(cd "$strSource/../.." && pwd)
strPrefix=$strWork/moved

rm -rf "$strWork"
mkdir -p "$strWork"
"$strCMake" --install "$strBuild" --prefix "$strWork/prefix"
# An installed tree may be moved.
mv "$strWork/prefix" "$strPrefix"
strPackageFile=$(find "$strPrefix" -name KZEkaMok.pc)
strLibrary=$(dirname "$(dirname "$strPackageFile")")

consume_by_cmake "$strPrefix"
consume_by_pkg_config "$strPrefix" "$strLibrary" "$strVersion"

expect_equal "$(soname "$strLibrary/libKZEkaMok.so.2")" libKZEkaMok.so.2 "name of the library"
[ -L "$strLibrary/libKZEkaMok.so" ] || fail "the link for the linker is missing"
diff -r "$strRoot/resources/KZEkaMok.bundle" "$strPrefix/share/KZEkaMok/KZEkaMok.bundle" ||
    fail "the resource folder isn't the installed one"
for strFile in LICENSE README.md README.ja.md CHANGELOG.md; do
    cmp "$strRoot/$strFile" "$strPrefix/share/doc/KZEkaMok/$strFile" || fail "$strFile"
done

# Nothing but the public headers, and no path of the build.
strHeaders=$(cd "$strPrefix/include" && find . -type f | LC_ALL=C sort)
strPublic=$({
    cd "$strRoot/include" && find . -type f -name '*.h'
    # The Objective-C classes come if they were built.
    if [ -e "$strLibrary/libKZEkaMokObjC.so" ]; then
        cd "$strRoot/objc/include" && find . -type f -name '*.h'
    fi
} | LC_ALL=C sort)
expect_equal "$strHeaders" "$strPublic" "installed headers"
for strPath in "$strRoot" "$strBuild"; do
    if grep -rlF -- "$strPath/" "$strPrefix"; then
        fail "these files hold the path $strPath"
    fi
done

strHost=$strPrefix/bin/kzekamok
if [ -e "$strHost" ]; then
    "$strHost" check "$strSamples/PGE5020_pass.csv"
    cmp "$strRoot/host/kzekamok.1" "$strPrefix/share/man/man1/kzekamok.1" || fail "manual page"
    "$strHost" completion bash --lang en |
        cmp - "$strPrefix/share/bash-completion/completions/kzekamok" || fail "completion for bash"
    "$strHost" completion zsh --lang en |
        cmp - "$strPrefix/share/zsh/site-functions/_kzekamok" || fail "completion for zsh"
fi
