#!/bin/sh
# The window's program takes a file, --help and --version, and nothing else; none of this needs a display.
set -eu
"$1" --version | grep -qx 'trovalis [0-9.]*'
"$1" --help | grep -q 'trovalis \[FILE\]'
for wrong in --unknown '-x' 'a b'; do
  code=0
  # shellcheck disable=SC2086
  QT_QPA_PLATFORM=offscreen "$1" $wrong 2>/dev/null || code=$?
  [ "$code" -eq 2 ] || { echo "$wrong ends with $code"; exit 1; }
done
# Without a display there is one line, not a crash, and nothing else.
told=$(env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=:99999 "$1" 2>&1 || echo "code $?")
case $told in
  "trovalis: manca uno schermo"*"trovalis-cli
code 1") ;;
  *) echo "Without a display: $told"; exit 1 ;;
esac
