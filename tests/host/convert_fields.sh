# Where a document's fields come from.
source "$(dirname "$0")/support.bash" "$1"

cp "$samples/PGE5020_pass.csv" pass.csv
cat >filer.toml <<'END'
zeimusho_cd = "90101"
nozeisha_id = "9900000000000017"
nozeisha_nm = "見本 #1, 支店"  # a comment
nozeisha_adr = "例町"
dairi_nm = "代理"
END

run convert pass.csv --profile filer.toml -o profile.mok
expect_status 0 "a profile"
expect_in profile.mok "<NOZEISHA_NM ID=\"NOZEISHA_NM\">見本 #1, 支店</NOZEISHA_NM>" "a name of the profile"
expect_in profile.mok "<procedure_CD>PGE5020</procedure_CD>" "the procedure comes from the file"
expect_in profile.mok "kzekamok 2.0" "the software's name has a default"

run convert pass.csv --profile filer.toml --nozeisha-nm 選択 --soft-name 会計 -o option.mok
expect_status 0 "an option beside a profile"
expect_in option.mok "<NOZEISHA_NM ID=\"NOZEISHA_NM\">選択</NOZEISHA_NM>" "an option wins"
expect_in option.mok "代理" "the profile serves where no option is given"
expect_in option.mok "会計" "the software's name can be given"

run convert pass.csv --profile filer.toml --dairi-nm "" -o emptied.mok
expect_status 0 "an empty option"
expect_not_in emptied.mok "代理" "an empty option empties the profile's field"

run convert pass.csv --profile filer.toml --dairi-nm= -o equals.mok
expect_status 0 "an option that is empty behind its equals sign"
expect_not_in equals.mok "代理" "such an option empties the profile's field, too"

run convert pass.csv "${fields[@]}" --tetsuzuki PGE5020 -o given.mok
expect_status 0 "options without a profile"
expect_in given.mok "<procedure_CD>PGE5020</procedure_CD>" "a procedure that is given"

echo old >replaced.mok
run convert pass.csv "${fields[@]}" -o replaced.mok
expect_status 0 "an output that exists"
expect_not_in replaced.mok old "an output that exists is replaced"

finish
