# Completion for trovalis-cli, from what its own help says.
_trovalis_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} words before=
  if [ "$COMP_CWORD" -eq 1 ]; then
    words=$(trovalis-cli --help | sed -n '/^Comandi:/,/^$/s/^  \([a-z]*\) .*/\1/p')
    # shellcheck disable=SC2207 # no word has a blank
    COMPREPLY=($(compgen -W "$words --help --version" -- "$word"))
    return
  fi
  case "${COMP_WORDS[COMP_CWORD - 1]}" in
    --capacity) words="999 2000 3996" ;;
    --type) words="1 2 3" ;;
    --sr) words="0 2" ;;
    --to) words="text fls csv vdr" ;;
    --place) words="behind holes bouquet" ;;
    --only) words="new deleted moved renamed retuned pids modified favourites" ;;
    --by) words="name kind satellite bouquet frequency sid coding hd favourites active" ;;
    *) [ "${word#-}" = "$word" ] || words=$(trovalis-cli "${COMP_WORDS[1]}" --help | grep -o -- '--[a-z-]*' | sort -u) ;;
  esac
  # Of words between commas the last one.
  [[ $word == -* || -z ${words:-} ]] || before=${word%"${word##*,}"}
  # shellcheck disable=SC2207
  COMPREPLY=($(compgen -P "$before" -W "${words:-}" -- "${word#"$before"}"))
}
complete -o bashdefault -o default -F _trovalis_cli trovalis-cli
