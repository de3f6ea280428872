#!/usr/bin/env bash
# Records the expected reports below tests/golden/host/ anew. What changed is then read line by line:
# git diff tests/golden/host
# tests/host/write_golden.sh PATH_OF_KZEKAMOK
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
export KZEKAMOK_SAMPLES_DIR=$here/../../samples
HOME=$(mktemp -d)
export HOME
trap 'rm -rf "$HOME"' EXIT
for script in lint report_golden; do
    KZ_UPDATE_GOLDEN=1 bash "$here/$script.sh" "$1"
done
