# The program in Japanese.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
cp "$samples/PGE5020_fail.csv" fail.csv
cp "$samples/PGE2015_pass.csv" finance.csv

# --- by the option ---

run --lang ja check fail.csv
expect_status 1 "a file with errors"
expect_in out "決められた値のどれでもありません。決められた値にしてください。" "the advice"
expect_in out "HE70009E 値の範囲外です。" "the message"
expect_not_in out "Replace every other" "no English advice"
run check --lang ja absent.csv
expect_status 3 "a missing file"
expect_in err "ファイルがありません。ファイル名とフォルダーを確認してください。" "a missing file"
run check --lang=ja --family finance pass.csv
expect_in out "レコード1は「002」で始まっています。定義にある申請区分は101～116、201、202です。" \
    "an unknown type id"
iconv -f CP932 -t UTF-8 pass.csv >utf8.csv
run --lang ja check utf8.csv
expect_in out "読み取れません：文字コードがShift_JISではなくUTF-8です。" "a UTF-8 file"
run --lang ja convert finance.csv "${fields[@]}" -o out.mok
expect_status 2 "a conversion without the day of filing"
expect_in out "この系列のファイルには提出日が必要です。" "the day of filing"
expect_in out "チェックには合格しましたが、納税者の項目に誤りがあります。" "wrong fields"
run --lang ja convert pass.csv "${fields[@]}" --teishutsu-date 2026-11-20 -o out.mok
expect_in out "--teishutsu-date はこのファイルの系列（base）にない項目です。" "a foreign option"
run --lang ja convert pass.csv "${fields[@]}" --dry-run -o out.mok
expect_in out "試行（--dry-run）です。文書は作成できましたが、書き込んでいません。" "a dry run"
KZEKAMOK_BUNDLE=$work/no.bundle run --lang ja check pass.csv
expect_in out "リソースフォルダー $work/no.bundle がありません。" "a missing resource folder"
echo 'x = "1"' >wrong.toml
run --lang ja convert pass.csv --profile wrong.toml -o out.mok
expect_in err 'プロファイル wrong.toml：1行目："x" というキーはありません。' "an unknown key"

# complain MESSAGE ARGUMENT...: wrong usage, which the parser finds.
complain() {
    run --lang ja "${@:2}"
    expect_status 2 "${*:2}"
    expect_in err "$1" "${*:2}"
    expect_in err "使い方は \`kzekamok --help\` で見られます。" "${*:2} points to the help"
}
complain "サブコマンドを指定してください：check、convert、"
complain "frob というサブコマンドはありません。使えるもの：check、" frob
complain "--frob というオプションはここでは使えません" --frob
complain "--frob というオプションはここでは使えません" check --frob pass.csv
complain "余分な引数があります：fail.csv" convert pass.csv fail.csv -o out.mok
complain "FILE を指定してください" check
complain "--output を指定してください" convert pass.csv
complain "--format に値を指定してください" check --format
complain "--format xml：次のどれかにしてください：html、json、sarif、text" check --format xml pass.csv
complain "--limit -1：0から1000000000までの数にしてください" check --limit -1 pass.csv
complain "--limit は1回だけ指定してください" check --limit 1 --limit 2 pass.csv
complain "--lang fr：次のどれかにしてください：en、ja" --lang fr check pass.csv
complain "文書の名前は .mok または .MOK で終わらせてください" convert pass.csv -o out.xml
complain $'\\u{1b} というサブコマンドはありません' $'\x1b'

for command in "" check convert; do
    run $command --lang ja --help
    expect_status 0 "$command --help"
    expect_in out "使い方: kzekamok" "$command --help"
    expect_in out "この説明を表示して終わります" "$command --help"
    expect_in out "例：" "$command --help shows examples"
    expect_not_in out "Options:" "$command --help has no English title"
done
run --lang ja --help
expect_in out "終了ステータス（複数のファイルでは最も大きいもの）：" "--help tells the exit statuses"
[ "$(awk 'length > 300' out)" = "" ] || fail "--help has no endless line"

# --- by the locale ---

unset LC_ALL LC_MESSAGES
export LANG=ja_JP.UTF-8
run check fail.csv
expect_in out "決められた値のどれでもありません。" "LANG asks for Japanese"
run frob
expect_in err "frob というサブコマンドはありません" "LANG counts for the parser"
run --lang en check fail.csv
expect_in out "The value is not one of the allowed ones." "--lang wins over LANG"
LC_ALL=C run check fail.csv
expect_in out "The value is not one of the allowed ones." "LC_ALL wins over LANG"
"$kzekamok" check pass.csv >/dev/full 2>err
status=$?
expect_status 4 "a full standard output"
expect_in err "標準出力に書き込めませんでした" "a full standard output"

finish
