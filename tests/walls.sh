#!/bin/sh
# The rooms of src and which of them may know which: an include from one room to another has to be in the table below.
# What stands lower in a list knows only what stands above it; rooms that share a line do not know each other.
set -u
cd "$1" || exit 2

# ROOM: the rooms it may include.
allowed() {
  below="ui/kit ui/list ui/session"
  siblings="ui/edit ui/sources ui/favourites ui/review"
  core="base model support formats review edit"
  case "$1" in
    base) echo "" ;;
    model) echo "base" ;;
    support | formats | review) echo "base model" ;;
    edit) echo "base model review" ;;
    cli) echo "$core" ;;
    ui/kit) echo "base" ;;
    ui/list) echo "$core ui/kit" ;;
    ui/session) echo "$core ui/kit ui/list" ;;
    ui/edit | ui/sources | ui/favourites | ui/review) echo "$core $below" ;;
    ui/files) echo "$core $below $siblings" ;;
    ui/window) echo "$core $below $siblings ui/files" ;;
    ui) echo "$core $below $siblings ui/files ui/window" ;;
    *) return 1 ;;
  esac
}

# Every room, and every include of another one as FILE:LINE ROOM.
broken=0
for room in $(find . -name '*.cpp' -o -name '*.h' | sed 's|^\./||; s|/[^/]*$||' | sort -u); do
  if ! may=$(allowed "$room"); then
    echo "$room is no room of the house"
    broken=1
    continue
  fi
  for other in $(sed -n 's|^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]\(.*\)/[^/">]*[">].*|\1|p' \
    "$room"/*.h "$room"/*.cpp 2>/dev/null | sort -u); do
    [ "$other" = "$room" ] && continue
    allowed "$other" > /dev/null || continue # a folder of the system's headers
    case " $may " in *" $other "*) continue ;; esac
    echo "$room must not include $other:"
    grep -n "#[[:space:]]*include[[:space:]]*[\"<]$other/[^/]*[\">]" "$room"/*.h "$room"/*.cpp
    broken=1
  done
  case "$room" in ui | ui/*) continue ;; esac
  if grep -n '#include <Q' "$room"/*; then
    echo "$room must not know the toolkit"
    broken=1
  fi
done
exit $broken
