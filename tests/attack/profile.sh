# Profiles beside CSV files that others made: links to files of the user's, pipes, files that others
# can write, and texts that cost time, memory or the stack.
source "$(dirname "$0")/support.bash" "$1"

mkdir inbox
good=$samples/PGE1630_pass.csv

# try NAME WHAT: the batch refuses inbox/NAME.toml with these words, and makes no document.
try() {
    cp "$good" "inbox/$1.csv"
    run_at_once batch inbox -o "out-$1" -j 1 "${filer[@]}" --lang en
    expect_status 2 "$1"
    expect_in "out-$1/report.json" "$2" "$1"
    [ ! -e "out-$1/$1.mok" ] || fail "$1 made a document"
    rm -r inbox
    mkdir inbox
}

printf 'secret_key = "secret value"\nnozeisha_nm = "SECRET"\n' >secret
ln -s ../secret inbox/link.toml
try link 'the file is a link'
! grep -rq -e secret_key -e SECRET out-link || fail "what the link leads to is told"

ln secret inbox/second.toml
try second 'the file is a link'
! grep -rq -e secret_key -e SECRET out-second || fail "what the second name stands for is told"

ln -s absent inbox/nowhere.toml
try nowhere 'the file is a link'

mkfifo inbox/pipe.toml
try pipe 'this is no regular file'

mkdir inbox/folder.toml
try folder 'this is no regular file'

echo 'nozeisha_nm = "A"' >inbox/group.toml
chmod 664 inbox/group.toml
try group 'others than you can write the file'

echo 'nozeisha_nm = "A"' >inbox/all.toml
chmod 646 inbox/all.toml
try all 'others than you can write the file'

head -c 1000000 /dev/zero | tr '\0' '\n' >inbox/long.toml
try long 'the file has more than 65536 bytes'

{ printf a; printf '.a%.0s' {1..10000}; echo ' = "A"'; } >inbox/dots.toml
try dots 'more than 1800 dots and brackets'

{ printf 'nozeisha_nm = '; head -c 60000 /dev/zero | tr '\0' '['; } >inbox/brackets.toml
try brackets 'more than 1800 dots and brackets'

# As many keys as there is room for.
seq 1 6000 | sed 's/.*/k& = 1/' >inbox/keys.toml
try keys 'unknown key'

printf 'a\x1b]0;title\x07 = "A"\n' >inbox/controls.toml
try controls 'line 1: '
! grep -q $'\x1b' out-controls/report.json err || fail "a control character of a key is told raw"

if [ "$(id -u)" -eq 0 ]; then
    echo 'nozeisha_nm = "A"' >inbox/other.toml
    chown "$STRANGER" inbox/other.toml
    try other 'the file belongs to another user'
fi

finish
