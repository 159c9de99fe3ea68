#!/usr/bin/env bash
# Draws a permanence with the program's own generator and prints it as a load file.
# Usage: scripts/draw_permanence.sh COUPS SEED french|american [COUPS_PER_HAND] > FILE.inp
set -euo pipefail
cd "$(dirname "$0")/.."

coups=$1 seed=$2 table=$3 hand=${4:-0}
[ "$table" = american ] && form=1 || form=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
echo 'AL:' >"$work/nothing.syf"
./run play --quiet --system "$work/nothing.syf" --random "$coups" --seed "$seed" \
    --set s_table_form="$form" --trace "$work/trace" >&2

echo "$coups coups of the $table table, generator seed $seed"
sed -n 's/.*"number":\([0-9]*\),.*/\1/p' "$work/trace" |
    awk -v hand="$hand" '
        function flush() { if (line != "") print line; line = "" }
        {
            text = $1 == 37 ? "00" : $1
            line = line == "" ? text : line " " text
            if (NR % 20 == 0) flush()
            if (hand > 0 && NR % hand == 0) { flush(); print "-" }
        }
        END { flush() }'
