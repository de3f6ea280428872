# kzekamok lint: what it finds in a folder with many mistakes, its formats, options and statuses.
source "$(dirname "$0")/support.bash" "$1"

repository=$(cd "$(dirname "$0")/../.." && pwd)
golden=$repository/tests/golden/host/lint
shipped=$repository/resources/KZEkaMok.bundle
cp -r "$golden/KZEkaMok.bundle" .
types=(--type 002 --type 101 --type 202)

# expect_golden NAME: the output is that of the file. KZ_UPDATE_GOLDEN=1 records it anew.
expect_golden() {
    sed 's/"version": "[^"]*"/"version": "VERSION"/' out >seen
    [ -z "$KZ_UPDATE_GOLDEN" ] || cp seen "$golden/$1"
    cmp -s seen "$golden/$1" || {
        fail "$1 differs"
        diff "$golden/$1" seen | head -n 20
    }
}

run lint "${types[@]}" KZEkaMok.bundle
expect_status 1 "a folder with mistakes"
expect_golden expected.txt
expect_equal "$(cat err)" "" "findings are a result: standard error is empty"
run lint "${types[@]}" --lang ja KZEkaMok.bundle
expect_golden expected.ja.txt
run lint "${types[@]}" --format json KZEkaMok.bundle
expect_status 1 "JSON of a folder with mistakes"
expect_golden expected.json

run lint --strict "$shipped"
expect_status 0 "the shipped folder"
expect_equal "$(cat out)" "0 errors, 0 warnings" "the shipped folder"
KZEKAMOK_BUNDLE=$shipped run lint --type 009
expect_equal "$(cat out)" "0 errors, 0 warnings" "the folder of the environment"

cp -r "$shipped" spoilt.bundle
chmod -R u+w spoilt.bundle
sed -i '0,/<report /s//<report startRow="1" /' spoilt.bundle/KZEkaDefine.xml
run lint --type 001 spoilt.bundle
expect_status 0 "a warning"
expect_equal "$(tail -n 1 out)" "0 errors, 1 warning" "a warning"
run lint --strict --type 001 spoilt.bundle
expect_status 1 "warnings count if they are to"
run lint --strict --type 101 --type 202 --type 301 spoilt.bundle
expect_status 0 "type ids without warnings"

run lint no-such-folder
expect_status 3 "a missing folder"
expect_equal "$(cat out)" "" "a missing folder gives no findings"
expect_in err "no-such-folder" "a missing folder is named"
run lint KZEkaMok.bundle/TaxOffices.xml
expect_status 3 "a file in place of a folder"
KZEKAMOK_BUNDLE=no-such-folder run lint
expect_status 3 "a missing folder of the environment"
run lint --type 12 KZEkaMok.bundle
expect_status 2 "a type id of two digits"
run lint --format yaml KZEkaMok.bundle
expect_status 2 "an unknown format"
run lint KZEkaMok.bundle KZEkaMok.bundle
expect_status 2 "two folders"

mkdir empty
run lint empty
expect_status 1 "an empty folder"
expect_equal "$(grep -c '\[missing-file\]$' out)" 4 "an empty folder lacks two files and two folders"

run lint --rules
expect_status 0 "the list of rules"
sed -n '/^| Rule /,/^$/p' "$repository/docs/lint.md" | sed '/^$/d' >table
cmp -s out table || fail "docs/lint.md has another table of rules; put in what kzekamok lint --rules prints"
# Every rule is named by a test.
sed -n 's/^| `\([a-z-]*\)`.*/\1/p' out >ids
while read -r id; do
    grep -qE "\"$id[\" ]" "$repository"/tests/host/lint/*.cpp || fail "no test expects the rule $id"
done <ids

finish
