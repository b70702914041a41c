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
