# Example files of every type id, and files that are parted.
source "$(dirname "$0")/support.bash" "$1"

for type in 00{1..9} 10{1..9} 11{0..6} 201 202 301 302; do
    run new "$type" -o "$type.csv"
    expect_status 0 "an example of type $type"
    expect_equal "$(cat out err)" "" "an example in a file says nothing"
    run check "$type.csv"
    expect_status 0 "the check of an example of type $type"
done

run new 002 --records 40 --seed 5 -o a.csv
run new 002 --records 40 --seed 5
expect_status 0 "an example on standard output"
cmp -s a.csv out || fail "the same seed gives the same file, whereto ever"
expect_equal "$(grep -c . a.csv)" 40 "as many records as are asked for"
run new 002 --records 40 --seed 6
! cmp -s a.csv out || fail "another seed gives another file"

cp a.csv before.csv
run new 002 -o a.csv
expect_status 2 "a file that exists"
expect_in err "a.csv exists" "a file that exists is told"
cmp -s a.csv before.csv || fail "a file that exists is kept"

run new 999
expect_status 2 "an unknown type id"
expect_in err '"999" is no type id' "an unknown type id"
run new 108 --records 2
expect_status 2 "more records than the form takes"
expect_in err "at most 1 records" "more records than the form takes"
run new 103 --records 2
expect_status 2 "fewer records than the form takes"
expect_in err "at least 3 records" "fewer records than the form takes"
run new 002 -o none/a.csv
expect_status 4 "a folder that isn't there"
run new 002 -o "$(printf 'a%.0s' {1..300})"
expect_status 4 "a name that the system doesn't take"
expect_in err "File name too long" "a name that the system doesn't take"
for folder in "$work/none" "$work/a.csv"; do
    TMPDIR=$folder run new 002
    expect_status 2 "no folder for temporary files"
    expect_in err "temporary files could be made in $folder. Set TMPDIR." "what to do then"
done
cp -r "$samples/../resources/KZEkaMok.bundle" broken
definitions=$samples/../resources/KZEkaMok.bundle/KZEkaDefine.xml
for number in 0 -1; do
    sed "s/columnNum=\"[0-9]*\"/columnNum=\"$number\"/" "$definitions" >broken/KZEkaDefine.xml
    KZEKAMOK_BUNDLE=$PWD/broken run new 002
    expect_status 3 "a form without columns"
    expect_in err "No example was found" "a form without columns"
done
sed 's/ \(value\|min\|max\|column\)="[0-9]*"/ \1="9223372036854775807"/' "$definitions" \
    >broken/KZEkaDefine.xml
KZEKAMOK_BUNDLE=$PWD/broken run new 002
expect_not_in err "runtime error" "columns that no form has"

# --- split ---

run new 002 --records 5000 -o most.csv
{ cat most.csv; head -n 30 a.csv; } >more.csv
run check more.csv
expect_status 1 "more records than the library takes"
run split more.csv -o parts
expect_status 0 "a file that is parted"
expect_equal "$(ls parts)" "more-001.csv
more-002.csv" "names of the parts"
cat parts/* | cmp -s - more.csv || fail "the parts hold every record as it was"
expect_equal "$(grep -c . parts/more-001.csv)" 5000 "records of the first part"
expect_in out "2 files: 2 passed" "the parts are checked"

run split more.csv -o parts
expect_status 2 "parts that exist"
expect_in err "parts/more-001.csv exists" "parts that exist are told"

run split a.csv -o small --records 15
expect_status 0 "parts of a wanted size"
expect_equal "$(cat small/* | wc -l) $(ls small | wc -l)" "40 3" "parts of a wanted size"

run new 103 --records 30 -o forms.csv
run split forms.csv -o forms --records 12
expect_status 1 "a file whose head is a form of its own"
expect_in err "--repeat" "a file whose head is a form of its own"
[ ! -e forms ] || fail "nothing is written then"
run split forms.csv -o forms --records 12 --repeat
expect_status 0 "a head that is repeated"
expect_equal "$(head -qn 2 forms/*.csv | sort | uniq -c | awk '{ print $1 }' | sort -u)" 3 \
    "each part has the head"
expect_in err "Totals in them" "what to do about a repeated head"
run split forms.csv -o forms2 --records 2 --repeat
expect_status 2 "parts that would hold nothing but the head"

run new 301 --records 9 -o quoted.csv
run split quoted.csv -o quoted --records 4
expect_status 0 "a file with values in quotes"
cat quoted/* | cmp -s - quoted.csv || fail "values in quotes stay whole"

printf '002,\xff\xff\n' >torn.csv
run split torn.csv -o torn
expect_status 3 "a file that isn't Shift_JIS"
printf 'abc,1\n' >unknown.csv
run split unknown.csv -o unknown
expect_status 1 "a file of no type id"
expect_in err '"abc", which is no type id' "a file of no type id"

finish
