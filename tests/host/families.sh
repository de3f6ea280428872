# Checks and conversions of the three families.
source "$(dirname "$0")/support.bash" "$1"

declare -A family=([PGE5020]=base [PGE1640]=finance [PGE2115]=finance [PGE1650]=crossborder)
day=(--teishutsu-date 2026-11-20)

for procedure in "${!family[@]}"; do
    name=${family[$procedure]}
    cp "$samples/${procedure}_pass.csv" pass.csv
    run check pass.csv
    expect_status 0 "$procedure: a file that passes"
    expect_in out "(procedure $procedure)" "$procedure: the procedure is told"
    run check --family "$name" pass.csv
    expect_status 0 "$procedure: the family of the file by name"
    run check --format json pass.csv
    expect_equal "$(json /files/0/family)" "$name" "$procedure: the family is told"

    # What the library found is what is told, in its order; the cells are those of the file.
    run check --format json "$samples/${procedure}_fail.csv"
    expect_status 1 "$procedure: a file with errors"
    expected=$(tr ',' '\n' <"$samples/${procedure}_fail.detail" | grep -c HE)
    expect_equal "$(json /files/0/counts/errors)" "$expected" "$procedure: the number of errors"

    given=("${fields[@]}")
    [ "$name" = base ] || given+=("${day[@]}")
    run convert pass.csv "${given[@]}" -o "$procedure.mok"
    expect_status 0 "$procedure: a conversion"
    expect_in out "document: $procedure.mok, $(stat -c %s "$procedure.mok" | sed ':a;s/\B[0-9]\{3\}\>/,&/;ta') bytes" \
        "$procedure: its document is told"
    expect_in out " bytes, $name family" "$procedure: its family is told"
    expect_in "$procedure.mok" "<procedure_CD>$procedure</procedure_CD>" "$procedure: its document"
done

# --- the family that is named ---

run check --family finance "$samples/PGE5020_pass.csv"
expect_status 1 "a base file as one of the Finance family"
expect_in out 'begins with "002"; the definitions know 101 to 116, 201, 202.' "the known ids are its"
run check --family crossborder "$samples/PGE2015_pass.csv"
expect_status 1 "a Finance file as one of the CrossBorder family"
expect_in out 'begins with "101"; the definitions know 301, 302.' "the known ids are its"
run check --family base "$samples/PGE1650_pass.csv"
expect_status 1 "a CrossBorder file as one of the base family"
run check --family Finance "$samples/PGE2015_pass.csv"
expect_status 2 "a family in another case"
printf 'XYZ,1\r\n' >unknown.csv
run check unknown.csv
expect_in out "001 to 009, 101 to 116, 201, 202, 301, 302" "an unknown id is told all known ones"
printf '"302",1\r\n' >quoted.csv
run check quoted.csv
expect_in out "PGE1660" "a type id in quotes is one of the CrossBorder family"

# --- errors of the file as a whole ---

{ printf '\r\n'; head -n 1 "$samples/PGE2015_pass.csv"; printf '101,2,3\r\n'; } >short.csv
run check short.csv
expect_in out "Record 2 (line 3) has 3 columns, a record of type 101 has" "a short record"
{ printf '\r\n'; head -n 1 "$samples/PGE2015_pass.csv"; printf '102,2\r\n'; } >mixed.csv
run check mixed.csv
expect_in out 'Record 2 (line 3) begins with "102", the file with "101".' "a record of another type"
expect_in out "follows from the error above" "the error that comes with every refusal is no other"
head -n 1 "$samples/PGE2115_pass.csv" >head.csv
run check head.csv
expect_in out HE70033E "a file without its second record"
expect_in out "Type 111 has 3 kinds of records and needs one of each; the file has 1." "its hint"
columns=$(sed -n 2p "$samples/PGE2115_pass.csv" | tr -cd , | wc -c)
sed '2s/^/1,1,/' "$samples/PGE2115_pass.csv" >wide.csv
run check wide.csv
expect_in out "Record 2 has $((columns + 3)) columns, a record there has $((columns + 1))." "a wrong record of the second form"
head -n 1 "$samples/PGE2080_pass.csv" >double.csv
cat double.csv double.csv >two.csv
run check two.csv
expect_in out "It has 2 records, procedure PGE2080 allows 1." "too many records"

# --- values of several lines ---

printf '301,4,,"x\r\n""y""","z' >lines.csv
run check lines.csv
expect_status 1 "a CrossBorder record of few columns"
expect_in out "Record 1 has 5 columns, a record of type 301 has 34." "quotes join lines and columns"

# --- fields ---

cp "$samples/PGE2015_pass.csv" finance.csv
run convert finance.csv "${fields[@]}" -o day.mok
expect_status 2 "a Finance file without the day of filing"
expect_in out "--teishutsu-date YYYY-MM-DD" "the day of filing is asked for"
[ ! -e day.mok ] || fail "a conversion without the day leaves no document"
run convert finance.csv "${fields[@]}" "${day[@]}" -o day.mok
expect_in day.mok "<gen:era>5</gen:era><gen:yy>8</gen:yy><gen:mm>11</gen:mm><gen:dd>20</gen:dd>" \
    "the day of filing"
run convert finance.csv "${fields[@]}" --teishutsu-era 4 --teishutsu-year 31 --teishutsu-month 4 \
    --teishutsu-day 30 --nozeisha-zip1 999 --nozeisha-zip2 0101 -o parts.mok
expect_status 0 "the day of filing by its parts"
expect_in parts.mok "<gen:era>4</gen:era><gen:yy>31</gen:yy><gen:mm>4</gen:mm><gen:dd>30</gen:dd>" \
    "the day of filing by its parts"
expect_in parts.mok "<gen:zip1>999</gen:zip1><gen:zip2>0101</gen:zip2>" "the postal code"
run convert finance.csv "${fields[@]}" "${day[@]}" --teishutsu-day 3 -o twice.mok
expect_status 2 "the day of filing given twice"
for date in 2026-11-31 2026-1-1 20261120 1880-01-01 x; do
    run convert finance.csv "${fields[@]}" --teishutsu-date $date -o date.mok
    expect_status 2 "the day of filing $date"
    expect_in err "$date" "the day of filing $date is named"
done

cp "$samples/PGE5020_pass.csv" base.csv
run convert base.csv "${fields[@]}" "${day[@]}" -o foreign.mok
expect_status 2 "an option that the base family doesn't take"
expect_in out "--teishutsu-date is no field of its family (base)" "such an option is named"
run convert base.csv "${fields[@]}" --nozeisha-zip1 123 -o foreign.mok
expect_in out "--nozeisha-zip1 is no field of its family" "such an option is named"
[ ! -e foreign.mok ] || fail "such an option leaves no document"
{ cat "$samples/filer.toml"; echo 'teishutsu_era = "5"'; } >all.toml
run convert base.csv --profile all.toml -o profile.mok
expect_status 0 "a profile's field that the base family doesn't take"

finish
