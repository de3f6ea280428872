#!/usr/bin/env bash
# Where the library looks for its resource folder, beside its code and in its prefix.
# usage: resource_folder.sh PROBE
set -u

probe=$1
folder=$(mktemp -d)
folder=$(realpath "$folder")
trap 'rm -rf "$folder"' EXIT
unset KZEKAMOK_BUNDLE
failures=0

# expect WHAT EXPECTED [VARIABLE=VALUE…]: what the copy in lib/x86/ finds
expect() {
    local what=$1 expected=$2 found
    shift 2
    found=$(env "$@" "$folder/lib/x86/probe" bundle)
    if [[ $found != "$expected" ]]; then
        printf 'FAILED: %s\n  expected: %s\n  found:    %s\n' "$what" "$expected" "$found"
        failures=$((failures + 1))
    fi
}

mkdir -p "$folder/lib/x86"
cp "$probe" "$folder/lib/x86/probe"
beside=$folder/lib/x86/KZEkaMok.bundle
near=$folder/lib/share/KZEkaMok/KZEkaMok.bundle
far=$folder/share/KZEkaMok/KZEkaMok.bundle

expect 'without any folder there is none' ''
mkdir -p "$far"
expect 'share of the prefix above lib/ARCHITECTURE' "$far"
mkdir -p "$near"
expect 'share of the prefix above lib before the one further up' "$near"
mkdir -p "$beside"
expect 'beside the code before share' "$beside"
expect 'an empty variable counts as none' "$beside" KZEKAMOK_BUNDLE=
mkdir "$folder/named"
expect 'the folder that the variable names before all others' "$folder/named" \
    "KZEKAMOK_BUNDLE=$folder/named"
expect 'no other folder if the named one is not there' '' "KZEKAMOK_BUNDLE=$folder/none"
rmdir "$beside"
touch "$beside"
expect 'a file of that name is no folder' "$near"

exit $((failures > 0))
