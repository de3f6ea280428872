# For the scripts beside this one: `source` it with the path of kzekamok as first argument.
#
# Works in a folder of its own. Every check that fails is told; `finish` ends with their verdict.

kzekamok=$1
json_value=$(dirname "$1")/kzekamok_json_value
samples=$KZEKAMOK_SAMPLES_DIR
fields=(--zeimusho-cd 90101 --nozeisha-id 9900000000000017 --nozeisha-nm 見本 --nozeisha-adr 例町)
failures=0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
unset NO_COLOR
export LC_ALL=C

# Runs kzekamok; leaves its output in the files out and err and its status in $status.
run() {
    "$kzekamok" "$@" >out 2>err </dev/null
    status=$?
}

fail() {
    failures=$((failures + 1))
    echo "FAILED: $1"
    echo "  status: $status"
    sed 's/^/  out: /' out | head -n 20
    sed 's/^/  err: /' err | head -n 20
}

# expect_status STATUS WHAT
expect_status() {
    [ "$status" -eq "$1" ] || fail "$2: status $1 expected"
}

# expect_in FILE TEXT WHAT: the text stands in the file as it is.
expect_in() {
    grep -qF -- "$2" "$1" || fail "$3: \"$2\" expected in $1"
}

# expect_not_in FILE TEXT WHAT
expect_not_in() {
    ! grep -qF -- "$2" "$1" || fail "$3: \"$2\" not expected in $1"
}

# expect_equal ACTUAL EXPECTED WHAT
expect_equal() {
    [ "$1" = "$2" ] || fail "$3: \"$2\" expected, not \"$1\""
}

# The value at a JSON pointer of the file out.
json() {
    "$json_value" "$@" <out
}

finish() {
    [ "$failures" -eq 0 ] || exit 1
}
