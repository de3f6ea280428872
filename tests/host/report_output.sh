# A report in a file of its own.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
cp "$samples/PGE5020_fail.csv" fail.csv

for format in text json sarif html; do
    run check --format "$format" fail.csv pass.csv
    cp out expected
    run check --format "$format" -o "report.$format" fail.csv pass.csv
    expect_status 1 "$format: the status is that of the check"
    expect_equal "$(cat out err)" "" "$format: nothing is told elsewhere"
    cmp "report.$format" expected || fail "$format: the report is the one of standard output"
done

run check -o report.text pass.csv absent.csv
expect_status 3 "a file that isn't there"
expect_in err "absent.csv: The file was not checked." "a file not checked is told on standard error"
expect_in report.text "pass.csv: passed" "a report over an old one"
expect_not_in report.text "fail.csv" "a report over an old one"

run check -o absent/report.txt pass.csv
expect_status 4 "a folder that isn't there"
expect_in err "kzekamok: The report could not be written to absent/report.txt: No such file" \
    "a folder that isn't there"

run check --format json -o ./pass.csv fail.csv pass.csv
expect_status 2 "a report over a file to check"
expect_in err "would take the place of a file to check" "a report over a file to check"
cmp pass.csv "$samples/PGE5020_pass.csv" || fail "the file to check is as it was"

# By its digests the page names the style and the script that a browser may use.
run check --format html pass.csv
for asset in css js; do
    digest=$(sha256sum <"$samples/../host/html/report.$asset" | cut -c -64 | sed 's/../\\x&/g')
    expect_in out "'sha256-$(printf "$digest" | base64)'" "the digest of report.$asset"
done

ln -s /dev/null sink.html
run check --format html -o sink.html pass.csv
expect_status 0 "a report to a device"
[ -c sink.html ] || fail "a device stays what it is"

finish
