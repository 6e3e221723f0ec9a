# ./test compilers [--timed]
# Libraries, tool and all tests, compiled with warnings as errors by g++ 12, clang 14 and clang 19. With --timed each
# anew and without the compiler's cache, the two libraries first. What both take is told in seconds and, since the machine
# may have more to do, in seconds of a processor.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" clang clang-19
is_timed=0
[ "${1-}" != --timed ] || is_timed=1

declare -A unity=([dev]=OFF [clang]=ON [clang-19]=ON)

# ninja_of PRESET ARGUMENT...: builds what was configured.
ninja_of() { (cd "$root" && cmake --build --preset "$1" --parallel "$(nproc)" "${@:2}") >&2; }

# tell_time: $used becomes what was run from this shell so far, in whole seconds of a processor.
tell_time() {
    times >"$root/build/compiler-times"
    used=$(awk -F '[ms ]' 'NR == 2 { printf "%d", 60 * $1 + $2 + 60 * $4 + $5 }' "$root/build/compiler-times")
}

# compile_all PRESET: its last line has the figures.
compile_all() {
    local preset=$1 files unchecked libraries
    local commands=$root/build/$preset/compile_commands.json
    # The first compiler takes each file by itself, so that it tells of one that lacks an include.
    (cd "$root" && cmake --preset "$preset" -DVYRCFD_BUILD_TESTS=ON "-DVYRCFD_UNITY=${unity[$preset]}") >&2 || return 1
    files=$(grep -c '"command":' "$commands")
    unchecked=$(grep '"command":' "$commands" | grep -vc -e ' -Werror ') || true
    # A file for which warnings are none would pass in silence.
    [ "$unchecked" -eq 0 ] || { echo "$unchecked files without -Werror" && return 1; }
    if [ "$is_timed" -eq 0 ]; then
        ninja_of "$preset" -- -k 0 || return 1
        echo "$files translation units"
        return
    fi
    export CCACHE_DISABLE=1
    ninja_of "$preset" --target clean || return 1
    local used before of_libraries
    tell_time
    before=$used
    SECONDS=0
    ninja_of "$preset" --target VYRCfdBase VYRStandaloneHost || return 1
    libraries=$SECONDS
    tell_time
    of_libraries=$((used - before))
    ninja_of "$preset" -- -k 0 || return 1
    tell_time
    echo "$files translation units, libraries in $libraries s ($of_libraries s of a processor)," \
        "everything in $SECONDS s ($((used - before)) s)"
}

figures=""
failures=0
for preset in dev clang clang-19; do
    if ! line=$(compile_all "$preset"); then
        line="failed${line:+, $line}"
        failures=$((failures + 1))
    fi
    say "$preset: $line"
    figures+="${figures:+; }$preset: $line"
done
[ "$failures" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - compilers, warnings are errors: $figures"
exit "$((failures != 0))"
