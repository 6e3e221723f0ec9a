# What the targets of this tree have in common.

# Warnings stand on a target of their own and are linked privately: who uses our headers keeps their own warnings.
add_library(vyr_warnings INTERFACE)
target_compile_options(vyr_warnings INTERFACE
  -Wall
  -Wextra
  -Wpedantic
  -Wshadow
  -Wnon-virtual-dtor
  -Woverloaded-virtual
  # The string operations of the library that comes with g++ 12 set it off in optimised builds, whatever they are given.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
  # Its stable sort calls what it declares deprecated, which clang 19 tells of; older compilers look after our own calls.
  $<$<AND:$<CXX_COMPILER_ID:Clang>,$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,19>>:-Wno-deprecated-declarations>
  $<$<BOOL:${VYRCFD_WARNINGS_AS_ERRORS}>:-Werror>)

# vyr_glob(<out> <pattern>...)
#
# The source files that match, found again at each build. A folder that holds none is a broken tree, and is told at
# once instead of by the linker.
function(vyr_glob out)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${ARGN})
  if(NOT sources)
    message(FATAL_ERROR "No source file matches ${ARGN}")
  endif()
  set(${out} ${sources} PARENT_SCOPE)
endfunction()

# vyr_unity(<target>)
#
# With VYRCFD_UNITY, compiles the target's sources some at a time, which takes half as long where everything has to be
# compiled. Names that are local to a file must then differ between the files of a target; SKIP_UNITY_BUILD_INCLUSION
# keeps a file by itself whose names cannot.
function(vyr_unity target)
  if(VYRCFD_UNITY)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
  endif()
endfunction()

# vyr_library_defaults(<target>)
#
# For the libraries: only what carries the export macro is visible, and nothing is left for the loader to find. Static
# ones too can become part of a shared library.
function(vyr_library_defaults target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${VYRCFD_SOVERSION})
  target_link_libraries(${target} PRIVATE "$<BUILD_INTERFACE:vyr_warnings>")
  if(VYRCFD_COVERAGE)
    target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(${target} PRIVATE -fprofile-instr-generate)
  endif()
  # Within one source file a library's own functions may be inlined. Calls between files can still be stood in for.
  target_compile_options(${target} PRIVATE -fno-semantic-interposition)
  # Under clang a sanitizer's runtime is linked into the executable only, so a library must leave its symbols open.
  if(NOT VYRCFD_SANITIZE)
    target_link_options(${target} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()
