# ./test fuzz [SECONDS] [TARGET...]
# Each fuzz target with its engine for a while, 60 seconds unless told otherwise, under the sanitizers, beginning with
# the corpus that is kept. Executions and corpus are printed for each; any finding fails, and its input is kept below
# build/fuzz/findings. What the engine learns stays in build/fuzz/corpus for the next time.
#
# Read in by ./test, whose functions it uses.

seconds=${1:-60}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || { say "usage: ./test fuzz [SECONDS] [TARGET...]"; exit 2; }
targets=("${@:2}")
if [ "${#targets[@]}" -eq 0 ]; then
    for folder in "$root"/fuzz/corpus/*/; do targets+=("$(basename "$folder")"); done
fi

set_up "${TEST_PACKAGES[@]}" "${SANITIZER_PACKAGES[@]}"
build fuzz --target fuzz -DVYRCFD_BUILD_TESTS=ON

work=$root/build/fuzz
mkdir -p "$work/findings" "$work/logs"
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1

# engine TARGET ARGUMENT...: adds to the target's log.
engine() {
    "$work/bin/fuzz_$1" -timeout=20 -rss_limit_mb=2500 -max_len=2048 -close_fd_mask=1 -print_final_stats=1 \
        -dict="$root/fuzz/$1.dict" -artifact_prefix="$work/findings/$1-" "${@:2}" \
        "$work/corpus/$1" "$root/fuzz/corpus/$1" >>"$work/logs/$1" 2>&1
}

# fuzz TARGET: types that catalogs declare live as long as the process, so each process has its share of the runs.
fuzz() {
    local end=$((SECONDS + seconds))
    mkdir -p "$work/corpus/$1"
    : >"$work/logs/$1"
    while [ "$SECONDS" -lt "$end" ]; do
        engine "$1" -runs=50000 -max_total_time=$((end - SECONDS)) || return 1
    done
}

# executions TARGET: the sum over its processes.
executions() { awk '/^stat::number_of_executed_units:/ { sum += $2 } END { printf "%d", sum }' "$work/logs/$1"; }

inputs() { find "$1" -type f | wc -l; }

findings=0
total=0
printf '%-15s %12s %9s %9s\n' target executions kept corpus
for target in "${targets[@]}"; do
    verdict=
    fuzz "$target" || { verdict=FINDING; findings=$((findings + 1)); }
    count=$(executions "$target")
    # An engine that has run nothing has found nothing.
    [ -n "$verdict" ] || [ "$count" -gt 0 ] || { verdict="NOT RUN"; findings=$((findings + 1)); }
    total=$((total + count))
    printf '%-15s %12d %9d %9d %s\n' "$target" "$count" "$(inputs "$root/fuzz/corpus/$target")" \
        "$(inputs "$work/corpus/$target")" "$verdict"
    [ -z "$verdict" ] || { say "--- $target:"; grep -A40 -m1 -E 'FINDING|ERROR: |runtime error|SUMMARY' "$work/logs/$target" >&2 || tail -n 20 "$work/logs/$target" >&2; }
done
[ "$findings" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - fuzz: ${#targets[@]} targets, $total executions, $findings with findings"
[ "$findings" -eq 0 ]
