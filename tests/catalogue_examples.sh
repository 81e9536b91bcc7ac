#!/usr/bin/env bash
# Finds each example of docs/catalogue.md in the catalogue, whatever the line of the record's header.
# Usage: catalogue_examples.sh CATALOGUE
set -euo pipefail
without_line() {
  sed 's/^\(record [^ ]* [^ ]*\) [0-9]* /\1 /'
}
catalogue=$(without_line <"$1")
block='' inside=no found=0
while IFS= read -r line; do
  if [ "$line" != '```' ]; then
    [ $inside = no ] || block+=$'\n'$line
  elif [ $inside = no ]; then
    inside=yes block=''
  else
    inside=no
    if [[ $'\n'$catalogue$'\n' != *"$block"$'\n'* ]]; then
      echo "The catalogue does not have:$block" >&2
      exit 1
    fi
    found=$((found + 1))
  fi
done < <(without_line <"$(dirname "$0")/../docs/catalogue.md")
echo "$found examples are in the catalogue"
[ "$found" -gt 0 ]
