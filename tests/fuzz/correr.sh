#!/usr/bin/env bash
# Runs the translator's fuzz target for a bounded time: the seed corpus is copied to a scratch folder
# (the repository's seeds stay as they are), and a crash, a sanitizer report, a defect in a
# translation, an input slower than 10 s or one needing more than 2 GB fails the run. The input that
# failed is kept in the scratch folder, whose path is printed.
set -euo pipefail
objetivo=$1 semillas=$2 diccionario=$3 segundos=$4
trabajo=$(mktemp -d "${TMPDIR:-/tmp}/fuzz-traductor.XXXXXX")
mkdir "$trabajo/corpus"
cp "$semillas"/* "$trabajo/corpus/"
echo "fuzz_traductor: $segundos s, corpus y hallazgos en $trabajo"
if "$objetivo" -max_total_time="$segundos" -timeout=10 -rss_limit_mb=2048 -max_len=4096 \
    -dict="$diccionario" -artifact_prefix="$trabajo/" -print_final_stats=1 "$trabajo/corpus"; then
    rm -rf "$trabajo"
else
    echo "fuzz_traductor: falló; la entrada que lo hizo fallar está en $trabajo" >&2
    exit 1
fi
