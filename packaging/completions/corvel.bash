# Completions of corvel for bash, which bash-completion loads. The words come from corvel itself.

# Prints a word as corvel would see it. The last one may have an open quote.
_corvel_unquoted() {
    local word=${1#[\"\']}
    word=${word%[\"\']}
    printf '%s' "${word//\\/}"
}

_corvel() {
    local cur words cword word line after text
    # Bash takes these characters for ends of words, corvel does not.
    _get_comp_words_by_ref -n '=:,' cur words cword
    local typed=()
    for word in "${words[@]:1:cword}"; do
        typed+=("$(_corvel_unquoted "$word")")
    done
    [ ${#typed[@]} -eq "$cword" ] || typed+=("")

    COMPREPLY=()
    while IFS= read -r line; do
        case $line in
        @files)
            cur=${cur#--*=}
            _filedir
            return
            ;;
        @folders)
            cur=${cur#--*=}
            _filedir -d
            return
            ;;
        esac
        text=${line%%$'\t'*}
        case $cur in
        [\"\']*) ;;
        *)
            # Bash replaces only what follows the last of its ends of words.
            after=${cur##*[=:]}
            text=${text:${#cur}-${#after}}
            printf -v text %q "$text"
            text=${text//\\,/,}
            ;;
        esac
        COMPREPLY+=("$text")
    done < <("$1" complete "${typed[@]}" 2> /dev/null)
    case ${COMPREPLY[*]} in
    *=) compopt -o nospace ;;
    esac
}

complete -F _corvel corvel
