# ./test coverage
# How much of the two libraries the everyday tests run, by clang's source-based coverage. What may be left out stands in
# tests/coverage/excluded.txt.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" clang libclang-rt-14-dev llvm-14
build coverage -DVYRCFD_BUILD_TESTS=ON
profiles=$root/build/coverage/profiles
rm -rf "$profiles"
mkdir -p "$profiles"
# Listing the tests runs every program once, which is not to be measured.
(cd "$root" && LLVM_PROFILE_FILE=/dev/null ctest --preset coverage --show-only=json-v1 >"$profiles/tests.json")
python3 -B "$root/tests/coverage/run_tests.py" "$profiles/tests.json" "$profiles" ||
    { echo "FAILED - coverage: the tests failed" && exit 1; }
llvm-profdata-14 merge -o "$profiles/all.profdata" "$profiles"/*.profraw
exported=()
for library in VYRCfdBase VYRStandaloneHost; do
    llvm-cov-14 export -format=lcov -instr-profile="$profiles/all.profdata" "$root/build/coverage/lib/lib$library.so" \
        >"$profiles/$library.lcov"
    exported+=("$profiles/$library.lcov")
done
python3 -B "$root/tests/coverage/coverage.py" "$root/tests/coverage/excluded.txt" "${exported[@]}"
