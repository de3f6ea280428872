# Files that need more memory than a worker may have.
source "$(dirname "$0")/support.bash" "$1"
[ -z "$KZEKAMOK_SLOW_BUILD" ] || skip "sanitizers count memory by themselves"

mkdir in
cp "$samples/PGE5020_pass.csv" in/a.csv
cp "$samples/PGE5020_fail.csv" in/b.csv
head -c 30000000 /dev/zero | tr '\0' , >in/commas.csv

run_at_once batch in -o box "${filer[@]}" --memory 64 -j 1
expect_status 3 "a file that needs more than a worker may have"
expect_in out "1 converted, 1 refused, 1 not checked" "the files beside it are done"
expect_in out "limit of 64 MiB" "the limit is told"
expect_in out "--memory" "what to do is told"
expect_equal "$(grep -c '"result":"not_checked".*limit of 64 MiB' box/report.json)" 1 "the report tells it"

run batch in -o few "${filer[@]}" --memory 1 -j 2
expect_status 3 "a limit that nothing fits in"
expect_in out "3 not checked" "a limit that nothing fits in"
expect_equal "$(grep -c 'limit of 1 MiB' few/report.json)" 3 "each file tells the limit"

finish
