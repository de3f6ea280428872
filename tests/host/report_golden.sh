# Whole reports of a file that is refused and one that passes, in each format.
# KZ_UPDATE_GOLDEN=1 records them anew: read the difference then.
golden=$(cd "$(dirname "$0")/../golden/host/report" && pwd) || exit 1
source "$(dirname "$0")/support.bash" "$1"
cp "$golden"/*.csv .

version=$("$kzekamok" --version | sed 's/^kzekamok \([0-9.]*\).*/\1/')

# The file out without what changes from release to release, and without the page's style and
# script, which the page's own test knows.
neutral() {
    sed -e "s/kzekamok ${version//./\\.}/kzekamok VERSION/g" \
        -e "s/^\( *\"\(version\|semanticVersion\)\": \)\"${version//./\\.}\"/\1\"VERSION\"/" \
        -e "s/'sha256-[^']*'/'sha256-DIGEST'/g" \
        -e '/^<style>/,/<\/style>$/c<style></style>' \
        -e '/^<script>/,/<\/script>$/c<script></script>' out
}

# expect_golden NAME
expect_golden() {
    neutral >seen
    [ -z "$KZ_UPDATE_GOLDEN" ] || cp seen "$golden/$1"
    cmp -s seen "$golden/$1" || {
        failures=$((failures + 1))
        echo "FAILED: $1 is another"
        diff "$golden/$1" seen | cut -c -300 | head -n 20
    }
}

for language in en ja; do
    for name in refused passed; do
        for format in text json sarif html; do
            [ "$format" = text ] && ending=txt || ending=$format
            run --lang "$language" check --format "$format" "$name.csv"
            expect_golden "$name.$language.$ending"
        done
    done
    run --lang "$language" check refused.csv passed.csv absent.csv
    expect_golden "several.$language.txt"
done

finish
