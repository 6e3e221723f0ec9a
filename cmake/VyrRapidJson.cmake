# Finds RapidJSON, whose folder is then in VYR_RAPIDJSON_INCLUDE_DIR.
#
# Release 1.1.0 has an assignment to constant members, which no program can call; clang refuses it from 19 on where older
# compilers leave such functions unread. Where this compiler does, the headers are taken from a copy without it.

include(CheckCXXSourceCompiles)

find_path(RAPIDJSON_INCLUDE_DIR rapidjson/document.h REQUIRED)
mark_as_advanced(RAPIDJSON_INCLUDE_DIR)
set(VYR_RAPIDJSON_INCLUDE_DIR "${RAPIDJSON_INCLUDE_DIR}")

set(CMAKE_REQUIRED_INCLUDES "${RAPIDJSON_INCLUDE_DIR}")
check_cxx_source_compiles("#include <rapidjson/document.h>\nint main() {}" VYR_RAPIDJSON_COMPILES)
unset(CMAKE_REQUIRED_INCLUDES)
if(NOT VYR_RAPIDJSON_COMPILES)
  set(VYR_RAPIDJSON_INCLUDE_DIR "${PROJECT_BINARY_DIR}/rapidjson/include")
  file(COPY "${RAPIDJSON_INCLUDE_DIR}/rapidjson" DESTINATION "${VYR_RAPIDJSON_INCLUDE_DIR}" PATTERN document.h EXCLUDE)
  file(READ "${RAPIDJSON_INCLUDE_DIR}/rapidjson/document.h" header)
  string(REPLACE "GenericStringRef& operator=(const GenericStringRef& rhs) { s = rhs.s; length = rhs.length; }" ""
    header "${header}")
  # A copy that stays as it is need not be compiled again.
  file(CONFIGURE OUTPUT "${VYR_RAPIDJSON_INCLUDE_DIR}/rapidjson/document.h" @ONLY CONTENT "${header}")
endif()
