# How tests are declared. An area's CMakeLists.txt is a few lines of these.

include(GoogleTest)
find_package(GTest REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Discovery runs the program once to list its tests; on a busy machine and under a sanitizer that takes a while.
set(VYR_TEST_DISCOVERY_SECONDS 60)
# A test that hangs fails, and names itself, long before the whole run is given up.
set(VYR_TEST_SECONDS 180)
# All those of a program.
set(VYR_TESTS_TOGETHER_SECONDS 1200)
# In how many processes.
set(VYR_TEST_SHARDS 1)

# What nearly every test source includes, parsed once for all of them: it is more than half of what compiling one costs.
# Only what never changes stands here, so that no edit of ours compiles all tests again.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/vyr_test_headers.cpp" @ONLY CONTENT "// Compiled for its precompiled headers.\n")
add_library(vyr_test_headers OBJECT "${PROJECT_BINARY_DIR}/vyr_test_headers.cpp")
target_compile_options(vyr_test_headers PRIVATE -O0)
# The warnings too: -Wpedantic takes macros of the compiler away, and the headers count only where these are the same.
target_link_libraries(vyr_test_headers PRIVATE GTest::gtest vyr_warnings)
target_precompile_headers(vyr_test_headers PRIVATE
  <gtest/gtest.h> <algorithm> <filesystem> <fstream> <functional> <map> <optional> <sstream> <string> <vector>)

# vyr_precompiled(<target>)
#
# Compiles the target of test sources with those headers, and not optimised: what is tested is the libraries, and
# optimising the tests takes longer than running them.
function(vyr_precompiled target)
  target_compile_options(${target} PRIVATE -O0)
  target_link_libraries(${target} PRIVATE GTest::gtest)
  target_precompile_headers(${target} REUSE_FROM vyr_test_headers)
  vyr_unity(${target})
endfunction()

# vyr_add_test(<name> SOURCES <file>... [LABELS <label>...] [ENVIRONMENT <NAME=value>...]
#              [SHARDS <number>] [SEPARATE])
#
# One GoogleTest program and its tests, each of which is then one test of ctest, in a process of its own, called
# <name>.Suite.Test and run from the root of the repository. It is labelled with its folder, the area, besides LABELS.
# With VYRCFD_TESTS_TOGETHER all tests of a program run in one process, or in SHARDS of them where they take long,
# called <name>.together.<shard>; not with SEPARATE, for tests that may end their process.
# The sources see the public faces and tests/support, and two macros with absolute paths:
#   VYR_SAMPLES_DIR    the sample installation, samples/
#   VYR_TEST_DATA_DIR  the area's own data, tests/<area>/data
function(vyr_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SEPARATE" "SHARDS" "SOURCES;LABELS;ENVIRONMENT")
  vyr_refuse_leftovers(vyr_add_test "${name}" "${arg_UNPARSED_ARGUMENTS}")
  if(NOT arg_SOURCES)
    message(FATAL_ERROR "vyr_add_test(${name}): no SOURCES")
  endif()

  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE
    vyr_test_support VYRCfdBase VYRStandaloneHost GTest::gtest vyr_warnings)
  vyr_precompiled(${name})
  target_compile_definitions(${name} PRIVATE
    VYR_SAMPLES_DIR="${PROJECT_SOURCE_DIR}/samples"
    VYR_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data")
  if(arg_SHARDS)
    set(VYR_TEST_SHARDS ${arg_SHARDS})
  endif()
  if(arg_SEPARATE)
    set(VYRCFD_TESTS_TOGETHER OFF)
  endif()
  vyr_declare_tests(${name} "" "" "${arg_LABELS}" "${arg_ENVIRONMENT}")
endfunction()

# vyr_add_test_setting(<name> <setting> ENVIRONMENT <NAME=value>... [FILTER <gtest filter>] [LABELS <label>...])
#
# Runs the tests of the program <name> once more, each in a process of its own under another environment, as
# <name>.Suite.Test@<setting>. For what is read from the environment once per process.
function(vyr_add_test_setting name setting)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "FILTER" "LABELS;ENVIRONMENT")
  vyr_refuse_leftovers(vyr_add_test_setting "${name}" "${arg_UNPARSED_ARGUMENTS}")
  vyr_declare_tests(${name} "@${setting}" "${arg_FILTER}" "${arg_LABELS}" "${arg_ENVIRONMENT}")
endfunction()

# vyr_add_script_test(<area>.<name> <script> [<argument>...])
#
# A Python script that is a test: it passes when it exits with 0.
function(vyr_add_script_test name)
  get_filename_component(area "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  add_test(NAME ${name} COMMAND Python3::Interpreter -B ${ARGN} WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
  set_tests_properties(${name} PROPERTIES LABELS ${area} TIMEOUT ${VYR_TEST_SECONDS})
endfunction()

function(vyr_refuse_leftovers function name leftovers)
  if(leftovers)
    message(FATAL_ERROR "${function}(${name}): cannot read \"${leftovers}\"")
  endif()
endfunction()

# vyr_declare_tests(<name> <suffix> <filter> <labels> <environment>)
#
# The tests of a GoogleTest program that is there already.
function(vyr_declare_tests name suffix filter labels environment)
  if(VYRCFD_TESTS_TOGETHER)
    vyr_add_together(${name} "${suffix}" "${filter}" "${labels}" "${environment}")
  else()
    vyr_discover(${name} "${suffix}" "${filter}" "${labels}" "${environment}")
  endif()
endfunction()

# Each process leaves its tests in test-results/, where count_tests.py looks for them.
function(vyr_add_together name suffix filter labels environment)
  get_filename_component(area "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  if(NOT filter)
    set(filter *)
  endif()
  math(EXPR last "${VYR_TEST_SHARDS} - 1")
  foreach(shard RANGE ${last})
    set(test "${name}${suffix}.together.${shard}")
    set(results "${PROJECT_BINARY_DIR}/test-results/${test}.xml")
    set(settings GTEST_TOTAL_SHARDS=${VYR_TEST_SHARDS} GTEST_SHARD_INDEX=${shard} ${environment})
    add_test(NAME "${test}"
      COMMAND ${name} "--gtest_filter=${filter}" "--gtest_output=xml:${results}"
      WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
    set_tests_properties("${test}" PROPERTIES
      TIMEOUT ${VYR_TESTS_TOGETHER_SECONDS}
      LABELS "${area};${labels}"
      ENVIRONMENT "${settings}")
  endforeach()
endfunction()

function(vyr_discover name suffix filter labels environment)
  get_filename_component(area "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  string(MAKE_C_IDENTIFIER "${name}${suffix}_TESTS" list)
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT ${VYR_TEST_DISCOVERY_SECONDS}
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    # The value of a parameter may print as bytes or an address; its index or its given name says enough.
    NO_PRETTY_VALUES
    TEST_PREFIX "${name}."
    TEST_SUFFIX "${suffix}"
    TEST_FILTER "${filter}"
    TEST_LIST ${list}
    PROPERTIES TIMEOUT ${VYR_TEST_SECONDS})

  # Properties that are lists themselves do not survive the way through gtest_discover_tests: they are set behind it.
  set(settings "${CMAKE_CURRENT_BINARY_DIR}/${list}_settings.cmake")
  file(CONFIGURE OUTPUT "${settings}" @ONLY CONTENT [==[
foreach(test IN LISTS @list@)
  set_tests_properties("${test}" PROPERTIES LABELS [=[@area@;@labels@]=] ENVIRONMENT [=[@environment@]=])
endforeach()
]==])
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${settings}")
endfunction()
