# Tells what zsh offers for a command line, one a line.
#
# zsh -f complete.zsh FOLDER LINE    FOLDER holds the script _kzekamok
#
# A second shell completes in a terminal of its own: only there the completion runs as for people.
zmodload zsh/zpty

folder=$1
line=$2

begin() {
    fpath=($1 $fpath)
    PROMPT=
    autoload -Uz compinit
    compinit -D -u
    bindkey '^I' complete-word
    zstyle ':completion:*' insert-tab false
    # The marks stand around what is offered; the shell ends behind it.
    mark() { print -r -- '<offered>' }
    compprefuncs=(mark)
    comppostfuncs=(mark exit)
    compadd() {
        # What only looks for matches, or is asked to keep them, offers nothing.
        if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then
            builtin compadd "$@"
            return
        fi
        local -a hits
        builtin compadd -A hits "$@"
        (( ! $#hits )) || print -lr -- $hits
        builtin compadd "$@"
    }
    stty -echo -onlcr
    print -r -- '<ready>'
}

zpty z zsh -f -i
zpty -w z "$(functions begin); begin ${(q)folder}"
zpty -r z heard '*<ready>*<ready>*' || zpty -r z heard '*<ready>*'
zpty -w -n z "$line"$'\t'
zpty -r z heard '*<offered>*<offered>*'
heard=${heard##*<ready>}
heard=${heard#*<offered>}
print -lr -- ${(f)${heard%%<offered>*}//$'\r'}
zpty -d z
