#!/usr/bin/env bash
# Runs every fuzzer of a fuzz build, one after the other, from the golden archives and its own seeds on:
#   fuzz.sh BUILD SECONDS          so long each
#   fuzz.sh BUILD 0 EXECUTIONS     so many inputs each
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1 seconds=$2 executions=${3:--1}

for program in "$build"/fuzz/fuzz_*; do
    [ -x "$program" ] && [ -f "$program" ] || continue
    name=$(basename "$program")
    corpus=$build/corpus/$name
    seeds=(tests/data/archives)
    [ ! -d "fuzz/corpus/${name#fuzz_}" ] || seeds+=("fuzz/corpus/${name#fuzz_}")
    mkdir -p "$corpus"
    echo "$name: $seconds s, $executions executions" >&2
    QT_QPA_PLATFORM=offscreen "$program" -max_total_time="$seconds" -runs="$executions" -max_len=16384 \
        -timeout=20 -rss_limit_mb=2048 -artifact_prefix="$build/" -print_final_stats=1 \
        "$corpus" "${seeds[@]}" 2>&1 | grep -vE '^#[0-9]+\s+(NEW|REDUCE|pulse|RELOAD)' >&2
done
