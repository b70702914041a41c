#!/bin/sh
# Includes run one way: ui -> edit, formats, support -> model -> base, and only ui/ knows the toolkit.
set -u
cd "$1" || exit 2
broken=0
forbid() {  # FOLDER PATTERN
  [ -d "$1" ] || return 0
  if grep -rnE "#include $2" "$1"; then broken=1; fi
}
for folder in base model support formats edit; do
  forbid $folder '<Q'
  forbid $folder '"ui/'
done
forbid base '"(model|support|formats|edit)/'
forbid model '"(support|formats|edit)/'
if [ $broken -ne 0 ]; then echo "includes above run the wrong way"; fi
exit $broken
