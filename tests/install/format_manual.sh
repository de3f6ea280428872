#!/usr/bin/env bash
# Formats a manual page by both formatters; whatever they say against it is a failure.
# format_manual.sh PAGE
set -euo pipefail

strSaid=$(
    mandoc -T lint -W style "$1" || true
    groff -man -Tutf8 -Kutf8 -ww -z "$1" 2>&1 || true
)
[ -z "$strSaid" ] || {
    echo "$strSaid" >&2
    exit 1
}
