#!/bin/bash
# Runs every recipe of the page on the command line as it stands, each in a folder of its own with the demo image, and
# compares what it prints with what the page says. Then what only a running program shows: pipes, full disks and, where there
# is a completion, as on Linux, odd names.
# Usage: recipes.sh PAGE PROGRAM DEMO_IMAGE [COMPLETION]
set -u
page=$(realpath "$1") program=$(realpath "$2") demo=$(realpath "$3") completion=${4:+$(realpath "$4")}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/home"
ln -s "$program" "$work/bin/trovalis-cli"
export PATH="$work/bin:$PATH" HOME="$work/home" LC_ALL=C.UTF-8
failed=0
fail() { echo "$1"; failed=1; }

# A folder as the page has it.
new_folder() {
  rm -rf "$work/folder"
  mkdir -p "$work/folder/copie"
  cd "$work/folder" || exit 2
  cp "$demo" lista.dat
  cp "$demo" copie/gennaio.dat
  trovalis-cli rename lista.dat --capacity 3996 --rule 'sostituisci/Rete Italia/Rete Nuova/' -o copie/febbraio.dat >/dev/null
}

# Blocks of the page: NUMBER.sh is a recipe, NUMBER.text what it prints.
awk -v to="$work" '/^```sh$/ { file = to "/" ++n ".sh"; next } /^```text$/ { file = to "/" n ".text"; next }
  /^```$/ { file = ""; next } file { print > file }' "$page"
recipes=0
for recipe in "$work"/*.sh; do
  recipes=$((recipes + 1))
  new_folder
  bash -eu "$recipe" >"$work/printed" 2>&1 || fail "${recipe##*/} ends with an error"
  diff "${recipe%.sh}.text" "$work/printed" || fail "${recipe##*/} prints something else than the page says"
done
[ "$recipes" -eq 10 ] || fail "The page has $recipes recipes"

new_folder
# Who reads may have enough: no noise, and the command's own exit.
errors=$({ trovalis-cli list lista.dat --json; echo $? >exit; } 2>&1 >/dev/full)
[ "$(cat exit)" = 4 ] || fail "A full disk behind the standard output goes unnoticed"
case "$errors" in *"spazio su disco esaurito"*) ;; *) fail "$errors" ;; esac
errors=$({ { trovalis-cli list lista.dat --json; echo $? >exit; } | true; } 2>&1)
[ "$errors$(cat exit)" = 0 ] || fail "A broken pipe is told: $errors $(cat exit)"
trovalis-cli info "$PWD/lista.dat" >/dev/null || fail "A path from the root is no file"
[ -n "$completion" ] || exit $failed
name=$(printf -- '-l\351sta \n.dat')
cp lista.dat "./$name"
trovalis-cli info -- "$name" | head -1 >printed
[ "$(tail -c 21 printed)" = ": letti 620 canali" ] || trovalis-cli info -- "$name" >/dev/null || fail "An odd name"
trovalis-cli sort --by name --capacity 3996 --in-place -- "$name" >/dev/null || fail "An odd name in place"
cmp lista.dat "./$name.bak" || fail "No copy of an odd name"
trovalis-cli info --json "./$name" >/dev/null || fail "An odd name as JSON"
[ -z "$(ls -A "$HOME")" ] || fail "A command left something in the user's folder: $(find "$HOME")"

# Completion offers the commands, a command's options and their words, and leaves files to the shell.
. "$completion"
completed() {
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
  _trovalis_cli
  echo "${COMPREPLY[*]}"
}
[ "$(completed trovalis-cli s)" = "sdx sort" ] || fail "Commands are not completed"
[ "$(completed trovalis-cli list --c)" = "--capacity --csv" ] || fail "Options are not completed"
[ "$(completed trovalis-cli sort --by fre)" = frequency ] || fail "Words are not completed"
[ -z "$(completed trovalis-cli info li)" ] || fail "Files are not left to the shell"
exit $failed
