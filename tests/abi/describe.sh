#!/usr/bin/env bash
# Describes the boundary of the library: the exported functions and variables and the types of the
# public headers that they use. The library needs debugging information of the sources of the
# boundary. No path of the machine gets into the description.
# describe.sh LIBRARY OUTPUT
set -euo pipefail

strFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
exec abidw --exported-interfaces-only --suppressions "$strFolder/exported.suppr" \
    --drop-private-types --headers-dir "$strFolder/../../include" \
    --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed \
    --out-file "$2" "$1"
