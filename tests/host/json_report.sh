# The JSON report: one valid document, whatever happened.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples"/PGE50?0_*.csv .

# The detail table that the errors of the first file make.
detail() {
    json /files/0/errors record column columnEnd code |
        awk -F '\t' '{ if ($3 == "null") place = sprintf("%05d", $2)
                       else place = sprintf("%02d:%02d", $2, $3)
                       printf "%s%04d-%s-%s", (NR > 1 ? "," : ""), $1, place, $4 }'
}

for form in PGE5020 PGE5080; do
    run check --format json "${form}_pass.csv"
    expect_status 0 "$form passes"
    expect_equal "$(json /files/0/result)" passed "$form passes"
    expect_equal "$(json /files/0/procedure)" "$form" "$form tells its procedure"
    expect_equal "$(json /files/0/errors)" "[]" "$form has no error"

    run check --format json "${form}_fail.csv"
    expect_status 1 "$form is refused"
    expect_equal "$(json /files/0/result)" refused "$form is refused"
    expect_equal "$(detail)" "$(tr -d '\r\n' <"$samples/${form}_fail.detail")" \
        "the errors of $form are the ones that its author expected"
    expect_equal "$(json /files/0/counts/errors)" "$(json /files/0/errors code | grep -c .)" \
        "the count of $form is that of its list"
done

run check --format json PGE5020_fail.csv
expect_equal "$(json /files/0/errors/0/label)" 報告書区分 "an error has its label"
expect_equal "$(json /files/0/errors/0/value)" 4 "an error has its value"
expect_equal "$(json /files/0/errors/0/message)" 値の範囲外です。 "an error has its Japanese text"
expect_equal "$(cat err)" "" "a refusal is a result: standard error is empty"

run check --format json PGE5020_pass.csv absent.csv PGE5020_fail.csv
expect_status 3 "several files"
expect_equal "$(json /files result | tr '\n' ' ')" "passed not_checked refused " "several files"
expect_equal "$(json /status)" 3 "the document holds the exit status"
expect_equal "$(json /files/1/errors/0/code)" HE70013E "a missing file has its code"

run check --format json --limit 2 PGE5020_fail.csv
expect_equal "$(json /files/0/errors code | grep -c .)" 2 "a limit cuts the list"
expect_equal "$(json /files/0/counts/listed)" 2 "a cut list tells its length"
[ "$(json /files/0/counts/errors)" -gt 2 ] || fail "a limit leaves the counts alone"

name=$'\x82\xa0.csv'
cp PGE5020_pass.csv "$name"
run check --format json "$name"
expect_status 3 "a name that isn't UTF-8"
expect_equal "$(json /files/0/result)" not_checked "a name that isn't UTF-8"

KZEKAMOK_BUNDLE=$work/absent run check --format json PGE5020_pass.csv
expect_status 3 "a faulty installation"
expect_equal "$(json /files/0/result)" not_checked "a faulty installation"
[ -s err ] || fail "a faulty installation is told on standard error"

run convert --format json PGE5020_pass.csv --profile "$samples/filer.toml" -o out.mok
expect_status 0 "a conversion"
expect_equal "$(json /files/0/result)" converted "a conversion"
expect_equal "$(json /files/0/document/path)" out.mok "a conversion tells its document"
expect_equal "$(json /files/0/document/bytes)" "$(stat -c %s out.mok)" "a conversion tells its size"

run convert --format json PGE5020_pass.csv -o bare.mok
expect_status 2 "missing fields"
expect_equal "$(json /files/0/result)" not_converted "missing fields"
expect_equal "$(json /files/0/errors/0/argument)" --zeimusho-cd "a missing field is named"

run convert --format json PGE5020_pass.csv --profile "$samples/filer.toml" -o absent/out.mok
expect_status 4 "an output that can't be written"
expect_equal "$(json /files/0/result)" not_written "an output that can't be written"

finish
