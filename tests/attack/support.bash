# For the scripts beside this one: `source` it with the path of kzekamok as first argument. All of
# tests/host/support.bash, and another user.

source "$(dirname "${BASH_SOURCE[0]}")/../host/support.bash" "$1"

filer=(--profile "$samples/filer.toml" --teishutsu-date 2026-11-20 --nozeisha-zip1 100
    --nozeisha-zip2 0001)
STRANGER=65534 # nobody

# skip REASON: ends the script as one that can't be tried here
skip() {
    echo "SKIPPED: $1"
    exit 77
}

# need_stranger: ends the script where no other user can be played
need_stranger() {
    [ "$(id -u)" -eq 0 ] || skip "only root can play another user"
    command -v setpriv >/dev/null || skip "no setpriv (Debian: util-linux)"
    chmod 755 "$work"
}

# stranger COMMAND...: runs it as another user without any rights of root
stranger() {
    setpriv --reuid "$STRANGER" --regid "$STRANGER" --clear-groups --inh-caps=-all -- "$@"
}

# run_at_once ARGUMENTS: as `run`, but what takes a minute hangs
run_at_once() {
    timeout -k 5 60 "$kzekamok" "$@" >out 2>err </dev/null
    status=$?
    [ "$status" -lt 124 ] || fail "kzekamok $* hangs or crashes"
}
