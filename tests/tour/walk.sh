#!/usr/bin/env bash
# Walks the desk on a sample firm of its own at a zoom, and counts the pictures that the script asks for.
set -euo pipefail
sample=$1
tour=$2
zoom=$3
script=$(cd "$(dirname "$0")/../.." && pwd)/scripts/tour
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$sample" "$folder/firm"
cd "$folder"
"$tour" "$script" firm pictures "$zoom"
asked=$(cat "$script"/*.txt | grep -c '^picture ')
drawn=$(find pictures -name '*.png' -size +5k | wc -l)
if [ "$asked" -ne "$drawn" ]; then
  echo "$asked pictures are asked for, $drawn were drawn"
  exit 1
fi
