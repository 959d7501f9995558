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
set(TVOK_PACKAGE_MAINTAINER "tvok developers <tvok@localhost>" CACHE STRING "Who answers for the packages")
set(CPACK_PACKAGE_CONTACT "${TVOK_PACKAGE_MAINTAINER}")
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
# The loader hears of the libraries by a trigger, so that no script runs at the installation.
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/triggers CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/TvokTriggers.cmake)
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

# Each package has the licence and the changes. Debian's own list of changes says when it was made.
string(TIMESTAMP tvok_day "%a, %d %b %Y 00:00:00 +0000" UTC)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/changelog.Debian CONTENT
"tvok (${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * The changes of the library are in changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${tvok_day}
")
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_BINARY_DIR}/changelog COPYONLY)
execute_process(COMMAND gzip -9nkf changelog changelog.Debian WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMAND_ERROR_IS_FATAL ANY)
# What is as it is on purpose, for lintian.
set(tvok_runtime_overrides
  "# Two libraries of one version: programs with the desktop need both.\npackage-name-doesnt-match-sonames")
set(tvok_tools_overrides "# The gallery shows this machine's packages as data.\nuses-dpkg-database-directly")
foreach(component runtime development tools)
  set(tvok_overrides ${PROJECT_BINARY_DIR}/overrides/${tvok_${component}_package})
  file(CONFIGURE OUTPUT ${tvok_overrides} CONTENT
    "# Not made for Debian's own archive.\ninitial-upload-closes-no-bugs\n${tvok_${component}_overrides}\n")
  install(FILES ${tvok_overrides} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides COMPONENT ${component})
endforeach()
foreach(component runtime development tools)
  set(tvok_papers ${CMAKE_INSTALL_DATAROOTDIR}/doc/${tvok_${component}_package})
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${tvok_papers} RENAME copyright COMPONENT ${component})
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz ${PROJECT_BINARY_DIR}/changelog.Debian.gz
    DESTINATION ${tvok_papers} COMPONENT ${component})
endforeach()

include(CPack)
