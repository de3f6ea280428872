# Codes, rules and layouts.
source "$(dirname "$0")/support.bash" "$1"

run explain HE70012E
expect_status 0 "a code"
expect_equal "$(cat out)" "HE70012E 入力された日付は実在しません。
  There is no such date. Correct the era, year, month or day.
  Reported by the check items: existdate, existdate_2, onward, rangebasedate, rangedate, compdate, exist_2, rangedate_4, existdateYYYYMMDD" \
    "a code, its text, its advice and its check items"
cp out whole
run explain 12
cmp -s out whole || fail "the digits alone tell the code"
run explain 70012
cmp -s out whole || fail "all digits tell the code"
run explain
expect_equal "$(grep -c '^HE' out)" 36 "no code tells all of them"
run explain HE70012E nonsense
expect_status 2 "an unknown code"
expect_in out "HE70012E" "the known one is told"
expect_in err '"nonsense" is no code' "an unknown code"
run explain --lang ja HE70001E
expect_in out "値が入力されていません。" "Japanese"

run layout
expect_status 0 "the list of type ids"
expect_equal "$(wc -l <out)" 29 "each type id has a line"
expect_in out "103  PGE2030  finance  利子等支払合計表" "a line of the list"
run layout 001 302
expect_equal "$(grep -c '^# Type' out)" 2 "a document for each type id"
run layout --format csv 001 302
expect_equal "$(grep -c 'Type id' out)" 1 "one table in CSV"
run layout --format html 103
expect_equal "$(grep -c '<h2>' out)" 3 "a table for each form"
run layout 999
expect_status 2 "an unknown type id"
expect_in err "The known ones are 001, 002" "an unknown type id"

run rules
expect_status 0 "the whole catalogue"
expect_equal "$(json /checkItems/0/keyword)" alnum "check items"
expect_equal "$(json /messages/0/code)" HE70001E "messages"
expect_equal "$(json /procedures/28/typeId)" 302 "procedures"
run rules 103
expect_equal "$(json /procedures/0/forms/2/records/en)" "records 3 to the last" "records of a form"
expect_equal "$(json /procedures/0/forms/0/items/2/checks/2/words/ja)" 10桁 "words of a check"
expect_equal "$(json /procedures/0/forms/0/items/2/checks/2/words/en)" "10 digits" "in English, too"
run rules --format markdown
expect_status 0 "the check items for people"
expect_in out "charlength" "the check items for people"

golden=$(dirname "$0")/../golden/host
for language in en ja; do
    run explain --lang $language
    cmp "$golden/explain.$language.txt" out || fail "all codes in $language"
    run layout 103 --lang $language
    cmp "$golden/layout-103.$language.md" out || fail "a layout in Markdown in $language"
    for format in html csv; do
        run layout 103 --lang $language --format $format
        cmp "$golden/layout-103.$language.$format" out || fail "a layout in $format in $language"
    done
done

mkdir empty
KZEKAMOK_BUNDLE=$work/none run rules
expect_status 3 "no resource folder"
KZEKAMOK_BUNDLE=$work/none run layout 001
expect_status 3 "no resource folder"
expect_in err "does not exist" "no resource folder"
KZEKAMOK_BUNDLE=$work/empty run rules 101
expect_status 3 "a missing definition file"
expect_in err "type 101 is missing" "a missing definition file"

finish
