# Colour stands on terminals only, and nowhere if NO_COLOR is set.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
escape=$'\x1b['

# Runs kzekamok with a terminal as standard output.
run_on_terminal() {
    script -qec "$(printf '%q ' "$kzekamok" "$@")" /dev/null >out 2>err </dev/null
    status=$?
}

run check pass.csv
expect_not_in out "$escape" "a file as standard output has no colour"

export TERM=xterm
run_on_terminal check pass.csv
expect_status 0 "a terminal"
expect_in out "$escape" "a terminal has colour"

NO_COLOR=1 run_on_terminal check pass.csv
expect_not_in out "$escape" "NO_COLOR takes colour away"
NO_COLOR= run_on_terminal check pass.csv
expect_in out "$escape" "an empty NO_COLOR counts as unset"
TERM=dumb run_on_terminal check pass.csv
expect_not_in out "$escape" "a terminal that can't do colour gets none"

run_on_terminal check --format json pass.csv
expect_not_in out "$escape" "JSON has no colour"

finish
