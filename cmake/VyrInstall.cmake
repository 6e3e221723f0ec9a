# What is installed, and where. Nothing of it names a folder of the machine that built it, so that the tree may be
# moved.
#
# It has three parts, each of which is a package of its own: library, development and tool.

include(CMakePackageConfigHelpers)

set(headers_folder "${CMAKE_INSTALL_INCLUDEDIR}/VYRCfdBase")
set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/VYRCfdBase")
set(pkgconfig_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# vyr_install_headers(<target> <name> <folder>)
#
# Installs the headers below <folder> side by side, since they are included flat, and gives them to the target's users.
function(vyr_install_headers target name folder)
  vyr_glob(headers "${folder}/*.h")
  install(FILES ${headers} DESTINATION "${headers_folder}/${name}" COMPONENT development)
  target_include_directories(${target} INTERFACE "$<INSTALL_INTERFACE:${headers_folder}/${name}>")
endfunction()

# vyr_install_target(<target> <name>)
#
# Installs a library, which others call VYRCfd::<name>, here as well as where it is installed. Programs run with its
# soname; its plain name is for those who link.
function(vyr_install_target target name)
  add_library(VYRCfd::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${target} EXPORT VYRCfdBaseTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
endfunction()

# vyr_install_pkgconfig(<name>)
#
# Installs <name>.pc, from cmake/<name>.pc.in. It finds its folders from where it lies.
file(RELATIVE_PATH prefix_from_pkgconfig "/${pkgconfig_folder}" "/")
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
function(vyr_install_pkgconfig name)
  configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc" DESTINATION "${pkgconfig_folder}" COMPONENT development)
endfunction()

# The headers of another host are not ours to install.
if(NOT VYRCFD_HOST_INCLUDE_DIRS)
  vyr_install_headers(VYRHost host "${PROJECT_SOURCE_DIR}/host")
endif()
vyr_install_target(VYRHost Host)
vyr_install_headers(VYRCfdBase base "${PROJECT_SOURCE_DIR}/VYRCfdModel/ProtectedInterfaces")
vyr_install_target(VYRCfdBase Base)

# How pkg-config has the library linked, as the target's own options have it for CMake.
if(BUILD_SHARED_LIBS)
  set(base_libraries "-Wl,--push-state,--no-as-needed -lVYRCfdBase -Wl,--pop-state")
else()
  set(base_libraries "-Wl,${VYRCFD_ASKED_FOR} -lVYRCfdBase")
endif()
set(host_private_libraries "")
if(TARGET VYRStandaloneHost)
  vyr_install_headers(VYRStandaloneHost standalone "${PROJECT_SOURCE_DIR}/standalone/include")
  vyr_install_target(VYRStandaloneHost StandaloneHost)
  string(APPEND base_libraries " -lVYRStandaloneHost")
  if(NOT BUILD_SHARED_LIBS)
    set(host_private_libraries "-ludunits2 -lsimdjson")
  endif()
  vyr_install_pkgconfig(VYRStandaloneHost)
  # With the tool: it takes the samples where no other installation is named.
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/" DESTINATION "${VYRCFD_INSTALL_SAMPLES}" COMPONENT tool
    PATTERN "__pycache__" EXCLUDE)
  install(FILES "${PROJECT_SOURCE_DIR}/docs/configuration.schema.json" DESTINATION "${VYRCFD_INSTALL_DATA}" COMPONENT tool)
endif()
vyr_install_pkgconfig(VYRHost)
vyr_install_pkgconfig(VYRCfdBase)

install(EXPORT VYRCfdBaseTargets NAMESPACE VYRCfd:: DESTINATION "${config_folder}" COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/VYRCfdBaseConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/VYRCfdBaseConfig.cmake" INSTALL_DESTINATION "${config_folder}" PATH_VARS VYRCFD_INSTALL_DATA)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VYRCfdBaseConfigVersion.cmake"
  COMPATIBILITY ${VYRCFD_COMPATIBILITY})
install(
  FILES "${PROJECT_BINARY_DIR}/VYRCfdBaseConfig.cmake" "${PROJECT_BINARY_DIR}/VYRCfdBaseConfigVersion.cmake"
  DESTINATION "${config_folder}" COMPONENT development)

if(TARGET vyrcfd)
  file(RELATIVE_PATH libraries_from_programs "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(vyrcfd PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")
  install(TARGETS vyrcfd EXPORT VYRCfdToolTargets RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)
  # With the tool and not with the libraries' targets, so that they can be had without it.
  install(EXPORT VYRCfdToolTargets NAMESPACE VYRCfd:: DESTINATION "${config_folder}" COMPONENT tool)
endif()
if(TARGET vyrcfd_interface)
  # Manual page and completions, laid out by the build as they are installed.
  install(DIRECTORY "${PROJECT_BINARY_DIR}/share/" DESTINATION "${CMAKE_INSTALL_DATADIR}" COMPONENT tool)
endif()

install(FILES "${PROJECT_SOURCE_DIR}/tools/gdb/VYRCfdPrinters.py"
  DESTINATION "${VYRCFD_INSTALL_DATA}/gdb" COMPONENT development)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT development)
