# Three Debian packages, which `cpack` makes in the build folder: the shared libraries, what programs are built with,
# and the programs. A new second number of the version is a new binary interface, so it is part of the library
# package's name and two of them can be installed side by side.

if(NOT BUILD_SHARED_LIBS OR NOT TVOK_DESKTOP OR NOT TVOK_BUILD_APPS OR NOT TVOK_INSTALL)
  message(FATAL_ERROR "TVOK_PACKAGES needs BUILD_SHARED_LIBS, TVOK_DESKTOP, TVOK_BUILD_APPS and TVOK_INSTALL")
endif()

set(tvok_runtime_package libtvok${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(tvok_development_package libtvok-dev)
set(tvok_tools_package tvok-tools)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tvok)
set(CPACK_PACKAGE_VENDOR "tvok developers")
set(CPACK_PACKAGE_CONTACT "tvok developers <tvok@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # Each package has its own, the first line of its description.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# What the libraries and programs of others need is looked up; the packages need each other in the same version.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(tvok_same_runtime "${tvok_runtime_package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${tvok_runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "owner-drawn list controls and a software desktop - libraries
The list, popup, property, label, button and colour controls of tvok, which
paint themselves through one interface of platform operations, and a small
window system in memory behind that interface, with text in every script.

This package holds the shared libraries.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${tvok_development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${tvok_same_runtime}")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "owner-drawn list controls and a software desktop - development
This package holds what C++20 programs that use tvok are built with: the
headers, the package for CMake's find_package, and the files for pkg-config.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ${tvok_tools_package})
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${tvok_same_runtime}")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "owner-drawn list controls and a software desktop - programs
This package holds gallery, which shows every control of tvok with live data,
and logview, a viewer for logs of any size.")

foreach(component runtime development tools)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${tvok_${component}_package}
    RENAME copyright COMPONENT ${component})
endforeach()

include(CPack)
