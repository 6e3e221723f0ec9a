# What can be chosen at configure time, and what holds for every translation unit of the tree. The presets set these.

option(BUILD_SHARED_LIBS "Build the libraries shared; they are static otherwise" ON)
set(VYRCFD_HOST_LIBRARIES "" CACHE STRING
  "Libraries of another host, targets or files, for VYRCfdBase; what needs the stand-alone host is not built then")
set(VYRCFD_HOST_INCLUDE_DIRS "" CACHE STRING "Folders with that host's headers, which take the place of host/")
set(VYRCFD_HAS_STANDALONE_HOST ON)
if(VYRCFD_HOST_LIBRARIES)
  set(VYRCFD_HAS_STANDALONE_HOST OFF)
elseif(VYRCFD_HOST_INCLUDE_DIRS)
  message(FATAL_ERROR "VYRCFD_HOST_INCLUDE_DIRS is given, and no VYRCFD_HOST_LIBRARIES of that host")
endif()

# These run on the stand-alone host.
include(CMakeDependentOption)
cmake_dependent_option(VYRCFD_BUILD_TOOLS "Build the command-line tool; needs CLI11 and GNU readline" ON
  VYRCFD_HAS_STANDALONE_HOST OFF)
cmake_dependent_option(VYRCFD_BUILD_TESTS "Build the tests; needs GoogleTest and Python 3" ${PROJECT_IS_TOP_LEVEL}
  VYRCFD_HAS_STANDALONE_HOST OFF)
cmake_dependent_option(VYRCFD_BUILD_BENCH
  "Build the benchmark; needs Google Benchmark, and takes the peers that are installed" OFF
  VYRCFD_HAS_STANDALONE_HOST OFF)
option(VYRCFD_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(VYRCFD_SANITIZE "" CACHE STRING "Sanitizers for the whole tree, as -fsanitize= takes them; clang")
option(VYRCFD_UNITY "Compile the tests, the tool and, under sanitizers, the host some sources at a time" OFF)
option(VYRCFD_TESTS_TOGETHER "Run the tests of a program in one process, which is faster where to start one takes long" OFF)
option(VYRCFD_COVERAGE "Measure which lines and branches of the two libraries run; clang" OFF)

# What a newer library can stand in for: before 1.0.0 each minor version is one of its own, from then on each major one.
set(VYRCFD_SOVERSION ${PROJECT_VERSION_MAJOR})
set(VYRCFD_COMPATIBILITY SameMajorVersion)
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(VYRCFD_SOVERSION 0.${PROJECT_VERSION_MINOR})
  set(VYRCFD_COMPATIBILITY SameMinorVersion)
endif()

# Where the sample installation is installed, which the tool has to know.
include(GNUInstallDirs)
set(VYRCFD_INSTALL_DATA "${CMAKE_INSTALL_DATADIR}/VYRCfdBase")
set(VYRCFD_INSTALL_SAMPLES "${VYRCFD_INSTALL_DATA}/samples")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(VYRCFD_CCACHE ccache)
mark_as_advanced(VYRCFD_CCACHE)
if(VYRCFD_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  # The cache keeps what is compiled with precompiled headers only when it is told that no source asks for the time.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${VYRCFD_CCACHE}")
  # Nor may clang's say when its headers were written.
  add_compile_options("$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()

# Reports carry __FILE__, which relative to the repository reads the same on every machine. Debug information keeps
# its paths, so that debuggers and sanitizers find the sources.
add_compile_options("-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=")

if(VYRCFD_SANITIZE)
  # The runtime of a sanitizer must see every object, so this cannot be a property of single targets.
  add_compile_options(-fsanitize=${VYRCFD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options("-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitizers.ignore")
  add_link_options(-fsanitize=${VYRCFD_SANITIZE})
endif()
