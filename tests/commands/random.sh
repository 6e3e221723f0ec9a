# ./test random [OPERATIONS]
# Random operations, a million of them unless told otherwise, on the real model and on its naive twin, which must stay
# equal. VYRCFD_RANDOM_SEED gives the seed of the first model; a failure prints its own, and the fewest operations that
# show it, as a file that VYRCFD_RANDOM_REPLAY replays.
#
# Read in by ./test, whose functions it uses.

operations=${1:-1000000}
if ! [[ $operations =~ ^[1-9][0-9]*$ ]]; then
    say "usage: ./test random [OPERATIONS]"
    exit 2
fi
set_up "${TEST_PACKAGES[@]}"
build release --target random_test -DVYRCFD_BUILD_TESTS=ON
log=$root/build/release/random.log
status=0
(cd "$root" && VYRCFD_RANDOM_OPERATIONS=$operations build/release/bin/random_test) | tee "$log" || status=1
# The line says how many operations, which seed and how many objects; without it nothing has run.
figures=$(sed -n 's/^random: //p' "$log")
[ -n "$figures" ] || status=1
[ "$status" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - random: ${figures:-nothing was run}"
exit "$status"
