#!/usr/bin/env bash
# Compares the boundary of a library with the kept description; any difference is a failure.
# check.sh LIBRARY WORK_DIR
set -euo pipefail

strFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
strFound=$2/libKZEkaMok.abi
mkdir -p "$2"
"$strFolder/describe.sh" "$1" "$strFound"
# Without types there would be little to compare.
grep -q "<class-decl name='KZIConvertResultEka' size-in-bits=" "$strFound" || {
    echo "$1 has no debugging information of its boundary" >&2
    exit 1
}
abidiff --harmless --no-default-suppression "$strFolder/libKZEkaMok.abi" "$strFound" || {
    echo "The boundary isn't the kept one. If the change is wanted, run scripts/keep-abi and read" \
        "its difference; hosts that are built already need a new major version for any change but" \
        "an addition." >&2
    exit 1
}
