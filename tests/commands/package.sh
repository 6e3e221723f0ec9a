# ./test package
# What others take from here: the installed tree, shared and static, moved away from where it was installed; programs
# that are built from it alone, by CMake and by pkg-config; the tool in it; what the libraries export and are called;
# the Debian packages; the module on another host; and what gdb shows of its values.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" pkg-config dpkg-dev gdb
work=$root/build/package
sources=$root/tests/package
version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' "$root/CMakeLists.txt")
case $version in
    0.*) soname=${version%.*} ;;
    *) soname=${version%%.*} ;;
esac

# Where a tree's libraries lie: in lib, or where the system has them.
libraries_of() { dirname "$(find "$1" -name pkgconfig -type d)"; }
samples_of() { printf '%s' "$1/share/VYRCfdBase/samples"; }

# none COMMAND... PATTERN: of the lines that the command prints. (`!` would not end a function that goes on.)
none() {
    local lines
    lines=$("${@:1:$#-1}" | grep -E -e "${@: -1}" || true)
    [ -z "$lines" ] || { echo "$lines" && return 1; }
}

# configure FOLDER ARGUMENT...: with what the release is built with, but for the arguments.
configure() {
    cmake -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ "${@:2}"
}

ninja_in() { cmake --build "$1" --parallel "$(nproc)"; }

# install_from FOLDER TREE: to a folder that is gone afterwards.
install_from() {
    rm -rf "$work/installed" "$2"
    cmake --install "$1" --prefix "$work/installed"
    mkdir -p "$(dirname "$2")"
    mv "$work/installed" "$2"
}

install_shared() {
    build release --target VYRCfdBase VYRStandaloneHost vyrcfd vyrcfd_interface
    install_from "$root/build/release" "$work/moved/shared"
}

install_static() {
    configure "$work/static" -S "$root" -DBUILD_SHARED_LIBS=OFF -DVYRCFD_BUILD_TOOLS=OFF -DVYRCFD_BUILD_TESTS=OFF
    ninja_in "$work/static"
    install_from "$work/static" "$work/moved/static"
}

# names_no_folder TREE: of this machine.
names_no_folder() {
    # Something must have been looked at.
    [ "$(find "$1" -type f | wc -l)" -gt 70 ]
    none grep -rlaF -e "$root" "$1" .
}

# run_programs FOLDER TREE: what they print on the tree's samples.
run_programs() {
    diff "$sources/expected/apply.txt" <("$1/apply" "$(samples_of "$2")")
    diff "$sources/expected/ask.txt" <("$1/ask" "$(samples_of "$2")")
}

# by_cmake NAME TREE ARGUMENT...
by_cmake() {
    rm -rf "$work/$1"
    configure "$work/$1" -S "$sources/consumer" -DCMAKE_PREFIX_PATH="$2" -DEXPECTED_VERSION="$version" "${@:3}"
    ninja_in "$work/$1"
    run_programs "$work/$1" "$2"
}

# by_pkg_config NAME TREE ARGUMENT...: with linkers that leave libraries out that no symbol is taken from.
by_pkg_config() {
    local libraries flags
    libraries=$(libraries_of "$2")
    flags=$(PKG_CONFIG_PATH=$libraries/pkgconfig pkg-config "${@:3}" --cflags --libs VYRCfdBase VYRStandaloneHost)
    [ "$(PKG_CONFIG_PATH=$libraries/pkgconfig pkg-config --modversion VYRCfdBase)" = "$version" ]
    rm -rf "$work/$1"
    mkdir -p "$work/$1"
    # shellcheck disable=SC2086 # one word a flag
    g++ -std=c++20 "$sources/consumer/Apply.cpp" -o "$work/$1/apply" -Wl,--as-needed $flags -Wl,-rpath,"$libraries"
    # shellcheck disable=SC2086
    g++ -std=c++20 "$sources/consumer/Ask.cpp" -o "$work/$1/ask" -Wl,--as-needed $flags -Wl,-rpath,"$libraries"
    run_programs "$work/$1" "$2"
}

# needs_ours FOLDER COUNT: how many of our libraries its programs load.
needs_ours() { [ "$(readelf -d "$1/apply" | grep -c 'NEEDED.*libVYR')" = "$2" ]; }

# has_shortcuts FOLDER...: a weak reference does not get them out of the archive.
has_shortcuts() {
    local folder
    for folder in "$@"; do nm -C "$folder/apply" | grep -E ' [TW] ORXGetSpecAttrShortcuts'; done
}

# run_tool TREE: does there what the built one does here, and finds the samples that it came with.
run_tool() {
    local model
    model=$(samples_of "$1")/models/externalFlow.model.json
    diff <(env -i "$root/build/release/bin/vyrcfd" apply "$model" Solver.1 externalFlow) \
        <(env -i "$1/bin/vyrcfd" apply "$model" Solver.1 externalFlow)
    env -i "$1/bin/vyrcfd" list >"$work/list"
    [ "$(head -n 1 "$work/list")" = "$(samples_of "$1")/reffiles/VYRCfdApp/SolverConfigurations.json" ]
    grep -q '^\.TH' "$1/share/man/man1/vyrcfd.1"
    [ -s "$1/share/bash-completion/completions/vyrcfd" ]
}

# shown_by_gdb TREE: by the printers that come with it. g++ describes a cursor's class only where its library has debug
# information, unless it is told to.
shown_by_gdb() {
    local flags
    flags=$(PKG_CONFIG_PATH=$(libraries_of "$1")/pkgconfig pkg-config --cflags --libs VYRCfdBase VYRStandaloneHost)
    # shellcheck disable=SC2086
    g++ -std=c++20 -g -femit-class-debug-always "$sources/gdb/Values.cpp" -o "$work/values" $flags \
        -Wl,-rpath,"$(libraries_of "$1")"
    LC_ALL=C.UTF-8 gdb -q -batch -nx -x "$1/share/VYRCfdBase/gdb/VYRCfdPrinters.py" -x "$sources/gdb/values.gdb" \
        "$work/values" >"$work/shown" 2>&1
    diff "$sources/expected/gdb.txt" <(grep '^\$' "$work/shown" | sed -E 's/0x[0-9a-f]+/ADDRESS/g')
}

# called_by_soname TREE: name for linking, soname, file.
called_by_soname() {
    local library file
    for library in libVYRCfdBase libVYRStandaloneHost; do
        file=$(libraries_of "$1")/$library.so
        readelf -d "$file" | grep -F "Library soname: [$library.so.$soname]"
        [ "$(readlink "$file")" = "$library.so.$soname" ]
        [ "$(readlink "$file.$soname")" = "$library.so.$version" ]
    done
}

# exports LIBRARY [ARGUMENT...]: what is listed, in the library's own list where no other is given.
exports() { python3 -B "$root/tests/house/exports.py" check "$@"; }

second_host() {
    rm -rf "$work/secondhost/headers"
    configure "$work/secondhost" -S "$root/tests/secondhost" \
        -DSHARED_HEADERS="$work/moved/shared/include/VYRCfdBase/host" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="$(command -v ccache)"
    ninja_in "$work/secondhost"
    "$work/secondhost/second_host_program"
    # It is the second host that it runs on.
    none ldd "$work/secondhost/second_host_program" VYRStandaloneHost
    # Whatever the host, the module exports the same.
    python3 -B "$root/tests/house/exports.py" renew --write --list "$work/exports.txt" \
        "$(libraries_of "$work/moved/shared")/libVYRCfdBase.so"
    exports "$work/secondhost/VYRCfdBase/lib/libVYRCfdBase.so" --list "$work/exports.txt"
}

# The groups that tests/secondhost/CMakeLists.txt names. It has no start-ups to navigate to.
second_host_contract() {
    "$work/secondhost/second_host_contract" --gtest_filter=-Handles.NavigatingAThousandTimes_* >"$work/contract"
    grep -E '^\[  PASSED  \] [1-9][0-9]+ tests' "$work/contract"
}

make_packages() {
    rm -rf "$work/deb"
    cpack --config "$root/build/release/CPackConfig.cmake" -B "$work/deb"
    rm -rf "$work/deb/_CPack_Packages"
    ls "$work"/deb/*.deb
    [ "$(find "$work/deb" -name '*.deb' | wc -l)" = 3 ]
}

# depends PACKAGE WORD...: the package depends on what begins with each word.
depends() {
    local fields word
    fields=", $(dpkg-deb -f "$work"/deb/"$1"_*.deb Depends)"
    echo "$1: $fields"
    for word in "${@:2}"; do
        [[ $fields == *", $word"* ]]
    done
}

package_dependencies() {
    depends "libvyrcfdbase$soname" libc6 libstdc++6 libudunits2 libsimdjson
    depends libvyrcfdbase-dev "libvyrcfdbase$soname (= $version)"
    depends vyrcfd "libvyrcfdbase$soname (= $version)" libreadline libc6
    dpkg-deb --ctrl-tarfile "$work"/deb/libvyrcfdbase"$soname"_*.deb | tar -xO ./shlibs |
        grep -x "libVYRCfdBase $soname libvyrcfdbase$soname (.*)"
    # The name for linking is the developers'.
    none dpkg-deb -c "$work"/deb/libvyrcfdbase"$soname"_*.deb 'libVYRCfdBase\.so( |$)'
}

# The packages in a root of their own: installed, used, and removed without a rest. What they depend on is this
# machine's, which that root knows nothing of.
packages_installed() {
    local system=$work/system
    local database=$system/var/lib/dpkg
    rm -rf "$system"
    mkdir -p "$database/info" "$database/updates" "$database/triggers"
    touch "$database/status" "$database/available"
    local dpkg=(dpkg --root="$system" --force-depends --force-not-root --force-script-chrootless --log=/dev/null)
    "${dpkg[@]}" -i "$work"/deb/*.deb
    names_no_folder "$system/usr"
    by_cmake packaged "$system/usr" -DEXPECT_TOOL=ON
    run_tool "$system/usr"
    "${dpkg[@]}" -P vyrcfd libvyrcfdbase-dev "libvyrcfdbase$soname"
    [ ! -e "$system/usr" ] || [ -z "$(find "$system/usr" -type f)" ]
}

checks=0
broken=0
# check NAME COMMAND...: in a shell of its own, which ends with the first thing that fails.
check() {
    local log=$work/log status
    set +e
    (set -e && "${@:2}") >"$log" 2>&1 </dev/null
    status=$?
    set -e
    checks=$((checks + 1))
    if [ "$status" -eq 0 ]; then
        say "ok      $1"
    else
        broken=$((broken + 1))
        say "FAILED  $1"
        tail -n 30 "$log" >&2
    fi
}

mkdir -p "$work"
# What an earlier run has left must not stand in for what cannot be made now.
rm -rf "$work/moved"
check "the shared tree is installed" install_shared
shared=$work/moved/shared
check "the static tree is installed" install_static
static=$work/moved/static
check "the shared tree names no folder of this machine" names_no_folder "$shared"
check "the static tree names no folder of this machine" names_no_folder "$static"
check "CMake finds the shared tree, and its programs run" by_cmake cmake-shared "$shared" -DEXPECT_TOOL=ON
check "CMake finds the static tree, and its programs run" by_cmake cmake-static "$static"
check "pkg-config finds the shared tree, and its programs run" by_pkg_config pkg-config-shared "$shared"
check "pkg-config finds the static tree, and its programs run" by_pkg_config pkg-config-static "$static" --static
check "shared programs load both libraries" needs_ours "$work/pkg-config-shared" 2
check "static programs load none" needs_ours "$work/pkg-config-static" 0
check "static programs have the host's shortcuts" has_shortcuts "$work/cmake-static" "$work/pkg-config-static"
check "the installed tool runs with its samples" run_tool "$shared"
check "gdb shows values by the installed printers" shown_by_gdb "$shared"
check "the libraries are called by their soname" called_by_soname "$shared"
check "the module exports what is listed" exports "$(libraries_of "$shared")/libVYRCfdBase.so"
check "the stand-alone host exports what is listed" exports "$(libraries_of "$shared")/libVYRStandaloneHost.so"
check "the module runs on a second host" second_host
check "the second host passes the contract suite as far as it goes" second_host_contract
check "Debian packages are made" make_packages
check "the packages say what they depend on" package_dependencies
check "the packages are installed, used and removed" packages_installed

[ "$broken" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - package: $((checks - broken)) of $checks checks passed"
[ "$broken" -eq 0 ]
