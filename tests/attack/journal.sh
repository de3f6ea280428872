# Reports of a batch that somebody else has made or changed.
source "$(dirname "$0")/support.bash" "$1"

mkdir in
cp "$samples/PGE5020_pass.csv" in/a.csv
"$kzekamok" batch in -o box "${filer[@]}" >/dev/null 2>&1
line=$(cat box/report.json)
bytes=$(stat -c %s box/a.mok)

# with_document NAME: the line of the file as an earlier state, with another document
with_document() {
    sed "s|\"document\":\"a.mok\"|\"document\":\"$1\"|; s|\"options\":\"[^\"]*\"|\"options\":\"0\"|" <<<"$line"
}

# --- a document that is somewhere else is never removed ---

head -c "$bytes" /dev/zero | tr '\0' x >victim.mok
cp victim.mok box/plain.mok
mkdir aside
cp box/a.mok aside/x.mok
ln -s ../aside box/link
for name in ../victim.mok "$work/victim.mok" ./../victim.mok link/x.mok link/../../victim.mok plain.mok; do
    rm -rf forged && mkdir forged
    cp -r box/plain.mok box/link forged
    with_document "$name" >forged/report.json
    run batch in -o forged "${filer[@]}"
    [ -e victim.mok ] || fail "a batch removes $name"
    [ -e aside/x.mok ] || fail "a batch removes $name behind a link"
    [ -e forged/plain.mok ] || fail "a batch removes $name, which is no document"
    cp box/a.mok aside/x.mok
    head -c "$bytes" /dev/zero | tr '\0' x >victim.mok
done
rm -rf forged && mkdir forged
with_document "../victim.mok" >forged/report.json
run batch in -o forged "${filer[@]}"
expect_in err "outside of the output folder: 1." "a record that doesn't belong is told"
[ -e victim.mok ] || fail "a record that doesn't belong is left alone"
for ((n = 0; n < 3; n++)); do with_document "/etc/$n.mok"; done >forged/report.json
run batch in -o forged "${filer[@]}" --lang ja
expect_in err "3件" "records that don't belong are told in Japanese"

# --- a document of an earlier run still goes ---

rm -rf forged && cp -r box forged
cp "$samples/PGE5020_fail.csv" in/a.csv
run batch in -o forged "${filer[@]}"
expect_status 1 "a file that fails now"
[ ! -e forged/a.mok ] || fail "the document of what a file was before goes"
cp "$samples/PGE5020_pass.csv" in/a.csv

# --- reports that nobody could read ---

# deep N OPEN CLOSE: brackets in one another
deep() {
    head -c "$1" /dev/zero | tr '\0' "$2"
    head -c "$1" /dev/zero | tr '\0' "$3"
}
# refused WHY: the report in the folder forged is told, and stays
refused() {
    local before
    before=$(stat -c %i:%s forged/report.json)
    run_at_once batch in -o forged "${filer[@]}"
    expect_status 2 "$1"
    expect_in err "report.json is there already" "$1"
    expect_in err "$1" "a report of which $1"
    expect_equal "$(stat -c %i:%s forged/report.json)" "$before" "a report of which $1 stays"
}
rm -rf forged && mkdir forged
deep 200000 '[' ']' >forged/report.json
echo >>forged/report.json
refused "it wasn't written by a batch"
{ echo -n '{"file":'; deep 200000 '[' ']'; echo '}'; } >forged/report.json
refused "it wasn't written by a batch"
rm forged/report.json
truncate -s 3G forged/report.json
refused "a line in it is longer than 16 MiB"
rm forged/report.json
truncate -s 5G forged/report.json
refused "it is larger than 4 GiB"
{ echo "$line"; head -c 17000000 /dev/zero | tr '\0' x; } >forged/report.json
refused "a line in it is longer than 16 MiB"

# A line among others that can't be read is told and left out.
{ echo "$line"; deep 200000 '{"a":' '}'; echo; echo nonsense; } >forged/report.json
run_at_once batch in -o forged "${filer[@]}"
expect_status 0 "lines that can't be read"
expect_in err "can't be read: 2." "lines that can't be read are told"
expect_equal "$(wc -l <forged/report.json)" 1 "lines that can't be read are left out"

# What is claimed of a file has to be what a batch says.
for claim in '"status":7' '"status":-1' '"status":"0"' '"result":"wonderful"' '"status":4294967296'; do
    name=${claim%%:*}
    sed "s/$name:[^,]*/$claim/" <<<"$line" >forged/report.json
    run_at_once batch in -o forged "${filer[@]}"
    expect_status 2 "a result of which $claim is claimed"
done

# --- names of files ---

mkdir strange
for name in $'line\nbreak.csv' '<img src=x onerror=alert(1)>.csv' $'\e[31mred.csv' $'bidi\u202e.csv' \
    'javascript:alert(1).csv' '-o.csv' '"quoted".csv' $'tab\t.csv'; do
    cp in/a.csv "strange/$name"
done
run batch strange -o named "${filer[@]}"
expect_status 0 "strange names"
expect_equal "$(wc -l <named/report.json)" 8 "a name with a line end is one line of the report"
expect_not_in named/index.html '<img' "a name is no markup"
expect_not_in named/index.html 'href="javascript:' "a name is no address of a script"
expect_equal "$(LC_ALL=C grep -c $'\e' named/index.html out err named/report.json | grep -vc ':0$')" 0 \
    "a name gives no commands to a terminal"
run batch strange -o named "${filer[@]}"
expect_in err "0 files in" "strange names are found again"

finish
