#!/usr/bin/env bash
# A set-user-id program takes nothing from its caller's environment: no log, no resource folder.
# usage: set_user_id.sh PROBE. Needs root, who alone can make such a program for another user.
set -u

probe=$1
if ((EUID != 0)) || ! command -v setpriv >/dev/null; then
    echo 'skipped: needs root and setpriv'
    exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
chmod 755 "$folder"
failures=0

fail() {
    printf 'FAILED: %s\n' "$*"
    failures=$((failures + 1))
}

# The program belongs to root, its caller is nobody.
cp "$probe" "$folder/plain"
cp "$probe" "$folder/privileged"
chmod 755 "$folder/plain"
chmod 4755 "$folder/privileged"
mkdir -m 777 "$folder/home"
mkdir -m 755 "$folder/bundle"
as_nobody() {
    setpriv --reuid=65534 --regid=65534 --clear-groups env "HOME=$folder/home" \
        "KZEKAMOK_BUNDLE=$folder/bundle" KZLuviaZEKA.DebugOutput=1 "$@"
}
if ! as_nobody "$folder/privileged" bundle >/dev/null ||
    [[ $(as_nobody "$folder/plain" bundle) != "$folder/bundle" ]]; then
    echo 'skipped: nobody cannot run a program here'
    exit 77
fi
if findmnt -no OPTIONS -T "$folder" | grep -qw nosuid; then
    echo 'skipped: set-user-id bits do not count here'
    exit 77
fi

[[ $(as_nobody "$folder/privileged" bundle) == '' ]] ||
    fail 'the resource folder that the caller names was taken'

[[ $(as_nobody "$folder/privileged" log) == off ]] || fail 'the log was on'
[[ -z $(ls -A "$folder/home") ]] || fail "a log was made: $(ls -lA "$folder/home")"

# A file of root's that the caller wants a line in.
echo secret >"$folder/target"
chmod 600 "$folder/target"
ln -s "$folder/target" "$folder/home/_ORB_KZEKAMOK_$(date +%Y%m%d).log"
as_nobody "$folder/privileged" log >/dev/null
[[ $(cat "$folder/target") == secret ]] || fail 'a line was appended to a file of root'

# The same program without the bit logs for its caller.
rm "$folder/home"/_ORB*
[[ $(as_nobody "$folder/plain" log) == on ]] || fail 'the log of a plain program was off'
[[ $(cat "$folder/home"/_ORB*) == 1234567890123456 ]] || fail 'a plain program wrote no log'
[[ $(stat -c '%a %u' "$folder/home"/_ORB*) == '600 65534' ]] ||
    fail "the log is not its user's alone: $(ls -ln "$folder/home")"

exit $((failures > 0))
