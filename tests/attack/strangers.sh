# Another user in a folder that everybody may write in.
source "$(dirname "$0")/support.bash" "$1"
need_stranger

cp "$samples/PGE5020_pass.csv" a.csv
mkdir in
cp a.csv in
base=(--profile "$samples/filer.toml")
echo precious >victim
chmod 600 victim

# --- links in a folder that others may write in ---

mkdir -m 777 free
stranger ln -s "$work/victim" free/a.mok
run convert a.csv "${base[@]}" -o free/a.mok
expect_status 4 "a stranger's link"
expect_equal "$(cat victim)" precious "a stranger's link"
mkdir -m 1777 public
stranger ln -s "$work/victim" public/a.mok
run convert a.csv "${base[@]}" -o public/a.mok
expect_status 4 "a stranger's link in a sticky folder"
expect_in out "Permission denied" "a stranger's link in a sticky folder"
stranger ln -s "$work/victim" public/report
run check a.csv --format json -o public/report
expect_status 4 "a stranger's link as a report"
expect_equal "$(cat victim)" precious "a stranger's link in a sticky folder"
mkdir aside
stranger ln -s "$work/aside" public/folder
run convert a.csv "${base[@]}" -o public/folder/a.mok
expect_status 4 "a stranger's link to a folder"
expect_equal "$(ls -A aside)" "" "a stranger's link to a folder"
run batch in -o public/folder "${filer[@]}"
expect_status 4 "a stranger's link as the output folder"
expect_equal "$(ls -A aside)" "" "a stranger's link as the output folder"
ln -s "$work/aside/own.mok" public/own.mok
run convert a.csv "${base[@]}" -o public/own.mok
expect_status 0 "an own link in a sticky folder"
[ -s aside/own.mok ] || fail "an own link in a sticky folder is followed"

# --- a stranger's pipe with a reader in a sticky folder ---

stranger mkfifo public/pipe.mok
stranger cat public/pipe.mok >stolen &
run_at_once convert a.csv "${base[@]}" -o public/pipe.mok
expect_status 4 "a stranger's pipe"
: >public/pipe.mok
wait
expect_equal "$(wc -c <stolen)" 0 "a stranger's pipe gets nothing"

# --- a stranger's file gets no rights over what replaces it ---

mkdir -m 777 open
stranger sh -c 'umask 0; echo x >open/a.mok'
run convert a.csv "${base[@]}" -o open/a.mok
expect_status 0 "a stranger's file is replaced"
expect_equal "$(stat -c %a:%u open/a.mok)" 644:0 "a stranger's rights don't stay"

# --- the output folder of a batch ---

mkdir -m 777 box
stranger sh -c 'echo "{\"file\":" >box/report.json'
run batch in -o box "${filer[@]}"
expect_status 2 "a stranger's report"
expect_in err "another user" "a stranger's report"
rm -rf box && mkdir -m 777 box
stranger sh -c ': >box/.kzekamok-batch.lock'
run batch in -o box "${filer[@]}"
expect_status 2 "a stranger's lock"
expect_in err "another user" "a stranger's lock"
rm -rf box && mkdir -m 755 box
stranger flock box sleep 30 &
holder=$!
sleep 0.5
run_at_once batch in -o box "${filer[@]}"
expect_status 0 "whoever may read an output folder can't hold a batch up"
kill "$holder" 2>/dev/null
chmod 777 box && stranger mkdir -m 700 box/.kzekamok-0123456789abcdef
stranger sh -c 'echo mine >box/.kzekamok-0123456789abcdef/unfinished'
run batch in -o box "${filer[@]}"
[ -e box/.kzekamok-0123456789abcdef/unfinished ] || fail "a stranger's unfinished file stays"

# --- links in the inbox to files that only this user may read ---

mkdir -m 777 inbox
cp a.csv secret.csv
chmod 600 secret.csv
stranger ln -s "$work/secret.csv" inbox/theirs.csv
ln -s "$work/secret.csv" inbox/own.csv
run batch inbox -o read "${filer[@]}"
expect_status 3 "a stranger's link in the inbox"
expect_in out "inbox/theirs.csv: The file was not checked: it is another user's link" \
    "a stranger's link in the inbox"
[ ! -e read/theirs.mok ] || fail "a stranger's link in the inbox is not converted"
expect_in read/report.json '"file":"inbox/own.csv","result":"converted"' "an own link in the inbox"
run batch inbox -o read "${filer[@]}"
expect_status 3 "a stranger's link in the inbox, once more"

# --- a folder in which everything is swapped all the time ---

mkdir -m 777 race
cat >swap.sh <<'END'
cd "$1" || exit 1
while [ ! -e ../stop ]; do
    for name in .kzekamok-*; do
        [ "$name" = '.kzekamok-*' ] && continue
        mv "$name" "moved.$RANDOM" 2>/dev/null && mkdir "$name" &&
            ln -s "$2" "$name/link.mok" && ln -s "$2" "$name/unfinished"
    done 2>/dev/null
    ln -sf "$2" a.mok 2>/dev/null
done
END
stranger bash swap.sh race "$work/victim" &
swapper=$!
for ((n = 0; n < 25; n++)); do
    run_at_once convert a.csv "${base[@]}" -o race/a.mok
    [ "$status" -eq 0 ] || [ "$status" -eq 4 ] || fail "a race ends in status $status"
    grep -q "0 bytes" out && fail "a race ends in an empty document"
    [ "$(cat victim)" = precious ] || break
done
touch stop
wait "$swapper"
[ "$(cat victim)" = precious ] || fail "a race overwrites another file"
rm -rf race

finish
