# Files that others put where the program reads or writes: links, pipes, what a kill left behind.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" a.csv
cp "$samples/PGE5020_fail.csv" b.csv
mkdir in
cp a.csv in
convert=(convert a.csv "${filer[@]}")
base=(--profile "$samples/filer.toml")
"$kzekamok" convert a.csv "${base[@]}" -o good.mok >/dev/null 2>&1 || fail "a conversion"

# --- pipes that nobody reads or writes ---

mkfifo pipe pipe.mok pipe.csv
for command in check rules; do
    run_at_once check a.csv --format json -o pipe
    expect_status 4 "a report into a pipe without a reader"
done
expect_in err "No such device or address" "a report into a pipe without a reader"
run_at_once check a.csv --format html -o pipe
expect_status 4 "a page into a pipe without a reader"
run_at_once convert a.csv "${base[@]}" -o pipe.mok
expect_status 4 "a document into a pipe without a reader"
run_at_once check pipe.csv
expect_status 3 "a pipe as a CSV file"
run_at_once batch --files-from pipe -o listed "${filer[@]}"
expect_status 2 "a list in a pipe without a writer"
expect_in err "named pipe" "a list in a pipe without a writer"
for name in report.json index.html; do
    rm -rf box && mkdir box && mkfifo "box/$name"
    run_at_once batch in -o box "${filer[@]}"
    expect_status 2 "a pipe as $name"
    expect_in err "$name is there already" "a pipe as $name"
    [ -p "box/$name" ] || fail "a pipe as $name stays"
done
rm -rf box && mkdir box && mkfifo box/a.mok
run_at_once batch in -o box "${filer[@]}"
expect_status 4 "a pipe as a document of a batch"
[ -p box/a.mok ] || fail "a pipe as a document of a batch stays"

# What is meant to be a pipe works.
run_at_once check a.csv --format json -o >(cat >piped.json)
expect_status 0 "a report into the shell's pipe"
for ((n = 0; n < 100; n++)); do grep -q '^}' piped.json && break; sleep 0.05; done
expect_in piped.json '"passed"' "a report into the shell's pipe"
run_at_once batch --files-from <(echo in/a.csv) -o listed "${filer[@]}"
expect_status 0 "a list in the shell's pipe"
timeout 60 "$kzekamok" batch --files-from /dev/stdin -o listed "${filer[@]}" <<<in/a.csv >out 2>err
status=$?
expect_status 0 "a list in standard input by its name"
run_at_once batch --files-from /dev/null -o nothing "${filer[@]}"
expect_status 0 "a list without names"

# --- links ---

echo precious >victim
for name in report.json index.html; do
    rm -rf box && mkdir box && ln -s ../victim "box/$name"
    run batch in -o box "${filer[@]}"
    expect_status 2 "a link as $name"
done
rm -rf box && mkdir box
ln -s ../victim box/report.json.new
ln -s ../victim box/a.mok
run batch in -o box "${filer[@]}"
expect_status 0 "links beside the report and as a document"
expect_equal "$(cat victim)" precious "nothing is written through a link in the output folder"
[ ! -L box/report.json ] || fail "the report is no link"
cmp -s box/a.mok <(cat box/a.mok) && [ ! -L box/a.mok ] || fail "a link is replaced by the document"

rm -rf box && mkdir -p box deep/sub aside
cp a.csv deep/sub
ln -s ../aside box/sub
run batch deep -o box "${filer[@]}"
expect_status 4 "a link as a folder of documents"
expect_equal "$(ls -A aside)" "" "nothing is written behind a link in the output folder"
ln -sf ../victim box/.kzekamok-batch.lock
run batch in -o box "${filer[@]}"
expect_status 2 "a link as the lock"
expect_equal "$(cat victim)" precious "a link as the lock"

ln -s "$work/victim" exists.csv
run new 002 -o exists.csv
expect_status 2 "new keeps a link"
expect_equal "$(cat victim)" precious "new keeps a link"

# --- rights ---

umask 022
rm -rf box
run batch in -o box "${filer[@]}"
expect_equal "$(stat -c %a box/report.json box/index.html box/a.mok | tr '\n' ' ')" "600 600 644 " \
    "report and page are their owner's alone"
chmod 644 box/index.html
run batch in -o box "${filer[@]}"
expect_equal "$(stat -c %a box/index.html)" 600 "a page that others could read"
run batch in -o box "${filer[@]}" --share-report
expect_equal "$(stat -c %a box/report.json box/index.html | tr '\n' ' ')" "644 644 " "--share-report"
expect_equal "$(find box -name '.*' | wc -l)" 0 "nothing hidden is left"

# --- what a kill leaves behind ---

mkdir killed
mkdir -m 700 killed/.kzekamok-0123456789abcdef killed/.kzekamok-fedcba9876543210 killed/.kzekamok-mine
echo half >killed/.kzekamok-0123456789abcdef/unfinished
ln -s /proc/self/fd/7 killed/.kzekamok-0123456789abcdef/link.mok
echo mine >killed/.kzekamok-fedcba9876543210/letter
echo mine >killed/.kzekamok-AbCdEf.mok
run convert a.csv "${base[@]}" -o killed/a.mok
expect_status 0 "a conversion beside what a kill left behind"
expect_in err "unfinished files: 1" "what a kill left behind is told"
[ ! -e killed/.kzekamok-0123456789abcdef ] || fail "what a kill left behind is removed"
[ -e killed/.kzekamok-fedcba9876543210/letter ] && [ -e killed/.kzekamok-AbCdEf.mok ] &&
    [ -d killed/.kzekamok-mine ] || fail "what isn't this program's stays"

# A conversion that is at work, held at its writing by a pipe as its report.
mkdir working
mkdir -m 700 working/.kzekamok-00000000000000aa
exec 8<working/.kzekamok-00000000000000aa
flock -n 8 || fail "a lock"
run convert a.csv "${base[@]}" -o working/b.mok
expect_not_in err "unfinished" "what a process works in is left alone"
[ -d working/.kzekamok-00000000000000aa ] || fail "what a process works in is left alone"
run batch in -o working "${filer[@]}"
[ -d working/.kzekamok-00000000000000aa ] || fail "a batch leaves alone what a process works in"
exec 8<&-
run batch in -o working "${filer[@]}"
[ ! -d working/.kzekamok-00000000000000aa ] || fail "a batch removes it when the process has ended"
expect_in err "unfinished files of runs that were ended, now removed: 1" "a batch tells it"

# Killed at every moment: never a document under a name but its own, nor half of one.
mkdir -p often
for delay in 0.02 0.05 0.08 0.1 0.12 0.15 0.2; do
    "$kzekamok" convert a.csv "${base[@]}" -o often/a.mok >/dev/null 2>&1 &
    sleep "$delay"
    kill -KILL $! 2>/dev/null
    wait $! 2>/dev/null
    [ ! -e often/a.mok ] || cmp -s often/a.mok good.mok || fail "a kill leaves half a document"
    [ -z "$(find often -name '*.mok' -type f ! -path often/a.mok)" ] ||
        fail "a kill leaves a document under another name"
    rm -f often/a.mok
done
run convert a.csv "${base[@]}" -o often/a.mok
expect_status 0 "after kills"
expect_equal "$(ls -A often)" a.mok "after kills nothing is left but the document"

finish
