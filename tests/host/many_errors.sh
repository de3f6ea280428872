# More errors than the library lists.
source "$(dirname "$0")/support.bash" "$1"

columns=22
mkdir bundle
{
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo "<define><report id=\"003\" columnNum=\"$columns\" procId=\"PGE5030\" procVR=\"1.0\""
    echo ' reportId="GEZ030" reportVR="1.0">'
    for column in $(seq 2 "$columns"); do
        echo "<item type=\"Normal\" id=\"C$column\" parent=\"GEZ030\" column=\"$column\" label=\"欄$column\">"
        echo '<valid id="number"/></item>'
    done
    echo '</report></define>'
} >bundle/KZEkaDefine.xml
echo '<TaxOffices/>' >bundle/TaxOffices.xml
export KZEKAMOK_BUNDLE=$work/bundle

# Writes that many records, each with 21 errors.
write_records() {
    awk -v records="$1" -v columns="$columns" 'BEGIN {
        line = "003"
        for (n = 2; n <= columns; ++n) line = line ",x"
        for (n = 0; n < records; ++n) printf "%s\r\n", line
    }'
}

write_records 4761 >less.csv
run check --format json --limit 5 less.csv
expect_status 1 "99,981 errors"
expect_equal "$(json /files/0/counts/errors)" 99981 "99,981 errors are all counted"
expect_equal "$(json /files/0/counts/moreErrors)" false "99,981 errors are all listed"

write_records 4762 >more.csv
run check --format json --limit 5 more.csv
expect_status 1 "100,002 errors"
expect_equal "$(json /files/0/counts/errors)" 100000 "100,002 errors are counted as far as listed"
expect_equal "$(json /files/0/counts/moreErrors)" true "the document says that there are more"
expect_equal "$(json /files/0/notices/0/code)" HE70022E "the document says why"

run check --limit 5 more.csv
expect_status 1 "a cut text of 100,002 errors"
expect_in out "more than 100,000 errors" "the text says that there are more"
expect_in out "HE70022E 詳細エラー情報が100,000件を超えています。" "the text says why"
expect_in out "not shown here (--limit 5)" "the text says that the list is cut"

finish
