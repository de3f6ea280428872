# A thousand files in a batch: what comes out, whatever happens on the way.
source "$(dirname "$0")/support.bash" "$1"

# A build that is many times slower takes fewer files. Every third one of them is refused.
all=1000 all_told=1,000 many=300
[ -z "$KZEKAMOK_SLOW_BUILD" ] || all=40 all_told=40 many=60

filer=(--profile "$samples/filer.toml" --teishutsu-date 2026-11-20 --nozeisha-zip1 100
    --nozeisha-zip2 0001)
passing=("$samples"/*_pass.csv)
failing=("$samples"/*_fail.csv)

# lines FILE: how many it has
lines() {
    wc -l <"$1"
}

# count TEXT FILE: lines that hold it
count() {
    grep -cF -- "$1" "$2"
}

# fill FOLDER N: N samples of all procedures, one in three with errors
fill() {
    local n
    for ((n = 0; n < $2; n++)); do
        mkdir -p "$1/$((n % 7))/$((n % 3))"
        if ((n % 3 == 2)); then
            cp "${failing[n / 3 % ${#failing[@]}]}" "$1/$((n % 7))/$((n % 3))/$n.csv"
        else
            cp "${passing[n % ${#passing[@]}]}" "$1/$((n % 7))/$((n % 3))/$n.csv"
        fi
    done
}

# without_times FILE: its lines without what differs from run to run, sorted
without_times() {
    sed 's/"seconds":[^,]*,"finished":"[^"]*"//; s/"document":{"path":"[^/]*\//"document":{"path":"/' \
        "$1" | sort
}

# expect_whole FILE LINES WHAT: that many lines, each a whole object
expect_whole() {
    expect_equal "$(lines "$1")" "$2" "$3: lines"
    expect_equal "$(grep -c '^{"file":.*}}$' "$1")" "$2" "$3: whole lines"
    expect_equal "$(grep -o '"batch":{"path":"[^"]*"' "$1" | sort -u | wc -l)" "$2" "$3: each file once"
}

# start ARGUMENTS: a batch in the background, in a process group of its own
start() {
    set -m
    "$kzekamok" batch "$@" >out 2>err </dev/null &
    batch=$!
    set +m
}

# worker: a child of the batch, as soon as there is one
worker() {
    local child n
    for ((n = 0; n < 500; n++)); do
        { read -r child _ <"/proc/$batch/task/$batch/children"; } 2>/dev/null
        [ -n "$child" ] && break
        [ -e "/proc/$batch" ] || break
        sleep 0.02
    done
    echo "$child"
}

# wait_for_lines FILE N: until it has at least so many
wait_for_lines() {
    local n
    for ((n = 0; n < 3000; n++)); do
        [ -e "$1" ] && [ "$(lines "$1")" -ge "$2" ] && return
        [ -e "/proc/$batch" ] || break
        sleep 0.02
    done
    fail "$1 never got $2 lines"
}

finish_batch() {
    wait "$batch"
    status=$?
}

# --- a thousand files, with some that can't be checked ---

fill in $((all - 6))
cp "$samples/PGE5020_pass.csv" 'in/&<b>"x" %41#?.csv'
iconv -f CP932 -t UTF-8 "$samples/PGE5020_pass.csv" >in/utf8.csv
cp "$samples/PGE5020_pass.csv" $'in/not\xff\xfeutf8.csv'
mkfifo in/pipe.csv
ln -s nowhere in/dangling.csv
: >in/empty.csv
ln -s .. in/loop
echo 'not for a batch' >in/readme.txt

run batch in -o out4 -j 4 "${filer[@]}"
expect_status 3 "a batch with files that can't be checked"
expect_whole out4/report.json $all "all files"
expect_in out "$all_told files: " "the summary counts all files"
expect_in out "4 not checked" "the summary counts the files that weren't checked"
expect_in out "in/utf8.csv: " "the summary names a file that wasn't checked"
expect_in err "links to folders not followed: 1" "a link to a folder is told"
expect_in err ".txt files left aside: 1" "a text file is told"
expect_equal "$(tail -n 1 err | grep -c "$all_told files in .* files/s, processes: 4")" 1 "the last line"
expect_equal "$(grep -c $'\r' err)" 0 "no progress where nobody watches"
expect_equal "$(count '"result":"not_checked"' out4/report.json)" 4 "files not checked in the report"
expect_equal "$(count '"result":"converted"' out4/report.json)" "$(find out4 -name '*.mok' | wc -l)" \
    "each document is in the report"
expect_equal "$(count '"result":"refused"' out4/report.json)" "$(((all - 6) / 3 + 1))" "the failing files"
expect_in out4/report.json '"pathBytes":"' "a name that isn't UTF-8 is kept in hexadecimal digits"
expect_equal "$(find out4 -name '.kzekamok-*' | wc -l)" 0 "nothing is left behind"

# --- the page ---

page=out4/index.html
expect_in $page '<html lang="en">' "the page is in the language"
expect_in $page 'in/&amp;&lt;b&gt;&quot;x&quot; %41#?.csv' "a name is no markup"
expect_in $page 'href="%26%3Cb%3E%22x%22%20%2541%23%3F.mok"' "a link finds its document"
expect_equal "$(grep -c '<tr data-outcome=' $page)" $all "the page has all files"
expect_in $page 'PGE5020' "the page has the procedures"
expect_in $page 'HE70003E' "the page has the codes"
expect_not_in $page 'http://' "the page loads nothing"
expect_not_in $page 'https://' "the page loads nothing"

# --- the same documents as those of convert ---

for name in 1 0 3 4; do
    document=$(cd out4 && find . -name "$name.mok")
    run convert "in/${document%.mok}.csv" "${filer[@]}" -o single.mok
    cmp -s single.mok "out4/$document" || fail "$document is as convert makes it"
done

# --- one worker or four ---

fill few 60
run batch few -o few1 -j 1 "${filer[@]}"
expect_status 1 "a batch with refused files"
run batch few -o few2 -j 4 "${filer[@]}"
expect_status 1 "the same by four workers"
[ "$(without_times few1/report.json)" = "$(without_times few2/report.json)" ] ||
    fail "the number of workers changes nothing"
diff -r -x report.json -x index.html few1 few2 >/dev/null || fail "nor the documents"

# --- joined reports ---

cat few1/report.json out4/report.json >joined.json
expect_equal "$(lines joined.json)" $((all + 60)) "reports are joined by cat"
"$json_value" /batch/document <<<"$(head -n 1 joined.json)" >value || fail "a line is JSON by itself"
expect_in value .mok "a line is JSON by itself"

# --- again: only what is new, changed, or wasn't checked ---

finished=$(grep -v not_checked out4/report.json | sort | sha256sum)
run batch in -o out4 -j 4 "${filer[@]}"
expect_status 3 "the same batch again"
expect_in out "changed since: $((all - 4))" "what is done is not done again"
expect_in err "4 files in" "what wasn't checked is tried again"
expect_equal "$(grep -v not_checked out4/report.json | sort | sha256sum)" "$finished" \
    "the lines of what was done stay"
expect_whole out4/report.json $all "the same batch again"

rm in/utf8.csv $'in/not\xff\xfeutf8.csv' in/pipe.csv in/dangling.csv
cp "${failing[0]}" in/1/1/1.csv
rm out4/0/0/0.mok
run batch in -o out4 -j 2 "${filer[@]}"
expect_status 1 "after the files are mended"
expect_in err "2 files in" "a changed file and a lost document are done again"
expect_in err "leave the report as their files aren't part of this one: 4" "files that have gone"
expect_whole out4/report.json $((all - 4)) "after the files are mended"
[ ! -e out4/1/1/1.mok ] || fail "the document of a file that is refused now is taken away"
[ -s out4/0/0/0.mok ] || fail "a lost document is made again"

run batch few -o few1 "${filer[@]}" --daihyo-nm 別人
expect_in err "60 files in" "another field does all files again"
run batch few -o few1 "${filer[@]}" --daihyo-nm 別人 --lang ja
expect_in out "60ファイル：" "the summary in Japanese"
expect_in few1/index.html '<html lang="ja">' "the page in Japanese"
run batch few -o few1 "${filer[@]}" --fresh -q
expect_in err "60 files in" "--fresh does all files again"

# --- progress, where somebody watches ---

watched() {
    TERM=$1 script -qec "$kzekamok batch few -o watched --check-only --fresh $2" /dev/null |
        tr '\r' '\n' >out
    status=${PIPESTATUS[0]}
}
watched xterm ""
expect_status 1 "a watched batch"
expect_in out " of 60 files" "progress is shown on a terminal"
expect_in out "60 files in " "the last line on a terminal"
for quiet in "xterm -q" "dumb"; do
    watched $quiet
    expect_not_in out " of 60 files" "no progress with $quiet"
    expect_in out "60 files in " "the last line with $quiet"
done

# --- check alone ---

run batch few -o checked --check-only
expect_status 1 "a check alone"
expect_equal "$(find checked -type f | sort | tr '\n' ' ')" "checked/index.html checked/report.json " \
    "a check alone writes no documents"
expect_in out "40 passed, 20 refused" "a check alone"
run batch few -o limited --check-only --limit 1
expect_equal "$(grep -c '"listed":1,' limited/report.json)" 20 "--limit 1 lists an error of each file"
expect_equal "$(grep -o '"errors":[0-9]*' limited/report.json | sort | sha256sum)" \
    "$(grep -o '"errors":[0-9]*' checked/report.json | sort | sha256sum)" "the counts stay true"

# --- a worker that dies, and one that hangs ---

fill many $many
start many -o died -j 1 "${filer[@]}"
wait_for_lines died/report.json 10
victim=$(worker)
kill -STOP "$victim"
sleep 0.5
kill -ABRT "$victim"
kill -CONT "$victim"
finish_batch
expect_status 3 "a worker that dies"
expect_whole died/report.json $many "a worker that dies"
expect_equal "$(count 'ended by SIGABRT' died/report.json)" 1 "the file of a worker that dies"
expect_in out "ended by SIGABRT" "a worker that dies is told"
run batch many -o died -j 1 "${filer[@]}"
expect_status 1 "the file of a worker that died is tried again"
expect_in err "1 file in" "the file of a worker that died is tried again"

start many -o hung -j 1 --timeout 5 "${filer[@]}"
wait_for_lines hung/report.json 10
kill -STOP "$(worker)"
finish_batch
expect_status 3 "a worker that hangs"
expect_whole hung/report.json $many "a worker that hangs"
expect_equal "$(count 'took more than 5 s' hung/report.json)" 1 "the file of a worker that hangs"
expect_equal "$(find hung -name '.kzekamok-*' | wc -l)" 0 "a worker that hangs leaves nothing"

# --- interrupted ---

for signal in INT TERM HUP; do
    start many -o "by$signal" -j 2 "${filer[@]}"
    wait_for_lines "by$signal/report.json" 20
    kill -"$signal" -- "-$batch"
    finish_batch
    expect_status 3 "SIG$signal"
    expect_in err "goes on from there" "SIG$signal"
    done=$(lines "by$signal/report.json")
    [ "$done" -lt $many ] || fail "SIG$signal came too late"
    expect_whole "by$signal/report.json" "$done" "SIG$signal"
    expect_in "by$signal/index.html" "Broken off: $done of $many" "SIG$signal is told on the page"
    expect_equal "$(find "by$signal" -name '*.mok' | wc -l)" \
        "$(count '"result":"converted"' "by$signal/report.json")" "SIG$signal keeps what is recorded"
    run batch many -o "by$signal" -j 2 "${filer[@]}"
    expect_status 1 "on after SIG$signal"
    expect_in err "$((many - done)) files in" "on after SIG$signal"
    [ "$(without_times "by$signal/report.json")" = "$(without_times died/report.json)" ] ||
        fail "after SIG$signal the end is the same"
done

start many -o killed -j 2 "${filer[@]}"
wait_for_lines killed/report.json 20
kill -STOP "$batch"
run batch many -o killed "${filer[@]}"
expect_status 2 "two batches in one folder"
expect_in err "another batch is at work" "two batches in one folder"
child=$(worker)
kill -KILL "$batch"
finish_batch 2>/dev/null
for ((n = 0; n < 100; n++)); do [ -e "/proc/$child" ] || break; sleep 0.05; done
[ ! -e "/proc/$child" ] || fail "workers end with their parent"
truncate -s -7 killed/report.json
mkdir -p killed/1/1
mkdir -m 700 killed/1/1/.kzekamok-0123456789abcdef
: >killed/1/1/.kzekamok-0123456789abcdef/unfinished
run batch many -o killed -j 2 "${filer[@]}"
expect_status 1 "on after a kill"
expect_whole killed/report.json $many "on after a kill, with a torn line"
[ "$(without_times killed/report.json)" = "$(without_times died/report.json)" ] ||
    fail "after a kill the end is the same"
expect_equal "$(find killed -name '.kzekamok-*' | wc -l)" 0 "what the kill left behind is removed"

# --- lists ---

find few -name '*.csv' | sort >list
printf '%s\r\n' few/0/0/0.csv ./few/0/0/0.csv "$work/few/0/0/0.csv" '' few/absent.csv >crlf
run batch --files-from list -o listed "${filer[@]}"
expect_status 1 "a list"
expect_equal "$(find listed/few -name '*.mok' | wc -l)" 40 "a list is mirrored from the present folder"
find few -name '*.csv' -print0 | "$kzekamok" batch --files-from - -0 -o piped "${filer[@]}" >out 2>err
status=$?
expect_status 1 "a list from standard input"
expect_whole piped/report.json 60 "a list from standard input"
run batch --files-from crlf -o repeated "${filer[@]}"
expect_status 3 "a list that names a missing file"
expect_whole repeated/report.json 2 "a list that names a file again"
expect_in err "more than once in the list: 2" "a list that names a file again"
mkdir inner
(cd inner && "$kzekamok" batch --files-from ../crlf -o res "${filer[@]}" >../out 2>../err)
status=$?
expect_status 3 "a list from another folder"
[ -s "inner/res/_outside$work/few/0/0/0.mok" ] || fail "a file outside is mirrored by its whole path"

# --- names that meet ---

mkdir meet
cp "$samples/PGE5020_pass.csv" meet/a.csv
cp "$samples/PGE5030_pass.csv" meet/a.CSV
cp "$samples/PGE5040_pass.csv" meet/a.txt
cp "$samples/PGE5050_pass.csv" meet/a.csv.csv
cp "$samples/PGE5060_pass.csv" meet/b.txt
run batch meet -o meet/out --txt "${filer[@]}"
expect_status 0 "names that meet"
expect_equal "$(cd meet/out && echo *.mok)" "a.CSV.mok a.csv.csv.mok a.csv.mok a.txt.mok b.mok" \
    "names that meet keep their endings"
cp -r meet/out meet/out2
run batch meet -o meet/out --txt "${filer[@]}"
expect_in err "0 files in" "an output folder inside isn't looked into"

# --- a profile beside a file ---

mkdir own
cp "$samples/PGE5020_pass.csv" own/a.csv
cp "$samples/PGE5020_pass.csv" own/b.csv
cp "$samples/PGE5020_pass.csv" own/c.csv
echo 'nozeisha_nm = "別名株式会社"' >own/b.toml
echo 'nozeisha_name = "x"' >own/c.toml
run batch own -o own/out "${filer[@]}"
expect_status 2 "a wrong profile beside a file"
expect_in own/out/b.mok 別名株式会社 "a profile beside a file wins"
expect_not_in own/out/a.mok 別名株式会社 "and is for that file alone"
expect_in out "own/c.csv: " "a wrong profile beside a file is told"
expect_in out nozeisha_name "a wrong profile beside a file is told"
rm own/c.toml
echo 'nozeisha_nm = "新名株式会社"' >own/b.toml
run batch own -o own/out "${filer[@]}"
expect_status 0 "a mended profile"
expect_in err "2 files in" "a changed profile does its file again"
expect_in own/out/b.mok 新名株式会社 "a changed profile does its file again"
run batch own -o own/option "${filer[@]}" --nozeisha-nm 指定株式会社
expect_in own/option/b.mok 指定株式会社 "an option wins over a profile beside a file"

# --- what can't be written ---

run batch own -o /proc/nowhere "${filer[@]}"
expect_status 4 "an output folder that can't be made"
mkdir -p blocked deep/sub
cp "$samples/PGE5020_pass.csv" deep/sub/x.csv
cp "$samples/PGE5020_pass.csv" deep/y.csv
: >blocked/sub
run batch deep -o blocked "${filer[@]}"
expect_status 4 "a document whose folder can't be made"
expect_in out "1 converted, 1 not written" "a document whose folder can't be made"
rm blocked/sub
run batch deep -o blocked "${filer[@]}"
expect_status 0 "a document is written once it can be"
expect_in err "1 file in" "a document is written once it can be"

(ulimit -f 60 && "$kzekamok" batch many -o full -j 2 "${filer[@]}" >out 2>err)
status=$?
expect_status 4 "a full disk"
expect_in err "report.json could not be written" "a full disk"
expect_in err "goes on from there" "a full disk"
done=$(lines full/report.json)
expect_whole full/report.json "$done" "a full disk"
expect_equal "$(find full -name '*.new' -o -name '.kzekamok-*' | wc -l)" 0 "a full disk"
run batch many -o full -j 2 "${filer[@]}"
expect_status 1 "on after a full disk"
[ "$(without_times full/report.json)" = "$(without_times died/report.json)" ] ||
    fail "after a full disk the end is the same"

mkdir foreign1 foreign2
echo '{"tests": []}' >foreign1/report.json
echo '<html>mine</html>' >foreign2/index.html
for folder in foreign1 foreign2; do
    before=$(cat "$folder"/*)
    run batch few -o "$folder" "${filer[@]}" --fresh
    expect_status 2 "$folder holds another's file"
    expect_equal "$(cat "$folder"/*)" "$before" "$folder holds another's file"
done

# --- usage ---

for arguments in "" "few" "-o o" "few --files-from list -o o" "few -0 -o o" "absent -o o" "list -o o" \
    "few -o o -j 0" "few -o o -j 257" "few -o o --timeout x" "few -o o --timeout nan" \
    "--files-from absent -o o" "few -o o --profile absent.toml"; do
    run batch $arguments
    expect_status 2 "kzekamok batch $arguments"
    [ ! -e o ] || fail "kzekamok batch $arguments makes no folder"
done
mkdir none
run batch none -o nothing "${filer[@]}"
expect_status 0 "a folder without files"
expect_in err "no CSV file was found" "a folder without files"
[ -e nothing/report.json ] && [ ! -s nothing/report.json ] || fail "a report without lines"
run batch --help
expect_in out "xample" "batch --help shows examples"
run batch --help --lang ja
expect_in out "フォルダー" "batch --help in Japanese"

finish
