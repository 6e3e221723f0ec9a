# vyr_check_headers(<name> <folder> [<library>...])
#
# Compiles every header below <folder> alone, seeing what the libraries give and nothing else. Each header gets one
# source that includes it twice: the first inclusion has nothing before it, so the header must bring what it needs,
# and the second must change nothing.
function(vyr_check_headers name folder)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/*.h")
  if(NOT headers)
    message(FATAL_ERROR "vyr_check_headers(${name}): no header below ${folder}")
  endif()

  set(sources)
  foreach(path IN LISTS headers)
    get_filename_component(header "${path}" NAME)
    string(MAKE_C_IDENTIFIER "${path}" stem)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}/${stem}.cpp")
    file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT "#include \"@header@\"\n#include \"@header@\"\n")
    list(APPEND sources "${source}")
  endforeach()

  add_library(${name} OBJECT ${sources})
  target_link_libraries(${name} PRIVATE vyr_warnings)
  # Not linked but seen: the libraries' include folders are all that is wanted of them here.
  foreach(library IN LISTS ARGN)
    target_include_directories(${name} PRIVATE $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
  endforeach()
endfunction()
