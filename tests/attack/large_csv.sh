# Files whose cells would take many times their size: told as what they are, with an address space that
# has room for the program and a document, but not for the cells. One over any limit says the same as
# a small one of its kind.
source "$(dirname "${BASH_SOURCE[0]}")/support.bash"

[ -z "$KZEKAMOK_SLOW_BUILD" ] || skip "a build that needs more memory for itself"

ROOM=400000 # KiB of address space
SIZE=6      # MiB of each file

# refused CODE FILE: within the room, and by that code alone
refused() {
    (ulimit -v "$ROOM" && exec timeout -k 5 120 "$kzekamok" check --format json --limit 1 "$2") \
        >out 2>err </dev/null
    status=$?
    expect_status 1 "$2"
    expect_in out "$1" "$2"
}

# repeat TEXT: SIZE MiB of it
repeat() {
    yes "$1" | head -c "${SIZE}M"
}

repeat 003 | tr '003\n' ',' >commas.csv
{ head -n 1 "$samples/PGE5030_pass.csv" | tr -d '\r\n'; cat commas.csv; } >wide.csv
repeat "$(head -n 1 "$samples/PGE5030_pass.csv" | tr -d '\r\n')" | sed '$d' >records.csv
repeat "" | head -c 1M >lines.csv
repeat "" | tr '\n' ' ' >blanks.csv

refused HE70021E commas.csv
refused HE70019E wide.csv
refused HE70020E records.csv
refused HE70020E lines.csv
refused HE70024E blanks.csv

finish
