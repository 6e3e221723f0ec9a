# Debian packages of what is installed: the libraries, what developers need, and the tool.
#
#     cpack --config build/release/CPackConfig.cmake -B FOLDER

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vyrcfd)
set(CPACK_PACKAGE_VENDOR "VYRCfdBase")
set(CPACK_PACKAGE_CONTACT "The developers of VYRCfdBase <vyrcfdbase@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_COMPONENTS_ALL library development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
# What programs need of other packages is read from them. Where our libraries lie is told, and to packages outside,
# which one they come with.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# By its soname, so that an old one and its programs can stay.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "libvyrcfdbase${VYRCFD_SOVERSION}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "The libraries VYRCfdBase and VYRStandaloneHost.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvyrcfdbase-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, and what CMake and pkg-config need to find the libraries.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME vyrcfd)
set(CPACK_COMPONENT_TOOL_DESCRIPTION "The command-line tool, with a sample installation.")
set(CPACK_COMPONENT_TOOL_DEPENDS library)

include(CPack)
