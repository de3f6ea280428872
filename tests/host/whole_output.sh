# The document appears whole or not at all.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
cp "$samples/PGE5020_fail.csv" fail.csv
convert=(convert pass.csv "${fields[@]}")

# expect_files NAME... WHAT: the folder documents holds these and nothing else, hidden files too.
expect_files() {
    local what=${!#}
    expect_equal "$(ls -A documents | tr '\n' ' ')" "$(printf '%s ' "${@:1:$#-1}")" "$what"
}

mkdir documents
run "${convert[@]}" -o documents/a.mok
expect_status 0 "a new document"
expect_files a.mok "a new document is all that is left"
expect_equal "$(stat -c %a documents/a.mok)" "$(printf %o $((0666 & ~$(umask))))" "its rights"

# --- a failure leaves what stood there ---

echo old >documents/a.mok
chmod 600 documents/a.mok
run convert fail.csv "${fields[@]}" -o documents/a.mok
expect_equal "$(cat documents/a.mok)" old "a refused file leaves the old document"
run convert pass.csv -o documents/a.mok
expect_status 2 "a conversion without fields"
expect_equal "$(cat documents/a.mok)" old "missing fields leave the old document"
(
    ulimit -f 8
    "$kzekamok" "${convert[@]}" -o documents/a.mok >out 2>err
)
status=$?
expect_status 4 "a document over the limit of file sizes"
expect_in out "NOT WRITTEN" "a document over the limit of file sizes"
expect_in out "a document that stood there before is unchanged" "what is left is told"
expect_equal "$(cat documents/a.mok)" old "a failed writing leaves the old document"
for procedure in PGE2015 PGE1650; do
    (
        ulimit -f 8
        "$kzekamok" convert "$samples/${procedure}_pass.csv" "${fields[@]}" \
            --teishutsu-date 2026-11-20 -o documents/a.mok >out 2>err
    )
    status=$?
    expect_status 4 "$procedure: a document over the limit of file sizes"
    expect_equal "$(cat documents/a.mok)" old "$procedure: a failed writing leaves the old document"
done
expect_files a.mok "failures leave no other file"

run "${convert[@]}" -o documents/a.mok
expect_status 0 "an output that exists"
expect_not_in documents/a.mok old "an output that exists is replaced"
expect_equal "$(stat -c %a documents/a.mok)" 600 "the rights of a replaced document stay"

# --- links, pipes, folders ---

rm documents/a.mok
mkdir target
ln -s ../target/b.mok documents/link.mok
run "${convert[@]}" -o documents/link.mok
expect_status 0 "a link to nothing"
[ -L documents/link.mok ] && [ -s target/b.mok ] || fail "a link stays, its target is written"
expect_equal "$(ls -A target)" b.mok "nothing else is left beside the target"
rm documents/link.mok

mkfifo documents/pipe.mok
cat documents/pipe.mok >piped &
run "${convert[@]}" -o documents/pipe.mok
expect_status 0 "a pipe with a reader"
wait
expect_in piped "</DATA>" "a pipe gets the whole document"
run "${convert[@]}" --dry-run -o documents/pipe.mok
expect_status 0 "a dry run into a pipe doesn't wait for a reader"
expect_files pipe.mok "a pipe stays the only file"
rm documents/pipe.mok

if [ "$(id -u)" -ne 0 ]; then
    chmod 500 documents
    run "${convert[@]}" -o documents/a.mok
    expect_status 4 "a folder that may not be written"
    expect_in out "Permission denied" "a folder that may not be written"
    chmod 700 documents
fi
long=$(printf 'a%.0s' {1..300})
run "${convert[@]}" -o "documents/$long.mok"
expect_status 4 "a name that is too long"
run "${convert[@]}" -o absent/a.mok
expect_status 4 "a folder that doesn't exist"
expect_in out "The folder of the output does not exist." "a folder that does not exist"
expect_equal "$(ls -A documents)" "" "failures leave nothing"

# --- a dry run ---

run "${convert[@]}" -o documents/a.mok
bytes=$(stat -c %s documents/a.mok)
echo old >documents/a.mok
run "${convert[@]}" --dry-run -o documents/a.mok
expect_status 0 "a dry run"
expect_in out "would be converted" "a dry run says what would be"
expect_in out "Dry run: the document was made, but no file was written." "a dry run is told"
expect_equal "$(cat documents/a.mok)" old "a dry run leaves the old document"
expect_files a.mok "a dry run leaves no file"
run "${convert[@]}" --dry-run --format json -o documents/a.mok
expect_equal "$(json /files/0/result)" convertible "the result of a dry run"
expect_equal "$(json /files/0/document/path)" documents/a.mok "the document of a dry run"
expect_equal "$(json /files/0/document/bytes)" "$bytes" "its size is that of the real one"
expect_equal "$(json /files/0/counts/records)" 52 "its records"
run convert fail.csv "${fields[@]}" --dry-run -o documents/b.mok
expect_status 1 "a dry run of a refused file"
run convert pass.csv --dry-run -o documents/b.mok
expect_status 2 "a dry run without fields"
run "${convert[@]}" --dry-run -o absent/b.mok
expect_status 4 "a dry run into a folder that doesn't exist"
expect_files a.mok "refused dry runs leave no file"

cp "$samples/PGE5080_pass.csv" own.csv
ln -s own.csv own.mok
run convert own.csv "${fields[@]}" -o own.mok
expect_status 2 "the CSV file itself as the output"
expect_in err "own.mok is the CSV file itself" "the CSV file itself as the output"
cmp -s own.csv "$samples/PGE5080_pass.csv" || fail "the CSV file stays"

finish
