# What bash and zsh offer for a command line.
zsh_driver=$(dirname "$(readlink -f "$0")")/complete.zsh
source "$(dirname "$0")/support.bash" "$1"

# Runs the program under its own name.
mkdir bin
ln -s "$kzekamok" bin/kzekamok
PATH=$work/bin:$PATH

mkdir inbox inbox/sub
touch inbox/a.csv inbox/b.TXT inbox/c.mok inbox/d.toml 'inbox/e f.csv' inbox/xcsv

run completion bash
expect_status 0 "the script for bash"
cp out kzekamok.bash
run completion zsh
expect_status 0 "the script for zsh"
cp out _kzekamok
run completion fish
expect_status 2 "a shell without a script"
run completion
expect_status 2 "no shell"
run completion zsh --lang ja
expect_in out 'completion:シェルの入力補完スクリプトを出力します' "descriptions in Japanese"

# offered LINE: what bash offers for the last of the line's words. A blank at the end begins a new
# word, and = is a word of its own, as bash parts lines.
offered() {
    local line=${1//=/ = }
    read -ra COMP_WORDS <<<"$line"
    [[ $line != *' ' || $line == *' = ' ]] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _kzekamok
    printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort | paste -sd '|'
}

# expect_offered LINE EXPECTED: in bash, and in zsh if it is there.
expect_offered() {
    expect_equal "$(offered "$1")" "$2" "bash: $1"
    expect_zsh "$1" "$2"
}

expect_zsh() {
    $has_zsh || return 0
    local offered
    offered=$(timeout 60 zsh -f "$zsh_driver" "$work" "$1" </dev/null | LC_ALL=C sort -u | paste -sd '|')
    expect_equal "$offered" "$2" "zsh: $1"
}

has_zsh=false
if command -v zsh >/dev/null; then
    has_zsh=true
fi

source ./kzekamok.bash
expect_equal "$(complete -p kzekamok)" "complete -F _kzekamok kzekamok" "the function is known to bash"

commands='batch|check|completion|convert|explain|layout|lint|new|rules|split'
expect_offered 'kzekamok ' "$commands"
expect_offered 'kzekamok co' 'completion|convert'
expect_offered 'kzekamok --la' '--lang'
expect_offered 'kzekamok --lang ' 'en|ja'
expect_offered 'kzekamok --lang ja co' 'completion|convert'
expect_offered 'kzekamok --lang=j' 'ja'

# Values
expect_offered 'kzekamok check --format ' 'html|json|sarif|text'
expect_offered 'kzekamok check --format=' 'html|json|sarif|text'
expect_offered 'kzekamok check --format=s' 'sarif'
expect_offered 'kzekamok layout --format ' 'csv|html|markdown'
expect_offered 'kzekamok convert a.csv --family f' 'finance'
expect_offered 'kzekamok completion ' 'bash|zsh'
expect_offered 'kzekamok check --limit ' ''
expect_offered 'kzekamok convert --nozeisha-nm ' ''
expect_offered 'kzekamok batch --me' '--memory'
expect_offered 'kzekamok batch --memory ' ''
expect_offered 'kzekamok batch --sh' '--share-report'

# Options
expect_offered 'kzekamok convert inbox/a.csv --teishutsu-d' '--teishutsu-date|--teishutsu-day'
expect_offered 'kzekamok check --limit 3 --f' '--family|--format'
expect_offered 'kzekamok check -- --f' ''
expect_equal "$(offered 'kzekamok explain -')" '--help|--lang|-h' "bash: a dash alone"

# Codes and type ids
expect_offered 'kzekamok explain HE7003' \
    'HE70030E|HE70031E|HE70032E|HE70033E|HE70034E|HE70035E'
expect_offered 'kzekamok explain HE70001E HE9' 'HE99999E'
expect_offered 'kzekamok layout 00' '001|002|003|004|005|006|007|008|009'
expect_offered 'kzekamok rules 101 3' '301|302'
expect_offered 'kzekamok new 20' '201|202'
expect_offered 'kzekamok lint --type 30' '301|302'
KZEKAMOK_BUNDLE=$work/none expect_offered 'kzekamok layout 00' ''

# Files and folders. zsh tells the last part of a path alone, quoted.
expect_equal "$(offered 'kzekamok check inbox/')" \
    'inbox/a.csv|inbox/b.TXT|inbox/e f.csv|inbox/sub' "bash: CSV files and folders"
expect_zsh 'kzekamok check inbox/' 'a.csv|b.TXT|e\ f.csv|sub'
expect_equal "$(offered 'kzekamok check inbox/a.csv inbox/b')" 'inbox/b.TXT' "bash: a further file"
expect_zsh 'kzekamok check inbox/a.csv inbox/b' 'b.TXT'
expect_equal "$(offered 'kzekamok convert inbox/a.csv -o inbox/')" 'inbox/c.mok|inbox/sub' \
    "bash: a document to write"
expect_zsh 'kzekamok convert inbox/a.csv -o inbox/' 'c.mok|sub'
expect_equal "$(offered 'kzekamok convert inbox/a.csv --profile=inbox/d')" 'inbox/d.toml' \
    "bash: a profile"
expect_zsh 'kzekamok convert inbox/a.csv --profile=inbox/d' 'd.toml'
expect_offered 'kzekamok batch inb' 'inbox'
expect_equal "$(offered 'kzekamok batch -o inbox/')" 'inbox/sub' "bash: folders alone"
expect_zsh 'kzekamok batch -o inbox/' 'sub'
expect_equal "$(offered 'kzekamok split inbox/a.csv --')" \
    '--help|--lang|--output|--records|--repeat' "bash: options, as the one file is there"

# Where = parts no words, the reply holds the option.
COMP_WORDS=(kzekamok check --format=j)
COMP_CWORD=2
_kzekamok
expect_equal "${COMPREPLY[*]}" '--format=json' "bash: the option and its value in one word"

# Every option that a command's help tells is offered, and the help has examples.
for command in ${commands//|/ }; do
    run "$command" --help
    told=$(sed -n 's/^  \(-[^ ]*\).*/\1/p' out | tr ',' '\n' | LC_ALL=C sort | paste -sd '|')
    expect_equal "$(offered "kzekamok $command -")" "$told" "options of $command"
    expect_in out 'xamples:' "$command --help has examples"
    run "$command" --help --lang ja
    expect_in out '例：' "$command --help has examples in Japanese"
    run --help
    expect_in out "kzekamok $command " "--help has an example of $command"
done

finish
