# The exit status of every kind of end.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
cp "$samples/PGE5020_fail.csv" fail.csv
profile=(--profile "$samples/filer.toml")
bundle=$samples/../resources/KZEkaMok.bundle

# --- 0: passed ---

run check pass.csv
expect_status 0 "a file that passes"
expect_in out "pass.csv: passed" "a file that passes"
expect_in out "PGE5020" "a file that passes tells its procedure"
expect_equal "$(cat err)" "" "a file that passes says nothing on standard error"

run convert pass.csv "${profile[@]}" -o out.mok
expect_status 0 "a conversion into the present folder"
expect_in out "out.mok, " "a conversion tells its document"
[ -s out.mok ] || fail "a conversion writes its document"

run --version
expect_status 0 "--version"
expect_in out "kzekamok 2." "--version"

for command in "" check convert; do
    run $command --help
    expect_status 0 "$command --help"
    expect_in out "xample" "$command --help shows examples"
done

# --- 1: refused ---

run check fail.csv
expect_status 1 "a file with errors"
expect_in out "REFUSED" "a file with errors"

run convert fail.csv "${profile[@]}" -o refused.mok
expect_status 1 "a conversion of a file with errors"
[ ! -e refused.mok ] || fail "a refused file leaves no document"

: >empty.csv
run check empty.csv
expect_status 1 "an empty file"
expect_in out HE70024E "an empty file"

# A value may pass all checks and still have no place in a document.
sed '1s/[^,]*\(\r*\)$/<?xml?>\1/' pass.csv >cdata.csv
run check cdata.csv
expect_status 0 "a value that is no XML passes the check"
run convert cdata.csv "${profile[@]}" -o cdata.mok
expect_status 1 "a value that is no XML"
expect_in out "record 1, column 36" "a value that is no XML is found"
[ ! -e cdata.mok ] || fail "a value that is no XML leaves no document"

printf 'XYZ,1\r\n' >unknown.csv
run check unknown.csv
expect_status 1 "an unknown type id"
expect_in out HE70021E "an unknown type id"
expect_in out 'begins with "XYZ"' "an unknown type id is shown"

run check pass.csv fail.csv
expect_status 1 "a refused file after one that passes"
run check fail.csv pass.csv
expect_status 1 "a refused file before one that passes"

# --- 2: usage ---

for arguments in "" "frobnicate" "check" "check --frobnicate pass.csv" "check --format xml pass.csv" \
    "check --limit x pass.csv" "check --limit -1 pass.csv" "convert pass.csv" "convert -o out.mok" \
    "convert pass.csv fail.csv -o out.mok"; do
    run $arguments
    expect_status 2 "kzekamok $arguments"
    expect_equal "$(cat out)" "" "kzekamok $arguments writes no result"
    expect_in err "--help" "kzekamok $arguments points to the help"
done

run frobnicate
expect_in err "frobnicate is no subcommand; there are check, convert, " "an unknown subcommand is named"
run check --frobnicate pass.csv
expect_in err "there is no option --frobnicate here" "an unknown option is named"
run check
expect_in err "FILE is missing" "a missing argument is named"
run check --format xml pass.csv
expect_in err "--format xml: has to be one of html, json, sarif, text" "an unknown format is named"
run convert pass.csv fail.csv -o out.mok
expect_in err "unexpected argument: fail.csv" "one file too many is named"
run $'\x1b[2J'
expect_not_in err $'\x1b' "a hostile argument is escaped"

run convert pass.csv "${profile[@]}" -o out.xml
expect_status 2 "an output that isn't named .mok"
run convert pass.csv --profile absent.toml -o out.mok
expect_status 2 "a missing profile"
expect_in err absent.toml "a missing profile is named"
echo 'nozeisha_name = "x"' >wrong.toml
run convert pass.csv --profile wrong.toml -o out.mok
expect_status 2 "an unknown key in a profile"
expect_in err nozeisha_name "an unknown key is named"
expect_in err wrong.toml "the profile with an unknown key is named"

rm -f bare.mok
run convert pass.csv -o bare.mok
expect_status 2 "a conversion without the filer's fields"
expect_in out --zeimusho-cd "a missing field is named as an option"
expect_in out "HE70001E 値が入力されていません。" "a missing field has its text"
[ ! -e bare.mok ] || fail "a conversion without fields leaves no document"

run convert pass.csv "${profile[@]}" --kojin-bango 123456789012 -o both.mok
expect_status 2 "both numbers of the filer"
expect_in out "--kojin-bango or --hojin-bango" "both numbers of the filer"
run convert pass.csv "${profile[@]}" --tetsuzuki PGE5080 -o other.mok
expect_status 2 "the procedure of another form"
expect_in out "procedure PGE5020" "the procedure of another form"
run convert pass.csv "${fields[@]}" --daihyo-nm $'\x82' -o bytes.mok
expect_status 2 "a field that isn't UTF-8"

# --- 3: not checked ---

not_checked() {
    expect_status 3 "$1"
    expect_in out "NOT CHECKED" "$1 is told as not checked"
    expect_not_in out "passed" "$1 doesn't look passed"
    [ -s err ] || fail "$1 is told on standard error too"
}

run check absent.csv
not_checked "a missing file"
expect_in out HE70013E "a missing file"
mkdir folder.csv
run check folder.csv
not_checked "a folder"
mkfifo pipe.csv
run check pipe.csv
not_checked "a pipe"
cp pass.csv pass.dat
run check pass.dat
not_checked "a file of another ending"
expect_in out HE70015E "a file of another ending"
iconv -f CP932 -t UTF-8 pass.csv >utf8.csv
run check utf8.csv
not_checked "a UTF-8 file"
expect_in out "UTF-8" "a UTF-8 file is recognised"
{ head -n 2 pass.csv; printf '\x81\n'; } >torn.csv
run check torn.csv
not_checked "a file with a lone lead byte"
expect_in out "line 3 " "a file with a lone lead byte tells its line"
{ printf '\0'; cat pass.csv; } >nul.csv
run check nul.csv
expect_status 3 "NUL byte before everything"
expect_in out "there is a NUL byte in line 1 (byte 1)" "NUL byte before everything"
{ cat pass.csv; printf '002,\0,x\r\n'; } >nul.csv
run check nul.csv
expect_status 3 "a file with a NUL byte"
expect_not_in out "passed" "a file with a NUL byte doesn't look passed"
cp pass.csv 'blank.csv '
run check 'blank.csv '
not_checked "a name that ends with a blank"
# An operation of the CrossBorder family tells a fault by an empty table.
{ printf '301,'; iconv -f CP932 -t UTF-8 "$samples/PGE1650_pass.csv"; } >crossborder8.csv
run check crossborder8.csv
not_checked "a CrossBorder file in UTF-8"
expect_in out "UTF-8" "a CrossBorder file in UTF-8 is recognised"

run check pass.csv absent.csv fail.csv
expect_status 3 "the highest status of several files"
expect_in out "3 files: 1 passed, 1 refused, 1 not checked" "the totals of several files"

export KZEKAMOK_BUNDLE=$work/no.bundle
run check pass.csv
not_checked "a missing resource folder"
expect_in err "$KZEKAMOK_BUNDLE" "a missing resource folder is named"
run convert pass.csv "${profile[@]}" -o installation.mok
not_checked "a conversion without the resource folder"
[ ! -e installation.mok ] || fail "a faulty installation leaves no document"
mkdir "$KZEKAMOK_BUNDLE"
run check pass.csv
not_checked "an empty resource folder"
expect_in err KZEkaDefine.xml "an empty resource folder"
echo '<definitions><report' >"$KZEKAMOK_BUNDLE/KZEkaDefine.xml"
run check pass.csv
not_checked "a torn definition file"
expect_in err KZEkaDefine.xml "a torn definition file is named"
cp "$bundle/TaxOffices.xml" "$KZEKAMOK_BUNDLE"
run check "$samples/PGE2015_pass.csv"
not_checked "a Finance file without its definition"
expect_in err Finance/PGE2015_vld.xml "the missing definition of a Finance file is named"
run check "$samples/PGE1650_pass.csv"
not_checked "a CrossBorder file without its definition"
expect_in err CrossBorder/PGE1650_vld.xml "the missing definition of a CrossBorder file is named"
mkdir "$KZEKAMOK_BUNDLE/Finance"
cp "$bundle/Finance/PGE2015_vld.xml" "$KZEKAMOK_BUNDLE/Finance"
run convert "$samples/PGE2015_pass.csv" "${fields[@]}" --teishutsu-date 2026-11-20 -o half.mok
not_checked "a conversion without the template"
expect_in err Finance/PGE2015_tpl.xml "a missing template is named"
[ ! -e half.mok ] || fail "a missing template leaves no document"
unset KZEKAMOK_BUNDLE

# --- 4: not written ---

run convert pass.csv "${profile[@]}" -o absent/out.mok
expect_status 4 "an output in a folder that doesn't exist"
expect_in out "NOT WRITTEN" "an output in a folder that doesn't exist"
ln -s /dev/full full.mok
run convert pass.csv "${profile[@]}" -o full.mok
expect_status 4 "an output on a full device"
expect_in out "NOT WRITTEN" "an output on a full device"
mkdir taken.mok
run convert pass.csv "${profile[@]}" -o taken.mok
expect_status 4 "an output that is a folder"
expect_in out "Is a directory" "an output that is a folder tells the reason"

for arguments in "check pass.csv" "check fail.csv" "check --format json pass.csv" "--help" "--version"; do
    "$kzekamok" $arguments >/dev/full 2>err
    status=$?
    expect_status 4 "$arguments to a full standard output"
    "$kzekamok" $arguments >&- 2>err
    status=$?
    expect_status 4 "$arguments to a closed standard output"
done
for count in 1 2 3 4 5 6 7 8 9 10; do cat fail.csv; done >long.csv
{ "$kzekamok" check long.csv long.csv long.csv 2>err; echo $? >status; } | true
status=$(cat status)
expect_status 4 "a reader that has gone"

finish
