# The text report of a check.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_fail.csv" fail.csv

run check fail.csv
expect_in out "record 2, column 2 (報告書区分): \"4\"" "an error has record, column, label and value"
expect_in out "HE70009E 値の範囲外です。" "a code has its Japanese text"
expect_in out "record 20, columns 17 to 18" "a range has both columns"
expect_in out "Replace every other character." "an error tells what to do"
expect_equal "$(cat err)" "" "a refusal is a result: standard error is empty"

errors=$(tr ',' '\n' <"$samples/PGE5020_fail.detail" | grep -c HE)
records=$(tr ',' '\n' <"$samples/PGE5020_fail.detail" | cut -d- -f1 | sort -u | grep -c .)
expect_in out "REFUSED, $errors errors in $records of " "the headline counts errors and records"

run check --limit 3 fail.csv
expect_status 1 "a cut list"
expect_in out "REFUSED, $errors errors" "a cut list counts all errors"
expect_in out "... $((errors - 3)) of $errors errors not shown" "a cut list says so"
expect_equal "$(grep -c '^  record ' out)" 3 "a cut list shows as many as it may"

run check --limit 0 fail.csv
expect_equal "$(grep -c '^  record ' out)" 0 "a limit of 0 shows no error"
expect_in out "$errors errors" "a limit of 0 counts all errors"

printf '002,\x1b[31m\r\n' >hostile.csv
cp hostile.csv $'\x1b[2Jname.csv'
run check $'\x1b[2Jname.csv'
expect_not_in out $'\x1b' "a hostile name is escaped"

# Whole-file errors name the record that is to blame.
{ head -n 3 "$samples/PGE5020_pass.csv"; printf '002,1,2\r\n'; } >short.csv
run check short.csv
expect_status 1 "a record of other columns"
expect_in out "the file as a whole" "a record of other columns"
expect_in out "Record 4 has 3 columns, a record of type 002 has 36." "a record of other columns"
{ head -n 2 "$samples/PGE5020_pass.csv"; head -n 1 "$samples/PGE5080_pass.csv"; } >mixed.csv
run check mixed.csv
expect_in out 'Record 3 begins with "008", the file with "002".' "a record of another type"

finish
