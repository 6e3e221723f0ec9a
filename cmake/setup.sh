# Shared by ./run, ./test and ./measure, which read it in: what must be installed, and building a preset.
# Expects $root, the folder of the repository.

# Everything goes to standard error: the standard output of ./run is the tool's.
say() { printf '%s\n' "$*" >&2; }

# has_header NAME: the compiler finds <NAME>.
has_header() { command -v g++ >/dev/null && printf '#include <%s>\n' "$1" | g++ -E -x c++ - >/dev/null 2>&1; }

# has_library FILE: the linker finds it; the compiler prints the path then, else the bare name.
has_library() { [ "$(g++ -print-file-name="$1")" != "$1" ]; }

# Asks for what a package brings and not for the package, so that a newer one, or one installed by hand, will do.
is_there() {
    case $1 in
        ninja-build) command -v ninja >/dev/null ;;
        rapidjson-dev) has_header rapidjson/document.h ;;
        libudunits2-dev) has_header udunits2.h && has_library libudunits2.so ;;
        libcli11-dev) has_header CLI/CLI.hpp ;;
        libreadline-dev) has_header readline/readline.h && has_library libreadline.so ;;
        libgtest-dev) has_header gtest/gtest.h && has_library libgtest.a ;;
        libclang-rt-14-dev) command -v clang++ >/dev/null && [ -f "$(clang++ -print-runtime-dir)/libclang_rt.asan-$(uname -m).a" ] ;;
        llvm-14) command -v llvm-cov-14 >/dev/null ;;
        libbenchmark-dev) has_header benchmark/benchmark.h && has_library libbenchmark.so ;;
        libtrilinos-teuchos-dev) has_library libtrilinos_teuchosparameterlist.so ;;
        libglib2.0-dev) command -v pkg-config >/dev/null && pkg-config --exists gobject-2.0 ;;
        qt6-base-dev) has_library libQt6Core.so ;;
        nlohmann-json3-dev) has_header nlohmann/json.hpp ;;
        libsimdjson-dev) has_header simdjson.h && has_library libsimdjson.so ;;
        libmuparser-dev) has_header muParser.h && has_library libmuparser.so ;;
        liblua5.4-dev) has_header lua5.4/lua.h && has_library liblua5.4.so ;;
        binutils) command -v nm >/dev/null ;;
        dpkg-dev) command -v dpkg-shlibdeps >/dev/null ;;
        man-db) command -v man >/dev/null ;;
        graphviz) command -v dot >/dev/null ;;
        python3-jsonschema) python3 -c "import jsonschema" 2>/dev/null ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

missing_of() {
    local package
    for package in "$@"; do
        is_there "$package" || printf '%s ' "$package"
    done
}

# set_up PACKAGE...: installs those of the packages that are missing, or says which these are.
set_up() {
    local missing
    missing=$(missing_of "$@")
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ] || ! command -v apt-get >/dev/null; then
        say "Missing packages (names as in Debian 12): ${missing% }"
        say "Install them, or run this as root on Debian 12, where it does so itself."
        return 1
    fi
    say "Installing: ${missing% }"
    {
        apt-get update -q
        # shellcheck disable=SC2086 # one word a package
        DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
    } >&2
    missing=$(missing_of "$@")
    if [ -n "$missing" ]; then
        say "Still missing after installation: ${missing% }"
        return 1
    fi
}

RUN_PACKAGES=(g++ cmake ninja-build ccache rapidjson-dev libsimdjson-dev libudunits2-dev libcli11-dev libreadline-dev)
TEST_PACKAGES=("${RUN_PACKAGES[@]}" libgtest-dev libbenchmark-dev python3 python3-jsonschema binutils valgrind)
# The shells whose completion is tested, and what sets the manual page.
SHELL_PACKAGES=(fish zsh groff man-db graphviz)
# What makes the documentation.
DOCS_PACKAGES=(python3 doxygen cmark-gfm)
SANITIZER_PACKAGES=(clang libclang-rt-14-dev)
MEASURE_PACKAGES=(g++ cmake ninja-build ccache rapidjson-dev libsimdjson-dev libudunits2-dev libbenchmark-dev)
# What ./measure compares with, beside RapidJSON. It measures without those that cannot be had.
PEER_PACKAGES=(libtrilinos-teuchos-dev libglib2.0-dev qt6-base-dev nlohmann-json3-dev libmuparser-dev
    liblua5.4-dev)

# build PRESET [--target TARGET...] [-D...]: configures and builds it below build/.
build() {
    local preset=$1
    shift
    local settings=() targets=()
    local argument
    for argument in "$@"; do
        case $argument in
            -D*) settings+=("$argument") ;;
            *) targets+=("$argument") ;;
        esac
    done
    # Presets are read from the working folder, so this runs in the repository, in a process of its own.
    (
        cd "$root"
        cmake --preset "$preset" "${settings[@]}"
        cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
    ) >&2
}
